#include "tests/reference/area_average.h"

#include <algorithm>

namespace reference {
namespace {

// Both as parts of a line that is samples * dots units long.
std::uint64_t sharedLength(unsigned sample, unsigned samples, unsigned dot, unsigned dots) {
    const std::uint64_t begin =
        std::max<std::uint64_t>(std::uint64_t{sample} * dots, std::uint64_t{dot} * samples);
    const std::uint64_t end = std::min<std::uint64_t>((std::uint64_t{sample} + 1) * dots,
                                                      (std::uint64_t{dot} + 1) * samples);
    return begin < end ? end - begin : 0;
}

}  // namespace

std::vector<std::uint16_t> areaAverage(const std::vector<std::uint16_t>& samples, unsigned width,
                                       unsigned height, unsigned scaledWidth,
                                       unsigned scaledHeight) {
    std::vector<std::uint16_t> dots;
    for (unsigned row = 0; row < scaledHeight; ++row) {
        for (unsigned column = 0; column < scaledWidth; ++column) {
            std::uint64_t sum = 0;
            for (unsigned y = 0; y < height; ++y) {
                for (unsigned x = 0; x < width; ++x) {
                    sum += samples[std::size_t{y} * width + x] *
                           sharedLength(x, width, column, scaledWidth) *
                           sharedLength(y, height, row, scaledHeight);
                }
            }
            const std::uint64_t area = std::uint64_t{width} * height;
            dots.push_back(static_cast<std::uint16_t>((2 * sum + area) / (2 * area)));
        }
    }
    return dots;
}

}  // namespace reference
