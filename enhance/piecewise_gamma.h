#pragma once

#include "enhance/qm_image.h"

/// Bends the tones of a grey image in place with two power curves that meet at `knee`: 0, the
/// knee and 255 keep their level, levels below the knee follow the exponent `gammaLow`, those
/// from it up `gammaHigh`. Results are truncated to whole levels.
void enh_piecewise_gamma(QMImage& img, int knee, float gammaLow, float gammaHigh);
