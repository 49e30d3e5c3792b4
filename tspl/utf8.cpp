#include "tspl/utf8.h"

#include <algorithm>
#include <bit>
#include <cstdint>

namespace tspl {
namespace {

constexpr unsigned bitsOfAContinuation = 6;
constexpr char32_t maskOfAContinuation = 0x3F;

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// Bytes of the character that begins with this one; 0 where none does.
std::size_t lengthFrom(unsigned char first) {
    if (first < 0x80) {
        return 1;
    }
    return first >= 0xC2 && first <= 0xF4 ? static_cast<std::size_t>(std::countl_one(first)) : 0;
}

// Of a number of bytes: characters from here on need so many.
constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};

bool isCharacter(char32_t character, std::size_t length) {
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    return character >= smallest[length] && character <= 0x10FFFF && !isSurrogate;
}

char32_t joined(std::string_view bytes) {
    const auto first = static_cast<unsigned char>(bytes.front());
    char32_t character = bytes.size() == 1 ? first : first & (0x7FU >> bytes.size());
    for (const char c : bytes.substr(1)) {
        character = (character << bitsOfAContinuation) |
                    (static_cast<unsigned char>(c) & maskOfAContinuation);
    }
    return character;
}

}  // namespace

std::u32string charactersOf(std::string_view utf8) {
    std::u32string characters;
    while (!utf8.empty()) {
        const std::size_t length = lengthFrom(static_cast<unsigned char>(utf8.front()));
        const std::string_view bytes = utf8.substr(0, length);
        const bool isWhole = length > 0 && bytes.size() == length &&
                             std::all_of(bytes.begin() + 1, bytes.end(), isContinuation) &&
                             isCharacter(joined(bytes), length);
        characters += isWhole ? joined(bytes) : replacementCharacter;
        utf8.remove_prefix(isWhole ? length : 1);
    }
    return characters;
}

std::string utf8Of(char32_t character) {
    std::size_t length = 1;
    while (length < 4 && character >= (length == 1 ? 0x80 : smallest[length + 1])) {
        ++length;
    }
    if (length == 1) {
        return {static_cast<char>(character)};
    }
    std::string bytes(length, '\0');
    for (std::size_t i = length; i-- > 1; character >>= bitsOfAContinuation) {
        bytes[i] = static_cast<char>(0x80U | (character & maskOfAContinuation));
    }
    bytes[0] = static_cast<char>(static_cast<std::uint8_t>(0xF00U >> length) | character);
    return bytes;
}

}  // namespace tspl
