#pragma once

#include <array>
#include <cstddef>

#include "enhance/qm_image.h"

/// The new level of each grey level.
using ToneTable = std::array<unsigned char, 256>;

/// Bends the tones of a grey image in place with two power curves that meet at `knee`: 0, the
/// knee and 255 keep their level, levels below the knee follow the exponent `gammaLow`, those
/// from it up `gammaHigh`. Results are truncated to whole levels.
void enh_piecewise_gamma(QMImage& img, int knee, float gammaLow, float gammaHigh);

/// The curve as a table.
ToneTable piecewiseGamma(int knee, float gammaLow, float gammaHigh);

/// Writes the table's entries for `count` levels.
void bendTones(const unsigned char* levels, std::size_t count, const ToneTable& table,
               unsigned char* bent);
