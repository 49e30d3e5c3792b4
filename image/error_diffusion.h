#pragma once

#include <span>

#include "image/diffusion_kernels.h"

class RasterImage;

/// An error-diffusion kernel. Cells are served in order and each share is truncated on its own.
struct DiffusionKernel {
    int divisor;
    std::span<const DiffusionCell> cells;
    DiffuseBytes DiffusionTable::*diffuseBytes;  ///< for sources of 8 bits
};

/// R. W. Floyd and L. Steinberg, "An adaptive algorithm for spatial grayscale", Proc. SID 17,
/// 1976.
extern const DiffusionKernel floydSteinbergKernel;
/// D. Burkes, "Presentation of the Burkes error filter for use in preparing continuous-tone
/// images for presentation on bi-level devices", unpublished, 1988.
extern const DiffusionKernel burkesKernel;
/// P. Stucki, "MECCA, a multiple-error correcting computation algorithm for bi-level image
/// hard copy reproduction", IBM Research Report RZ1060, 1981.
extern const DiffusionKernel stuckiKernel;
/// J. F. Jarvis, C. N. Judice and W. H. Ninke, "A survey of techniques for the display of
/// continuous tone pictures on bilevel displays", Computer Graphics and Image Processing 5,
/// 1976.
extern const DiffusionKernel jarvisJudiceNinkeKernel;
/// F. Sierra, three-row filter, unpublished, 1989.
extern const DiffusionKernel sierraKernel;
/// R. L. Stevenson and G. R. Arce, "Binary display of hexagonally sampled continuous-tone
/// images", Journal of the Optical Society of America A 2(7), 1985.
extern const DiffusionKernel stevensonArceKernel;

/// Halftones `source` into the 1-bit image `target` of the same size, row by row from left to
/// right: levels up to 128 become 0 (black), higher ones 1 (white). The error of a source of other
/// depths than 8 is spread over it, which changes it; shares that fall outside the image are lost.
/// Raises the standard allocation exception when memory is short.
void diffuseError(RasterImage& source, RasterImage& target, const DiffusionKernel& kernel);
