#pragma once

#include <span>
#include <string>
#include <string_view>

namespace sizes {

/// What an attribute of IPP may hold of a printer's make and model, in bytes.
inline constexpr std::size_t longestNickName = 127;

/// The name of a description that offers sizes of its own: "Kesto Label 203 dpi, 0.1 with 66 x 33
/// mm, 1.25 x 3 in". An update of the package gives queues the new description of the same name;
/// with a name of its own this one stays.
///
/// A name that has such an end already gets the new texts in front of the former ones, each once,
/// and " ..." at the end where there are more than a name can hold.
/// @throw Failure when not even one fits
std::string nickNameWith(std::string_view nickName, std::span<const std::string> sizeTexts);

}  // namespace sizes
