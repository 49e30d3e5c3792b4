// Pages that tests of the stencil library use, made without floating point.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "enhance/qm_image.h"

namespace stencil_pages {

using Bytes = std::vector<std::uint8_t>;

/// A grey page, rows × columns packed.
struct GreyPage {
    int width;
    int height;
    Bytes levels;
};

/// Numbers without a pattern, the same on every run.
class Noise {
public:
    explicit Noise(std::uint32_t seed);
    std::uint32_t next();
    /// A number below `limit`.
    int below(int limit);

private:
    std::uint32_t state_;
};

GreyPage noisePage(int width, int height, std::uint32_t seed);

/// Soft waves of grey with a little grain.
GreyPage photographPage(int width, int height, std::uint32_t seed);

/// Black lines and a ring on white, some with grey edges.
GreyPage lineArtPage(int width, int height, std::uint32_t seed);

/// A page of one level.
GreyPage uniformPage(int width, int height, int level);

/// A page of `background` with one dot of `level` near its middle.
GreyPage oneDotPage(int width, int height, int background, int level);

/// A page on which each pixel has one of `levels`; the first is by far the commonest when
/// `sparse`.
GreyPage fewLevelsPage(int width, int height, const Bytes& levels, bool sparse, Noise& noise);

QMImage imageOf(const GreyPage& page);

/// A grey image of one row, or of `height` rows.
QMImage greyImage(int width, int height, const Bytes& levels);

Bytes bytesOf(const QMImage& image);

/// FNV-1a, 64 bits.
std::uint64_t digestOf(const Bytes& bytes);

/// A page and the digests of its two stencils.
struct DigestCase {
    std::string_view name;
    GreyPage page;
    std::uint64_t tattoo;
    std::uint64_t x8;
};

/// Pages of every kind. The digests were worked out by the plain reference, which gave the
/// same ones from g++ and clang++, unoptimised and optimised for AVX2 and FMA.
std::vector<DigestCase> digestCases();

}  // namespace stencil_pages
