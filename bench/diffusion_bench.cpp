// Every error diffusion beside its plain reference, on a photograph-like page: ns per pixel, the
// smallest of several turns. Needs no library, so that it runs under an emulator as well.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <vector>

#include "bench/test_page.h"
#include "enhance/edge_diffusion.h"
#include "image/raster_image.h"
#include "lanes/choice.h"
#include "tests/reference/dither.h"
#include "tests/reference/stencil.h"

namespace {

constexpr PageSize size = {600, 900};
constexpr int turns = 7;
constexpr int stencilThreshold = 128;

/// An operation's time in ns per pixel; what `prepare` makes for it is not measured.
template <typename Prepare, typename Operation>
double timeOf(Prepare prepare, Operation operation) {
    using Clock = std::chrono::steady_clock;
    double best = 1e9;
    for (int turn = 0; turn < turns; ++turn) {
        auto object = prepare();
        const auto start = Clock::now();
        operation(object);
        const std::chrono::duration<double, std::nano> time = Clock::now() - start;
        best = std::min(best, time.count() / static_cast<double>(size.pixels()));
    }
    return best;
}

void print(const char* name, double here, double reference) {
    std::printf("%-24s %8.2f %11.2f %8.2f\n", name, here, reference, reference / here);
}

void measureDither(const char* name, long method, const std::vector<std::uint8_t>& page) {
    const double here = timeOf(
        [&page] {
            auto image = std::make_unique<RasterImage>();
            image->CreateFromArray(page.data(), size.width, size.height, 8, size.width, false);
            return image;
        },
        [method](const std::unique_ptr<RasterImage>& image) { image->Dither(method); });
    const double reference =
        timeOf([&page] { return page; },
               [method](const std::vector<std::uint8_t>& levels) {
                   return reference::dither(method, size.width, size.height, levels);
               });
    print(name, here, reference);
}

void measureStencil(const std::vector<std::uint8_t>& page) {
    const double here = timeOf(
        [&page] {
            return QMImage(static_cast<int>(size.width), static_cast<int>(size.height), QM_IMG_GRAY,
                           page.data());
        },
        [](const QMImage& image) { return edf_cus(image, stencilThreshold); });
    const double reference = timeOf([&page] { return page; },
                                    [](const std::vector<std::uint8_t>& levels) {
                                        return reference::diffuseStencil(size.width, size.height,
                                                                         levels, stencilThreshold);
                                    });
    print("stencil", here, reference);
}

}  // namespace

int main() {
    constexpr struct {
        const char* name;
        long method;
    } diffusions[] = {{"Burkes", 2}, {"Stucki", 3},         {"Jarvis-Judice-Ninke", 4},
                      {"Sierra", 5}, {"Stevenson-Arce", 6}, {"Floyd-Steinberg", 8}};
    const std::vector<std::uint8_t> page = testPage(size, PageContent::Photograph);
    std::printf("kernels for: %s\n", lanes::levelName());
    std::printf("%-24s %8s %11s %8s\n", "ns per pixel", "here", "reference", "ratio");
    for (const auto& diffusion : diffusions) {
        measureDither(diffusion.name, diffusion.method, page);
    }
    measureStencil(page);
}
