#include "bench/test_page.h"

#include <algorithm>
#include <cstdlib>

namespace {

/// A wave between 0 and 255 of straight flanks.
int wave(unsigned place, unsigned length) {
    const auto phase = static_cast<int>(place % length * 510 / length);
    return phase <= 255 ? phase : 510 - phase;
}

std::uint8_t shade(unsigned x, unsigned y, unsigned grain) {
    const int waves = wave(x, 700) + wave(y + x / 3, 900) + wave(x * y / 1500, 800);
    return static_cast<std::uint8_t>(
        std::clamp(waves / 3 + static_cast<int>(grain % 25) - 12, 0, 255));
}

std::uint8_t line(unsigned x, unsigned y) {
    const bool bar = y % 400 < 120 && x % 41 * 13 % 17 < 6;
    const bool rule = y % 97 < 2 || (x + y) % 233 < 3;
    return bar || rule ? 255 : 0;
}

}  // namespace

std::vector<std::uint8_t> testPage(PageSize size, PageContent content) {
    std::vector<std::uint8_t> page;
    page.reserve(size.pixels());
    std::uint64_t noise = 1;
    for (unsigned y = 0; y < size.height; ++y) {
        for (unsigned x = 0; x < size.width; ++x) {
            noise = noise * 48271 % 2147483647;
            page.push_back(content == PageContent::LineArt
                               ? line(x, y)
                               : shade(x, y, static_cast<unsigned>(noise)));
        }
    }
    return page;
}
