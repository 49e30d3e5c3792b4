#pragma once

#include <algorithm>
#include <cstdint>

namespace intake::picture {

// Samples of 16 bits: 65535 is white, or all of an ink.
inline constexpr std::uint32_t mostLight = 65535;

/// Luma of ITU-R BT.601, 0.299 R + 0.587 G + 0.114 B, as the converters make grey of a document's
/// colours. Grey stays what it is.
constexpr std::uint16_t luma(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    constexpr std::uint32_t redShare = 19595;
    constexpr std::uint32_t greenShare = 38470;
    constexpr std::uint32_t blueShare = 7471;
    constexpr std::uint32_t rounding = 1U << 15U;
    return static_cast<std::uint16_t>(
        (red * redShare + green * greenShare + blue * blueShare + rounding) >> 16U);
}

/// The light that an ink and black leave, as PostScript has it.
constexpr std::uint32_t lightOf(std::uint32_t ink, std::uint32_t black) {
    return mostLight - std::min(mostLight, ink + black);
}

/// A sample that white paper shines through: 0 covers it wholly, 65535 not at all.
constexpr std::uint32_t overWhite(std::uint32_t sample, std::uint32_t transparency) {
    return sample + ((mostLight - sample) * transparency + mostLight / 2) / mostLight;
}

/// To the nearest level of 8 bits.
constexpr std::uint8_t levelOf(std::uint16_t sample) {
    return static_cast<std::uint8_t>((sample + 128U) / 257U);
}

}  // namespace intake::picture
