// The kernels on one photograph-like page, each beside its plain reference and all beside a
// copy of the page. Times are per pixel; compare those of one run only.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <span>
#include <vector>

#include "bench/test_page.h"
#include "enhance/edge_diffusion.h"
#include "enhance/gaussian.h"
#include "enhance/moment_threshold.h"
#include "enhance/tattoo_dithering.h"
#include "enhance/unsharp_mask.h"
#include "filter/current_printer.h"
#include "filter/tspl_printer.h"
#include "image/raster_image.h"
#include "intake/content/content_separation.h"
#include "lanes/choice.h"
#include "tests/reference/dither.h"
#include "tests/reference/stencil.h"
#include "tests/reference/stencil_blur.h"
#include "tests/reference/tone.h"
#include "tests/reference/transforms.h"
#include "tests/reference/tspl.h"

namespace {

constexpr PageSize size = {1200, 1800};

const std::vector<std::uint8_t>& page() {
    static const std::vector<std::uint8_t> photograph = testPage(size, PageContent::Photograph);
    return photograph;
}

void countPixels(benchmark::State& state) {
    using benchmark::Counter;
    state.counters["perPixel"] = Counter(static_cast<double>(size.pixels()),
                                         Counter::kIsIterationInvariantRate | Counter::kInvert);
}

// Runs an operation whose result is thrown away.
template <typename Operation>
void measure(benchmark::State& state, Operation operation) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(operation());
    }
    countPixels(state);
}

void load(RasterImage& image) {
    image.CreateFromArray(page().data(), size.width, size.height, 8, size.width, false);
}

// Tells the content of a page apart; the rows that come out are thrown away.
void separate(benchmark::State& state, const std::vector<std::uint8_t>& levels) {
    for (auto _ : state) {
        intake::content::ContentSeparation separation(
            {size.width, size.height, 300},
            [](std::span<const std::uint8_t> row) { benchmark::DoNotOptimize(row.data()); });
        for (std::size_t y = 0; y < size.height; ++y) {
            separation.push({levels.data() + y * size.width, size.width});
        }
    }
    countPixels(state);
}

// Runs an operation that changes an image; what comes before it is not measured.
template <typename Operation, typename Prepare = void (*)(RasterImage&)>
void measureOnImage(benchmark::State& state, Operation operation, Prepare prepare = load) {
    for (auto _ : state) {
        state.PauseTiming();
        RasterImage image;
        prepare(image);
        state.ResumeTiming();
        operation(image);
        benchmark::DoNotOptimize(image.GetBits());
    }
    countPixels(state);
}

reference::GreyImage referenceImage() {
    return reference::imageFromPacked(page(), size.width, size.height);
}

QMImage stencilImage() {
    return {static_cast<int>(size.width), static_cast<int>(size.height), QM_IMG_GRAY,
            page().data()};
}

void CopyPage(benchmark::State& state) {
    std::vector<std::uint8_t> copy(page().size());
    measure(state, [&copy] { return std::memcpy(copy.data(), page().data(), copy.size()); });
}
BENCHMARK(CopyPage);

void LoadPage(benchmark::State& state) {
    measure(state, [] {
        RasterImage image;
        load(image);
        return image.GetBits();
    });
}
BENCHMARK(LoadPage);

void SeparatePhotograph(benchmark::State& state) {
    separate(state, page());
}
BENCHMARK(SeparatePhotograph);

void SeparateLineArt(benchmark::State& state) {
    separate(state, testPage(size, PageContent::LineArt));
}
BENCHMARK(SeparateLineArt);

void SeparatePaper(benchmark::State& state) {
    separate(state, std::vector<std::uint8_t>(size.pixels()));
}
BENCHMARK(SeparatePaper);

void Dither(benchmark::State& state) {
    measureOnImage(state, [&state](RasterImage& image) { image.Dither(state.range(0)); });
}
BENCHMARK(Dither)->DenseRange(0, 8)->Unit(benchmark::kMillisecond);

void ReferenceDither(benchmark::State& state) {
    measure(state, [&state] {
        return reference::dither(state.range(0), size.width, size.height, page());
    });
}
BENCHMARK(ReferenceDither)->DenseRange(0, 8)->Unit(benchmark::kMillisecond);

void loadThresholded(RasterImage& image) {
    load(image);
    image.Dither(0);
}

void IncreaseBpp(benchmark::State& state) {
    measureOnImage(
        state, [](RasterImage& image) { image.IncreaseBpp(8); }, loadThresholded);
}
BENCHMARK(IncreaseBpp);

void Light(benchmark::State& state) {
    measureOnImage(state, [](RasterImage& image) { image.Light(25, 0); });
}
BENCHMARK(Light);

void ReferenceLight(benchmark::State& state) {
    reference::GreyImage image = referenceImage();
    measure(state, [&image] {
        reference::light(image, 25, 0);
        return image.bytes.data();
    });
}
BENCHMARK(ReferenceLight);

void Mirror(benchmark::State& state) {
    measureOnImage(state, [](RasterImage& image) { image.Mirror(); });
}
BENCHMARK(Mirror);

void ReferenceMirror(benchmark::State& state) {
    measure(state, [image = referenceImage()] { return reference::mirror(image); });
}
BENCHMARK(ReferenceMirror);

void Rotate180(benchmark::State& state) {
    measureOnImage(state, [](RasterImage& image) { image.Rotate180(); });
}
BENCHMARK(Rotate180);

void ReferenceRotate180(benchmark::State& state) {
    measure(state, [image = referenceImage()] { return reference::rotate180(image); });
}
BENCHMARK(ReferenceRotate180);

void Negative(benchmark::State& state) {
    measureOnImage(state, [](RasterImage& image) { image.Negative(); });
}
BENCHMARK(Negative);

void ReferenceNegative(benchmark::State& state) {
    measure(state, [image = referenceImage()] { return reference::negative(image); });
}
BENCHMARK(ReferenceNegative);

class SendingPrinter : public TsplPrinter {
public:
    using TsplPrinter::doPrintImage;
};

void PackAndSend(benchmark::State& state) {
    SendingPrinter printer;
    cups_page_header2_t header{};
    printer.setPageHeader(&header);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> sink(std::fopen("/dev/null", "w"),
                                                               std::fclose);
    *printer.getOutputStreams() = {sink.get()};
    sPrinter = &printer;
    measure(state, [&printer] {
        printer.doPrintImage(page().data(), size.width, size.height, size.width);
        return 0;
    });
    sPrinter = nullptr;
}
BENCHMARK(PackAndSend);

void ReferencePackAndSend(benchmark::State& state) {
    measure(state, [image = referenceImage()] { return reference::bitmapCommand(image); });
}
BENCHMARK(ReferencePackAndSend);

void Stencil(benchmark::State& state) {
    measure(state, [image = stencilImage()] { return qmTattooDithering(image).data[0]; });
}
BENCHMARK(Stencil)->Unit(benchmark::kMillisecond);

void ReferenceStencil(benchmark::State& state) {
    measure(state, [] { return reference::stencil(size.width, size.height, page(), false); });
}
BENCHMARK(ReferenceStencil)->Unit(benchmark::kMillisecond);

void StencilThreshold(benchmark::State& state) {
    measure(state, [image = stencilImage()] { return thresh_global_moments(image); });
}
BENCHMARK(StencilThreshold);

void StencilBlur(benchmark::State& state) {
    measure(state,
            [image = stencilImage()] { return enh_gaussian_filter_fast(image, 11, 3.0).data[0]; });
}
BENCHMARK(StencilBlur)->Unit(benchmark::kMillisecond);

void ReferenceStencilBlur(benchmark::State& state) {
    measure(state, [] { return reference::blurred(size.width, size.height, page(), 11, 3.0); });
}
BENCHMARK(ReferenceStencilBlur)->Unit(benchmark::kMillisecond);

void StencilSharpen(benchmark::State& state) {
    measure(state,
            [image = stencilImage()] { return enh_unsharp_mask(image, 300.0F, 11).data[0]; });
}
BENCHMARK(StencilSharpen)->Unit(benchmark::kMillisecond);

void StencilDiffusion(benchmark::State& state) {
    measure(state, [image = stencilImage()] { return edf_cus(image, 128).data[0]; });
}
BENCHMARK(StencilDiffusion)->Unit(benchmark::kMillisecond);

void ReferenceStencilDiffusion(benchmark::State& state) {
    measure(state, [] { return reference::diffuseStencil(size.width, size.height, page(), 128); });
}
BENCHMARK(ReferenceStencilDiffusion)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char* argv[]) {
    benchmark::AddCustomContext("kernels for", lanes::levelName());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
