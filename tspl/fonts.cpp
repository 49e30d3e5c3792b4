#include "tspl/fonts.h"

#include <algorithm>

#include "tspl/downloaded_font.h"
#include "tspl/text.h"

namespace tspl {
namespace {

constexpr const char* fixedFamily = "DejaVu Sans Mono";
constexpr const char* proportionalFamily = "DejaVu Sans";

struct NamedFont {
    std::string_view name;
    Font font;
};

const NamedFont fonts[] = {
    {"0", {proportionalFamily}},
    {"1", {fixedFamily, 8, 12}},
    {"2", {fixedFamily, 12, 20}},
    {"3", {fixedFamily, 16, 24}},
    {"4", {fixedFamily, 24, 32}},
    {"5", {fixedFamily, 32, 48}},
    {"6", {fixedFamily, 14, 19}},
    {"7", {fixedFamily, 21, 27}},
    {"8", {fixedFamily, 14, 25}},
    {"ROMAN.TTF", {proportionalFamily}},
    {"TST24.BF2", {fixedFamily, 24, 24, true, "950"}},
    {"TSS24.BF2", {fixedFamily, 24, 24, true, "936"}},
    {"K", {fixedFamily, 24, 24, true, "949"}},
};

struct Range {
    char32_t first;
    char32_t last;
};

// The blocks whose characters Unicode calls wide.
constexpr Range wideRanges[] = {
    {0x1100, 0x115F}, {0x2E80, 0x303E},   {0x3041, 0xA4CF},   {0xA960, 0xA97C},
    {0xAC00, 0xD7A3}, {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},
    {0xFFE0, 0xFFE6}, {0x1F300, 0x1F64F}, {0x20000, 0x3FFFD},
};

}  // namespace

std::optional<Font> fontOf(std::string_view name) {
    const std::string capitals = upperCase(name);
    const auto* const found =
        std::find_if(std::begin(fonts), std::end(fonts),
                     [&](const NamedFont& known) { return known.name == capitals; });
    return found == std::end(fonts) ? std::nullopt : std::optional(found->font);
}

bool isFontFile(std::string_view name) {
    const auto dot = name.find_last_of('.');
    return dot != std::string_view::npos && dot > 0 && dot + 1 < name.size();
}

bool isOutlineFile(std::string_view name) {
    const std::string capitals = upperCase(name);
    return capitals.ends_with(".TTF") || capitals.ends_with(".OTF") || capitals.ends_with(".TTC");
}

Font fontOf(const std::shared_ptr<const DownloadedFont>& font) {
    Font own{font->key().c_str()};
    own.downloaded = font;
    return own;
}

Font standInOf(std::string_view fileName) {
    return isOutlineFile(fileName) ? Font{proportionalFamily} : Font{fixedFamily, 16, 24};
}

bool isWide(char32_t character) {
    return std::any_of(std::begin(wideRanges), std::end(wideRanges), [=](const Range& range) {
        return character >= range.first && character <= range.last;
    });
}

}  // namespace tspl
