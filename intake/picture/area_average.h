#pragma once

#include <cstdint>
#include <functional>
#include <span>

namespace intake::picture {

/// How one direction of a picture is scaled: `source` samples become `scaled` dots, of which those
/// from `first` on are wanted, `count` of them.
struct ScaledAxis {
    unsigned source = 1;
    unsigned scaled = 1;
    unsigned first = 0;
    unsigned count = 1;
};

/// Gives a row of the picture: source samples of the axis across times the number of channels. What
/// it returns is used until the next call. Rows are asked for from the top down, each once.
using SampleRows = std::function<std::span<const std::uint16_t>(unsigned row)>;

/// Takes a row of dots: count of the axis across times the number of channels.
using DotRows = std::function<void(std::span<const std::uint16_t>)>;

/// Scales a picture of 16-bit samples, channels interleaved, upward or downward: every dot becomes
/// the mean of the area of the picture that lies under it, each sample being a rectangle of one
/// colour, exact and rounded to the nearest, halves upward. This is the box filter of resampling
/// (Heckbert, Fundamentals of Texture Mapping and Image Warping, 1989) in integers.
void averageArea(const ScaledAxis& across, const ScaledAxis& down, unsigned channels,
                 const SampleRows& samples, const DotRows& dots);

}  // namespace intake::picture
