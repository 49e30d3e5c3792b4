#include <new>

#include "image/error_diffusion.h"
#include "image/raster_image.h"
#include "image/threshold_matrix.h"

namespace {

void halftone(RasterImage& source, RasterImage& target, unsigned long method) {
    switch (method) {
        case 0:
            return thresholdFixed(source, target);
        case 1:
            return thresholdOrdered(source, target);
        case 2:
            return diffuseError(source, target, burkesKernel);
        case 3:
            return diffuseError(source, target, stuckiKernel);
        case 4:
            return diffuseError(source, target, jarvisJudiceNinkeKernel);
        case 5:
            return diffuseError(source, target, sierraKernel);
        case 6:
            return diffuseError(source, target, stevensonArceKernel);
        case 7:
            return thresholdBayer(source, target);
        default:
            return diffuseError(source, target, floydSteinbergKernel);
    }
}

}  // namespace

bool RasterImage::Dither(long method) {
    if (!dib) {
        return false;
    }
    if (header.biBitCount == 1) {
        return true;
    }
    RasterImage result;
    result.CopyInfo(*this);
    if (result.Create(static_cast<std::uint32_t>(GetWidth()),
                      static_cast<std::uint32_t>(GetHeight()), 1, info.type) == nullptr) {
        setLastError(result.GetLastError());
        return false;
    }
    try {
        halftone(*this, result, static_cast<unsigned long>(method));
    } catch (const std::bad_alloc&) {
        setLastError("RasterImage::Create can't allocate memory");
        return false;
    }
    result.SetPaletteColor(0, 0, 0, 0, 0);
    result.SetPaletteColor(1, 255, 255, 255, 0);
    return Transfer(result);
}
