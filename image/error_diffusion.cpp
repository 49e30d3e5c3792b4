#include "image/error_diffusion.h"

#include <algorithm>

#include "image/diffusion_wavefront.h"
#include "image/raster_image.h"

namespace {

constexpr DiffusionCell floydSteinbergCells[] = {
    {+1, 0, 7},  //
    {-1, 1, 3},
    {0, 1, 5},
    {+1, 1, 1},  //
};

constexpr DiffusionCell burkesCells[] = {
    {+1, 0, 8}, {+2, 0, 4},                                     //
    {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {+1, 1, 4}, {+2, 1, 2},  //
};

constexpr DiffusionCell stuckiCells[] = {
    {+1, 0, 8}, {+2, 0, 4},                                     //
    {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {+1, 1, 4}, {+2, 1, 2},  //
    {-2, 2, 1}, {-1, 2, 2}, {0, 2, 4}, {+1, 2, 2}, {+2, 2, 1},  //
};

constexpr DiffusionCell jarvisJudiceNinkeCells[] = {
    {+1, 0, 7}, {+2, 0, 5},                                     //
    {-2, 1, 3}, {-1, 1, 5}, {0, 1, 7}, {+1, 1, 5}, {+2, 1, 3},  //
    {-2, 2, 1}, {-1, 2, 3}, {0, 2, 5}, {+1, 2, 3}, {+2, 2, 1},  //
};

constexpr DiffusionCell sierraCells[] = {
    {+1, 0, 5}, {+2, 0, 3},                                      //
    {-2, 1, 2}, {-1, 1, 4}, {0, 1, 5},  {+1, 1, 4}, {+2, 1, 2},  //
    {-1, 2, 2}, {0, 2, 3},  {+1, 2, 2},                          //
};

constexpr DiffusionCell stevensonArceCells[] = {
    {+2, 0, 32},                                         //
    {-3, 1, 12}, {-1, 1, 26}, {+1, 1, 30}, {+3, 1, 16},  //
    {-2, 2, 12}, {0, 2, 26},  {+2, 2, 12},               //
    {-3, 3, 5},  {-1, 3, 12}, {+1, 3, 12}, {+3, 3, 5},   //
};

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

ByteRows rowsOf(RasterImage& image, std::ptrdiff_t width) {
    return {image.GetBits(), static_cast<std::ptrdiff_t>(image.GetEffWidth()), width,
            image.GetHeight()};
}

// Eight bits: the same in a wavefront over the bytes.
template <int divisor, const auto& cells>
void diffuseBytes(RasterImage& source, RasterImage& target) {
    const std::ptrdiff_t width = source.GetWidth();
    DiffusionWavefront<divisor, cells>::run(rowsOf(source, width), rowsOf(target, (width + 7) / 8));
}

}  // namespace

const DiffusionKernel floydSteinbergKernel = {16, floydSteinbergCells,
                                              diffuseBytes<16, floydSteinbergCells>};
const DiffusionKernel burkesKernel = {32, burkesCells, diffuseBytes<32, burkesCells>};
const DiffusionKernel stuckiKernel = {42, stuckiCells, diffuseBytes<42, stuckiCells>};
const DiffusionKernel jarvisJudiceNinkeKernel = {48, jarvisJudiceNinkeCells,
                                                 diffuseBytes<48, jarvisJudiceNinkeCells>};
const DiffusionKernel sierraKernel = {32, sierraCells, diffuseBytes<32, sierraCells>};
const DiffusionKernel stevensonArceKernel = {200, stevensonArceCells,
                                             diffuseBytes<200, stevensonArceCells>};

void diffuseError(RasterImage& source, RasterImage& target, const DiffusionKernel& kernel) {
    if (source.GetHeader().biBitCount == 8) {
        kernel.diffuseBytes(source, target);
    } else {
        diffuseByPixel(source, target, kernel);
    }
}
