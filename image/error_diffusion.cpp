#include "image/error_diffusion.h"

#include <algorithm>

#include "image/diffusion_cells.h"
#include "image/raster_image.h"
#include "lanes/choice.h"

namespace {

void spread(RasterImage& source, std::int64_t x, std::int64_t y, int error,
            const DiffusionKernel& kernel) {
    for (const DiffusionCell& cell : kernel.cells) {
        const std::int64_t share = std::int64_t{error} * cell.weight / kernel.divisor;
        const std::int64_t level = source.GetPixelIndex(x + cell.dx, y + cell.dy) + share;
        source.SetPixelIndex(x + cell.dx, y + cell.dy,
                             static_cast<std::uint8_t>(std::clamp<std::int64_t>(level, 0, 255)));
    }
}

// Any depth, pixel by pixel. What lies beyond the depth of a pixel is lost.
void diffuseByPixel(RasterImage& source, RasterImage& target, const DiffusionKernel& kernel) {
    for (std::int64_t y = 0; y < source.GetHeight(); ++y) {
        for (std::int64_t x = 0; x < source.GetWidth(); ++x) {
            const int level = source.BlindGetPixelIndex(x, y);
            const bool white = level > 128;
            target.SetPixelIndex(x, y, white ? 1 : 0);
            spread(source, x, y, white ? level - 255 : level, kernel);
        }
    }
}

template <typename Byte>
ByteRows<Byte> rowsOf(RasterImage& image, std::ptrdiff_t width) {
    return {image.GetBits(), static_cast<std::ptrdiff_t>(image.GetEffWidth()), width,
            image.GetHeight()};
}

}  // namespace

const DiffusionKernel floydSteinbergKernel = {16, floydSteinbergCells,
                                              &DiffusionTable::floydSteinberg};
const DiffusionKernel burkesKernel = {32, burkesCells, &DiffusionTable::burkes};
const DiffusionKernel stuckiKernel = {42, stuckiCells, &DiffusionTable::stucki};
const DiffusionKernel jarvisJudiceNinkeKernel = {48, jarvisJudiceNinkeCells,
                                                 &DiffusionTable::jarvisJudiceNinke};
const DiffusionKernel sierraKernel = {32, sierraCells, &DiffusionTable::sierra};
const DiffusionKernel stevensonArceKernel = {200, stevensonArceCells,
                                             &DiffusionTable::stevensonArce};

void diffuseError(RasterImage& source, RasterImage& target, const DiffusionKernel& kernel) {
    if (source.GetHeader().biBitCount == 8) {
        const std::ptrdiff_t width = source.GetWidth();
        const DiffuseBytes diffuse = lanes::best<DiffusionKernels>().*kernel.diffuseBytes;
        diffuse(rowsOf<const std::uint8_t>(source, width),
                rowsOf<std::uint8_t>(target, (width + 7) / 8));
    } else {
        diffuseByPixel(source, target, kernel);
    }
}
