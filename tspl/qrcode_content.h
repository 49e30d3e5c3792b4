#pragma once

#include <string>
#include <string_view>

namespace tspl {

/// What a QR code in manual mode holds. Its content is in parts, an exclamation mark between them:
/// N and digits, A and capitals, B with a length of four digits and bytes, K and Kanji. Throws
/// CodeFault for what is no part, and for characters that a part does not have.
std::string manualQrContent(std::string_view content);

}  // namespace tspl
