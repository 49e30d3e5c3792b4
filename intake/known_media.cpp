#include "intake/known_media.h"

#include <cups/cups.h>

#include <algorithm>
#include <array>
#include <string>

#include "sizes/ascii.h"

namespace intake {
namespace {

char upperCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

const pwg_media_t* find(const std::string& name) {
    for (const auto lookup : {pwgMediaForPWG, pwgMediaForLegacy, pwgMediaForPPD}) {
        if (const pwg_media_t* found = lookup(name.c_str())) {
            return found;
        }
    }
    return nullptr;
}

// CUPS heeds the case: "A6" and "Letter" in PPD files, small letters elsewhere.
std::array<std::string, 4> casesOf(std::string_view name) {
    std::string given(name);
    std::string small(name);
    std::transform(small.begin(), small.end(), small.begin(), sizes::lowerCase);
    std::string large(name);
    std::transform(large.begin(), large.end(), large.begin(), upperCase);
    std::string capital = small;
    if (!capital.empty()) {
        capital.front() = upperCase(capital.front());
    }
    return {given, capital, large, small};
}

}  // namespace

std::optional<sizes::NominalSize> knownMedia(std::string_view name) {
    for (const std::string& spelling : casesOf(name)) {
        const pwg_media_t* found = spelling.empty() ? nullptr : find(spelling);
        if (found != nullptr && found->width > 0 && found->length > 0) {
            return sizes::inMillimetres(found->width / 100.0, found->length / 100.0);
        }
    }
    return std::nullopt;
}

}  // namespace intake
