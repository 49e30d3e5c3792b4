#pragma once

#include <string>
#include <string_view>

namespace tspl {

/// What stands for bytes that are no character.
inline constexpr char32_t replacementCharacter = 0xFFFD;

/// The characters of a text in UTF-8; every byte that is part of none is a replacement character.
std::u32string charactersOf(std::string_view utf8);

/// A character in UTF-8; `character` is one that Unicode has.
std::string utf8Of(char32_t character);

}  // namespace tspl
