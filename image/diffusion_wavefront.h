#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "image/error_diffusion.h"
#include "image/lanes.h"

// Error diffusion on eight rows at once. Each row runs a fixed number of columns behind the row
// above it, so that every pixel has all shares of the rows above before it gets the first one of
// its own row: the order is that of going through the page pixel by pixel.
//
// A lane is a row. What a row still needs of its surroundings - the levels of the columns ahead
// in it and of the columns around in the rows below, with the shares received so far - moves
// along with it in a few registers, its windows. A level that leaves the window over the row
// below enters the windows of the lane of that row. Nothing but the levels that leave the last
// lane goes back into the image, where the next eight rows find them.

/// Rows of bytes in memory.
struct ByteRows {
    std::uint8_t* first;
    std::ptrdiff_t stride;  ///< from one row to the next
    std::ptrdiff_t width;   ///< bytes used of a row
    std::ptrdiff_t height;

    bool contains(std::ptrdiff_t x, std::ptrdiff_t y) const {
        return x >= 0 && x < width && y >= 0 && y < height;
    }
    std::uint8_t* at(std::ptrdiff_t x, std::ptrdiff_t y) const { return first + y * stride + x; }
};

/// Diffuses the error of a page of grey bytes by `cells` of a kernel and stores the dots in
/// packed rows, 1 for white.
template <int divisor, const auto& cells>
class DiffusionWavefront {
public:
    static void run(const ByteRows& levels, const ByteRows& dots) {
        for (std::ptrdiff_t y = 0; y < levels.height; y += rows) {
            DiffusionWavefront(levels, dots, y).diffuseBand();
        }
    }

private:
    static constexpr int rows = Lanes::count;
    static constexpr int columns = 8;  // that are worked on between two looks at memory

    static constexpr int widest(int DiffusionCell::*offset) {
        int result = 0;
        for (const DiffusionCell& cell : cells) {
            result = std::max({result, cell.*offset, -(cell.*offset)});
        }
        return result;
    }
    static constexpr int reach = widest(&DiffusionCell::dx);
    static constexpr int depth = widest(&DiffusionCell::dy);
    /// Columns that a row lies behind the row above: a level leaves the window over the row
    /// below on the left just when it enters on the right of the next lane's window.
    static constexpr int skew = 2 * reach + 1;
    static constexpr int lastSkew = (rows - 1) * skew;

    // Levels are kept so high that the upper limit is the largest 16-bit number.
    static constexpr int raised = 0x7F00;

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

    /// What moves along with the rows: the levels in columns 0 to `reach` of a row, in columns
    /// -`reach` to `reach` of the rows below, and the dots decided last, one bit each.
    struct State {
        std::array<Lanes, std::size_t{reach} + 1> own;
        std::array<std::array<Lanes, 2 * std::size_t{reach} + 1>, std::size_t{depth}> below;
        Lanes dots;
    };

    DiffusionWavefront(const ByteRows& levels, const ByteRows& dots, std::ptrdiff_t top)
        : levels_(levels), dots_(dots), top_(top) {}

    // Time is the column of lane 0. The windows fill before the page's first column and empty
    // behind its last one.
    void diffuseBand() const {
        const bool wholeBand = top_ + rows + depth <= levels_.height;
        const std::ptrdiff_t firstInner = lastSkew + reach + 1;
        const std::ptrdiff_t end = levels_.width + lastSkew + reach + 1 + columns;
        State state;
        state.own.fill(allLanes(raised));
        for (auto& window : state.below) {
            window.fill(allLanes(raised));
        }
        state.dots = allLanes(0);
        for (std::ptrdiff_t time = -columns; time < end; time += columns) {
            if (wholeBand && time >= firstInner && time + columns + reach <= levels_.width) {
                diffuseBlock<true>(state, time);
            } else {
                diffuseBlock<false>(state, time);
            }
        }
    }

    // Inlined, like all that it calls: the state stays in registers.
    template <bool inner>
    [[gnu::always_inline]] void diffuseBlock(State& state, std::ptrdiff_t time) const {
        const std::array<Lanes, columns> entering = incomingColumns<inner>(time);
        if constexpr (inner) {
            diffuseInnerColumns(state, time, entering, std::make_index_sequence<columns>());
        } else {
            for (std::size_t i = 0; i < columns; ++i) {
                diffuseColumn<false>(state, time + static_cast<std::ptrdiff_t>(i), entering[i]);
            }
        }
        storeDots<inner>(state, time);
    }

    // Where lane r finds the byte that enters its lowest window.
    std::uint8_t* incoming(std::ptrdiff_t time, std::ptrdiff_t lane) const {
        return levels_.at(time + reach - lane * skew, top_ + depth + lane);
    }

    // Pixels outside the page may have any level, but are not looked for in memory.
    template <bool inner>
    std::array<Lanes, columns> incomingColumns(std::ptrdiff_t time) const {
        constexpr std::int8_t high = raised >> 8;
        if constexpr (inner) {
            return loadColumns(incoming(time, 0), levels_.stride - skew, high);
        } else {
            std::array<std::uint8_t, rows * columns> block{};
            for (std::size_t i = 0; i < block.size(); ++i) {
                const auto lane = static_cast<std::ptrdiff_t>(i / columns);
                const auto column = static_cast<std::ptrdiff_t>(i % columns);
                block[i] = levelAt<false>(time + column + reach - lane * skew, top_ + depth + lane);
            }
            return loadColumns(block.data(), columns, high);
        }
    }

    template <bool inner>
    std::uint8_t levelAt(std::ptrdiff_t x, std::ptrdiff_t y) const {
        return inner || levels_.contains(x, y) ? *levels_.at(x, y) : std::uint8_t{0};
    }

    template <std::size_t... i>
    [[gnu::always_inline]] void diffuseInnerColumns(State& state, std::ptrdiff_t time,
                                                    const std::array<Lanes, columns>& entering,
                                                    std::index_sequence<i...>) const {
        (diffuseColumn<true>(state, time + static_cast<std::ptrdiff_t>(i), entering[i]), ...);
    }

    template <bool inner>
    [[gnu::always_inline]] void diffuseColumn(State& state, std::ptrdiff_t time,
                                              Lanes entering) const {
        moveWindows<inner>(state, time, entering);
        const Lanes level = state.own[0] - allLanes(raised);
        Lanes white = isGreater(state.own[0], allLanes(raised + 128));
        Lanes error = level - (white & allLanes(255));
        if constexpr (!inner) {
            const Lanes inside = insidePage(time);
            white = white & inside;
            error = error & inside;
        }
        state.dots = state.dots + state.dots - white;
        spread(state, error, std::make_index_sequence<std::size(cells)>());
    }

    template <std::size_t... i>
    [[gnu::always_inline]] static void spread(State& state, Lanes error,
                                              std::index_sequence<i...>) {
        const Lanes negative = isNegative(error);
        const auto add = [&](Lanes& level, int weight) {
            const Lanes share = highProduct(error, factorOf(weight)) - negative;
            level = larger(saturatedSum(level, share), allLanes(raised));
        };
        (add(receiver<i>(state), cells[i].weight), ...);
    }

    template <std::size_t i>
    [[gnu::always_inline]] static Lanes& receiver(State& state) {
        constexpr DiffusionCell cell = cells[i];
        if constexpr (cell.dy == 0) {
            return state.own[cell.dx];
        } else {
            return state.below[cell.dy - 1][cell.dx + reach];
        }
    }

    template <std::size_t size>
    [[gnu::always_inline]] static void enter(std::array<Lanes, size>& window, Lanes last) {
        moveDown(window, std::make_index_sequence<size - 1>());
        window.back() = last;
    }
    template <typename Window, std::size_t... i>
    [[gnu::always_inline]] static void moveDown(Window& window, std::index_sequence<i...>) {
        ((window[i] = window[i + 1]), ...);
    }

    // All windows one column to the right: the levels that leave them on the left enter the
    // windows of the next lane.
    template <bool inner>
    [[gnu::always_inline]] void moveWindows(State& state, std::ptrdiff_t time,
                                            Lanes entering) const {
        std::array<Lanes, std::size_t{depth}> leaving;
        for (std::size_t k = 0; k < depth; ++k) {
            leaving[k] = state.below[k].front();
            storeLeaving<inner>(leaving[k], time, static_cast<std::ptrdiff_t>(k));
        }
        enter(state.own, handedDown<inner>(leaving[0], time, 0));
        for (std::size_t k = 0; k + 1 < depth; ++k) {
            enter(state.below[k],
                  handedDown<inner>(leaving[k + 1], time, static_cast<std::ptrdiff_t>(k) + 1));
        }
        enter(state.below[depth - 1], entering);
    }

    // Lane 0 takes over what the band before has left in the image, `row` rows below its own.
    template <bool inner>
    [[gnu::always_inline]] Lanes handedDown(Lanes leaving, std::ptrdiff_t time,
                                            std::ptrdiff_t row) const {
        const int level = raised + levelAt<inner>(time + reach, top_ + row);
        return movedUp(leaving, static_cast<std::int16_t>(level));
    }

    template <bool inner>
    [[gnu::always_inline]] void storeLeaving(Lanes leaving, std::ptrdiff_t time,
                                             std::ptrdiff_t row) const {
        const std::ptrdiff_t x = time - lastSkew - 1 - reach;
        const std::ptrdiff_t y = top_ + rows + row;
        if (inner || levels_.contains(x, y)) {
            *levels_.at(x, y) = static_cast<std::uint8_t>(lastLane(leaving));
        }
    }

    // -1 in lanes whose pixel lies on the page.
    Lanes insidePage(std::ptrdiff_t time) const {
        std::array<std::int16_t, rows> inside{};
        for (std::ptrdiff_t lane = 0; lane < rows; ++lane) {
            const bool in = levels_.contains(time - lane * skew, top_ + lane);
            inside[static_cast<std::size_t>(lane)] = in ? -1 : 0;
        }
        return loadLanes(inside.data());
    }

    // The last byte that each lane has completed: as rows lie behind each other, it ends up to
    // seven bits before the last one.
    template <bool inner>
    [[gnu::always_inline]] void storeDots(const State& state, std::ptrdiff_t time) const {
        std::array<std::int16_t, rows> dots{};
        storeLanes(state.dots, dots.data());
        for (std::ptrdiff_t lane = 0; lane < rows; ++lane) {
            const std::ptrdiff_t late = (lane * skew + 7) / 8;
            const std::ptrdiff_t surplus = late * 8 - lane * skew;
            const std::ptrdiff_t x = time / 8 - late;
            if (inner || dots_.contains(x, top_ + lane)) {
                *dots_.at(x, top_ + lane) =
                    static_cast<std::uint8_t>(dots[static_cast<std::size_t>(lane)] >> surplus);
            }
        }
    }

    const ByteRows levels_;
    const ByteRows dots_;
    const std::ptrdiff_t top_;
};
