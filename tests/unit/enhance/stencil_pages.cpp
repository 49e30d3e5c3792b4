#include "tests/unit/enhance/stencil_pages.h"

#include <algorithm>
#include <cstdlib>

namespace stencil_pages {

namespace {

GreyPage blankPage(int width, int height, std::uint8_t level) {
    return {width, height,
            Bytes(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), level)};
}

std::uint8_t& levelAt(GreyPage& page, int x, int y) {
    return page.levels[static_cast<std::size_t>(y) * static_cast<std::size_t>(page.width) +
                       static_cast<std::size_t>(x)];
}

/// Every pixel's level as `level(x, y)` says, limited to 0..255.
template <typename Level>
GreyPage drawnPage(int width, int height, Level level) {
    GreyPage page = blankPage(width, height, 0);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            levelAt(page, x, y) = static_cast<std::uint8_t>(std::clamp(level(x, y), 0, 255));
        }
    }
    return page;
}

/// A wave between 0 and 127 of straight flanks, up over 64 places and down over 64.
int wave(int place) {
    const int phase = std::abs(place) % 128;
    return 2 * (phase < 64 ? phase : 127 - phase);
}

bool isOnRing(int dx, int dy, int radius) {
    const int square = dx * dx + dy * dy;
    return square >= (radius - 2) * (radius - 2) && square <= radius * radius;
}

bool isOnLine(int x, int y, int shift) {
    return (x + shift) % 23 == 0 || (y + 2 * shift) % 17 < 2 || (x - y + 260) % 41 == 0;
}

}  // namespace

Noise::Noise(std::uint32_t seed) : state_(seed * 2654435761U + 97531U) {}

std::uint32_t Noise::next() {
    state_ = state_ * 1664525U + 1013904223U;
    return state_ >> 8;
}

int Noise::below(int limit) {
    return static_cast<int>(next() % static_cast<std::uint32_t>(limit));
}

GreyPage noisePage(int width, int height, std::uint32_t seed) {
    Noise noise(seed);
    return drawnPage(width, height, [&](int, int) { return noise.below(256); });
}

GreyPage photographPage(int width, int height, std::uint32_t seed) {
    Noise noise(seed);
    const int shift = noise.below(100);
    return drawnPage(width, height, [&](int x, int y) {
        const int waves = wave(x + shift) + wave(y - x / 2) + wave((x * y) / 64 + shift);
        return waves * 2 / 3 + noise.below(9) - 4;
    });
}

GreyPage lineArtPage(int width, int height, std::uint32_t seed) {
    const int shift = Noise(seed).below(40);
    return drawnPage(width, height, [&](int x, int y) {
        if (isOnLine(x, y, shift) || isOnRing(x - width / 2, y - height / 2, height / 3 + 2)) {
            return 0;
        }
        return isOnLine(x + 1, y, shift) ? 170 : 255;
    });
}

GreyPage uniformPage(int width, int height, int level) {
    return blankPage(width, height, static_cast<std::uint8_t>(level));
}

GreyPage oneDotPage(int width, int height, int background, int level) {
    GreyPage page = uniformPage(width, height, background);
    levelAt(page, width / 2, height / 2) = static_cast<std::uint8_t>(level);
    return page;
}

GreyPage fewLevelsPage(int width, int height, const Bytes& levels, bool sparse, Noise& noise) {
    const int count = static_cast<int>(levels.size());
    return drawnPage(width, height, [&](int, int) {
        const bool first = sparse && noise.below(50) != 0;
        return static_cast<int>(levels[static_cast<std::size_t>(first ? 0 : noise.below(count))]);
    });
}

QMImage imageOf(const GreyPage& page) {
    return greyImage(page.width, page.height, page.levels);
}

QMImage greyImage(int width, int height, const Bytes& levels) {
    return {width, height, QM_IMG_GRAY, levels.data()};
}

Bytes bytesOf(const QMImage& image) {
    return {image.data, image.data + image.size()};
}

std::uint64_t digestOf(const Bytes& bytes) {
    std::uint64_t digest = 0xCBF29CE484222325U;
    for (const std::uint8_t byte : bytes) {
        digest = (digest ^ byte) * 0x100000001B3U;
    }
    return digest;
}

std::vector<DigestCase> digestCases() {
    Noise noise(11);
    return {
        {"noise", noisePage(203, 117, 1), 0xAC71A9755AD43841U, 0x642B38C2EFDB0B28U},
        {"photograph", photographPage(257, 190, 2), 0x0C5CAEA58A1AFDAEU, 0x67DAB85845375BD1U},
        {"line art", lineArtPage(199, 150, 3), 0x6299BA62D01A5FD0U, 0xD2581D4C8C647922U},
        {"one dot", oneDotPage(300, 400, 255, 0), 0xAA5FE7B7A43C542EU, 0xAA5FE7B7A43C542EU},
        {"few levels", fewLevelsPage(131, 90, {200, 30, 90}, false, noise), 0xDF58AAF3921D74C6U,
         0x266A0F6BE248FB3BU},
        {"sparse levels", fewLevelsPage(127, 90, {255, 0, 128, 64}, true, noise),
         0x41D73EE9F4F465F3U, 0x41D73EE9F4F465F3U},
        {"large noise", noisePage(640, 480, 7), 0xCBD0B90246AB1812U, 0x22CE9C06CA17750FU},
    };
}

}  // namespace stencil_pages
