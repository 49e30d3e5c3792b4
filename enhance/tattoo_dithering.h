#pragma once

#include "enhance/qm_image.h"

// The two stencil halftones: grey, a moment-preserving threshold, two power curves, a strong
// unsharp mask and an error diffusion. Both return a new grey image of the same size in which
// every byte is 0 (a dot is printed) or 255; an image without pixels comes back as a copy.

/// Halftone type "Tattoo": lifts the mid-tones around a fixed knee of 64.
QMImage qmTattooDithering(const QMImage& img);

/// Halftone type "Tattoo_X8": pushes the tones toward the page's threshold.
QMImage qmTattooDitheringX8(const QMImage& img);
