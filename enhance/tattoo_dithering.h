#pragma once

#include <cstddef>

#include "enhance/qm_image.h"

// The two stencil halftones: grey, a moment-preserving threshold, two power curves, a strong
// unsharp mask and an error diffusion. Both return a new grey image of the same size in which
// every byte is 0 (a dot is printed) or 255; an image without pixels comes back as a copy.

/// Halftone type "Tattoo": lifts the mid-tones around a fixed knee of 64.
QMImage qmTattooDithering(const QMImage& img);

/// Halftone type "Tattoo_X8": pushes the tones toward the page's threshold.
QMImage qmTattooDitheringX8(const QMImage& img);

enum class StencilType { Tattoo, TattooX8 };

/// A grey page of at least one pixel, rows of `width` bytes `stride` bytes apart.
struct GreyRows {
    const unsigned char* pixels;
    std::ptrdiff_t stride;
    int width;
    int height;

    const unsigned char* row(int y) const { return pixels + y * stride; }
};

/// The stencil of a page, written to rows `dotStride` bytes apart; nothing else of the page's size
/// is taken from memory.
void makeStencil(const GreyRows& page, StencilType type, unsigned char* dots,
                 std::ptrdiff_t dotStride);
