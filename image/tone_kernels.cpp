#include "image/tone_kernels.h"

#include <array>
#include <cstring>

#include "lanes/conversion.h"

namespace {

using lanes::all;
using Floats = lanes::Lanes<float, 16>;
constexpr std::size_t block = Floats::count;

// Limiting before the truncation keeps huge values inside the range of 32 bits.
[[gnu::always_inline]] inline void lightBlock(std::uint8_t* levels, const ToneLine& line) {
    const Floats level = lanes::asFloats<Floats::count>(lanes::loadBytes(levels));
    Floats value = (level - all<Floats>(128.0F)) * all<Floats>(line.slope);
    value = value + all<Floats>(line.offset);
    value = value + all<Floats>(0.5F);
    value = smaller(larger(value, all<Floats>(0.0F)), all<Floats>(255.0F));
    lanes::storeLimited(lanes::integersOf(value), levels);
}

void light(std::uint8_t* row, std::size_t width, const ToneLine& line) {
    for (; width >= block; width -= block, row += block) {
        lightBlock(row, line);
    }
    std::array<std::uint8_t, block> rest{};
    std::memcpy(rest.data(), row, width);
    lightBlock(rest.data(), line);
    std::memcpy(row, rest.data(), width);
}

}  // namespace

template <>
const ToneFunctions ToneKernels<lanes::ThisLevel>::table = {light};
