#include "image/diffusion_kernels.h"

#include <algorithm>
#include <iterator>

#include "image/diffusion_cells.h"
#include "lanes/native.h"
#include "lanes/wavefront.h"

namespace {

using lanes::all;
using lanes::Lanes;
using lanes::Reach;

constexpr int widest(std::span<const DiffusionCell> cells, int DiffusionCell::*offset) {
    int result = 0;
    for (const DiffusionCell& cell : cells) {
        result = std::max({result, cell.*offset, -(cell.*offset)});
    }
    return result;
}

constexpr Reach reachOf(std::span<const DiffusionCell> cells) {
    const int sideways = widest(cells, &DiffusionCell::dx);
    return {sideways, sideways, sideways, widest(cells, &DiffusionCell::dy)};
}

/// The error of levels of 0 to 255, which 16 bits hold, in whole numbers.
template <int divisor, const auto& cells>
class LevelDiffusion {
public:
    using Numbers = Lanes<std::int16_t, lanes::numbersPerRegister<std::int16_t>>;
    static constexpr Reach reach = reachOf(cells);
    static constexpr bool levelsBelow = true;
    static constexpr int border = 0;
    static constexpr int columnsPerByte = 8;

    struct State : lanes::Windows<Numbers, reach> {
        Numbers dots;  ///< those decided last, one bit each
    };

    /// What a level is kept as: so high that its upper limit is the largest 16-bit number.
    static constexpr std::int16_t raised = 0x7F00;

    static State start() { return {}; }

    [[gnu::always_inline]] static Numbers entering(const Numbers& level) {
        return level + all<Numbers>(raised);
    }

    template <bool inner, typename Within>
    [[gnu::always_inline]] static void decide(State& state, const Numbers& /*level*/,
                                              std::ptrdiff_t /*time*/, Within within) {
        Numbers white = state.own[0] > all<Numbers>(raised + 128);
        Numbers error = state.own[0] - all<Numbers>(raised) - (all<Numbers>(255) & white);
        if constexpr (!inner) {
            const Numbers inside = within(0);
            white = white & inside;
            error = error & inside;
        }
        state.dots = state.dots + state.dots - white;
        spread(state, error, std::make_index_sequence<std::size(cells)>());
    }

    // The last byte that the lane has completed ends up to seven columns before the last one.
    [[gnu::always_inline]] static void store(std::int16_t dots, std::ptrdiff_t x,
                                             std::uint8_t* row) {
        row[x >> 3] = static_cast<std::uint8_t>(dots >> (x & 7));
    }

private:
    // The quotient of two 16-bit numbers as a product with this, cut off below 1/65536. It is
    // slightly too large, by less than what separates quotients.
    static constexpr std::int16_t factorOf(int weight) {
        return static_cast<std::int16_t>(weight * 65536 / divisor + 1);
    }
    static constexpr bool sharesAreExact() {
        for (const DiffusionCell& cell : cells) {
            for (int error = -127; error <= 128; ++error) {
                const int product = error * factorOf(cell.weight);
                const int share = (product >> 16) + (error < 0 ? 1 : 0);
                if (share != error * cell.weight / divisor) {
                    return false;
                }
            }
        }
        return true;
    }
    static_assert(sharesAreExact());

    template <std::size_t... i>
    [[gnu::always_inline]] static void spread(State& state, const Numbers& error,
                                              std::index_sequence<i...> /*cells*/) {
        const Numbers negative = all<Numbers>(0) > error;
        const auto add = [&](Numbers & level, int weight) __attribute__((always_inline)) {
            const Numbers share = highProduct(error, factorOf(weight)) - negative;
            level = larger(saturatedSum(level, share), all<Numbers>(raised));
        };
        (add(receiver<i>(state), cells[i].weight), ...);
    }

    template <std::size_t i>
    [[gnu::always_inline]] static Numbers& receiver(State& state) {
        constexpr DiffusionCell cell = cells[i];
        if constexpr (cell.dy == 0) {
            return state.own[cell.dx];
        } else {
            return state.below[cell.dy - 1][cell.dx + reach.behind];
        }
    }
};

template <typename Number>
void raise(const std::uint8_t* levels, std::ptrdiff_t width, Number raised, Number* numbers) {
    for (std::ptrdiff_t x = 0; x < width; ++x) {
        numbers[x] = static_cast<Number>(levels[x] + raised);
    }
}

template <int divisor, const auto& cells>
void diffuse(const ByteRows<const std::uint8_t>& levels, const ByteRows<std::uint8_t>& dots) {
    using Diffusion = LevelDiffusion<divisor, cells>;
    using Wavefront = lanes::Wavefront<Diffusion>;
    Wavefront wavefront(levels.width, levels.height);
    for (int row = 0; row < std::min<std::ptrdiff_t>(Wavefront::depth, levels.height); ++row) {
        raise(levels.row(row), levels.width, Diffusion::raised, wavefront.carried(row));
    }
    for (std::ptrdiff_t top = 0; top < levels.height; top += Wavefront::rows) {
        const auto rowsFrom = [&](std::ptrdiff_t first) {
            return static_cast<int>(
                std::clamp<std::ptrdiff_t>(levels.height - first, 0, Wavefront::rows));
        };
        const std::ptrdiff_t below = top + Wavefront::depth;
        for (int lane = 0; lane < rowsFrom(below); ++lane) {
            std::copy_n(levels.row(below + lane), levels.width, wavefront.levels(lane));
        }
        wavefront.diffuseBand(top);
        for (int lane = 0; lane < rowsFrom(top); ++lane) {
            std::copy_n(wavefront.dots(lane), dots.width, dots.row(top + lane));
        }
    }
}

}  // namespace

template <>
const DiffusionTable DiffusionKernels<lanes::ThisLevel>::table = {
    diffuse<16, floydSteinbergCells>,    diffuse<32, burkesCells>, diffuse<42, stuckiCells>,
    diffuse<48, jarvisJudiceNinkeCells>, diffuse<32, sierraCells>, diffuse<200, stevensonArceCells>,
};
