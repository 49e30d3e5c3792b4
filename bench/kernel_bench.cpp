// The kernels on one photograph-like page, beside a plain copy of it: read the times as ratios
// to CopyPage of the same run.

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

#include "enhance/tattoo_dithering.h"
#include "image/raster_image.h"

namespace {

constexpr unsigned width = 808;
constexpr unsigned height = 1218;

std::vector<std::uint8_t> greyPage() {
    std::vector<std::uint8_t> page;
    unsigned noise = 1;
    for (unsigned y = 0; y < height; ++y) {
        for (unsigned x = 0; x < width; ++x) {
            noise = noise * 48271 % 2147483647;
            page.push_back(static_cast<std::uint8_t>((x + y) / 9 + noise % 24));
        }
    }
    return page;
}

void load(RasterImage& image, const std::vector<std::uint8_t>& page) {
    image.CreateFromArray(page.data(), width, height, 8, width, false);
}

// Runs one operation on a freshly loaded page, outside the measured time.
template <typename Operation>
void measure(benchmark::State& state, Operation operation) {
    const std::vector<std::uint8_t> page = greyPage();
    for (auto _ : state) {
        state.PauseTiming();
        RasterImage image;
        load(image, page);
        state.ResumeTiming();
        operation(image);
        benchmark::DoNotOptimize(image.GetBits());
    }
    state.SetItemsProcessed(state.iterations() * width * height);
}

void CopyPage(benchmark::State& state) {
    const std::vector<std::uint8_t> page = greyPage();
    std::vector<std::uint8_t> copy(page.size());
    for (auto _ : state) {
        std::memcpy(copy.data(), page.data(), page.size());
        benchmark::DoNotOptimize(copy.data());
    }
    state.SetItemsProcessed(state.iterations() * width * height);
}
BENCHMARK(CopyPage);

void Dither(benchmark::State& state) {
    measure(state, [&state](RasterImage& image) { image.Dither(state.range(0)); });
}
BENCHMARK(Dither)->DenseRange(0, 8)->Unit(benchmark::kMillisecond);

void Light(benchmark::State& state) {
    measure(state, [](RasterImage& image) { image.Light(25, 0); });
}
BENCHMARK(Light);

void Mirror(benchmark::State& state) {
    measure(state, [](RasterImage& image) { image.Mirror(); });
}
BENCHMARK(Mirror);

void Negative(benchmark::State& state) {
    measure(state, [](RasterImage& image) { image.Negative(); });
}
BENCHMARK(Negative);

void Stencil(benchmark::State& state) {
    const std::vector<std::uint8_t> page = greyPage();
    const QMImage image(width, height, QM_IMG_GRAY, page.data());
    for (auto _ : state) {
        const QMImage stencil = qmTattooDithering(image);
        benchmark::DoNotOptimize(stencil.data);
    }
    state.SetItemsProcessed(state.iterations() * width * height);
}
BENCHMARK(Stencil)->Unit(benchmark::kMillisecond);

}  // namespace
