#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "lanes/columns.h"
#include "lanes/lanes.h"

// Error diffusion on several rows at once. Each row runs a fixed number of columns behind the row
// above it, so that every pixel has all shares of the rows above before it gets the first one of
// its own row: the order, and with it every rounding, is that of going through the page pixel by
// pixel.
//
// A lane is a row. What a row still needs of its surroundings - the numbers of the columns ahead
// in it and of the columns around in the rows below, with the shares received so far - moves
// along with it in a few registers, its windows. A number that leaves the window over the row
// below enters the windows of the lane of that row. What leaves the last lane is carried to the
// next band of rows.

namespace lanes {

/// How far the error of a pixel goes.
struct Reach {
    int ahead;    ///< columns right of the pixel in its own row
    int behind;   ///< columns left of it in the rows below
    int besides;  ///< columns right of it in the rows below
    int depth;    ///< rows below
};

/// Columns that a row lies behind the row above: a number leaves the window over the row below on
/// the left just when it enters on the right of the next lane's window.
constexpr int skewOf(Reach reach) {
    return reach.behind + 1 + reach.ahead;
}

/// Columns that rows run beyond both ends of the page: the last lane is so far behind, what it
/// leaves `skewOf` more, and columns come together.
constexpr int marginOf(Reach reach, int rows) {
    return rows * skewOf(reach) + 3 * columnsAtOnce;
}

/// A row for every lane and some columns more on both sides, so that nothing has to be asked where
/// the page begins and ends: what lies outside is taken and written like the rest, and means
/// nothing.
template <typename Number, typename Level = ThisLevel>
class WideRows {
public:
    WideRows(std::ptrdiff_t rows, std::ptrdiff_t width, std::ptrdiff_t margin)
        : margin_(margin),
          stride_(width + 2 * margin),
          numbers_(
              new Number[static_cast<std::size_t>(rows) * static_cast<std::size_t>(stride_)]()) {}
    ~WideRows() { delete[] numbers_; }
    WideRows(const WideRows&) = delete;
    WideRows& operator=(const WideRows&) = delete;

    std::ptrdiff_t stride() const { return stride_; }
    Number* row(std::ptrdiff_t i) { return numbers_ + i * stride_ + margin_; }

private:
    std::ptrdiff_t margin_;
    std::ptrdiff_t stride_;
    Number* numbers_;  ///< owned; what a class of the library leaves to the linker knows no levels
};

/// What moves along with the rows: the numbers in columns 0 to `ahead` of a row, and around it in
/// the rows below.
template <typename Numbers, Reach reach>
struct Windows {
    std::array<Numbers, std::size_t{reach.ahead + 1}> own;
    std::array<std::array<Numbers, std::size_t{reach.behind + 1 + reach.besides}>,
               std::size_t{reach.depth}>
        below;
};

template <typename Window, std::size_t... i>
[[gnu::always_inline]] inline void moveDown(Window& window, std::index_sequence<i...> /*places*/) {
    ((window[i] = window[i + 1]), ...);
}

/// A window one column further.
template <typename Numbers, std::size_t size>
[[gnu::always_inline]] inline void enter(std::array<Numbers, size>& window, const Numbers& last) {
    moveDown(window, std::make_index_sequence<size - 1>());
    window.back() = last;
}

/// A band of rows at a time of a page, with what one band leaves to the next. What lies in the rows
/// is put in and taken out through `levels`, `carried` and `dots`.
///
/// `Arithmetic` says what is diffused and how. It has
///
/// - Numbers, the lanes of what is diffused, and State, derived from Windows<Numbers, reach>, with
///   dots, a bit for every column, the last decided in the lowest one;
/// - reach; border, columns and rows around a pixel in which it must know whether there is a page;
///   columnsPerByte of dots; levelsBelow, whether the bytes of a row come into the lowest window,
///   as what the row holds at first, or to the pixel;
/// - start(): the state of a band before its first column;
/// - entering(level): what comes into the lowest window;
/// - decide<inner>(state, level, time, within): the dots of one column, and the shares of their
///   error; within(n) has the lanes whose pixel lies on the page with n columns and rows around it,
///   and is not asked in inner columns, where all do;
/// - store(dots, x, row): the dots that a lane has in eight columns, of which the first is x.
template <typename Arithmetic>
class Wavefront {
    using Numbers = typename Arithmetic::Numbers;
    using Number = typename Numbers::Number;
    using State = typename Arithmetic::State;
    using Mask = MaskOf<Numbers>;
    using Index = std::ptrdiff_t;
    static constexpr Reach reach = Arithmetic::reach;
    static_assert(reach.depth == 1 || reach.ahead == reach.besides);

public:
    static constexpr int rows = Numbers::count;
    static constexpr int depth = reach.depth;
    static constexpr int skew = skewOf(reach);

    /// What else is given goes to the arithmetic.
    template <typename... Arguments>
    Wavefront(Index width, Index height, Arguments... arguments)
        : arithmetic_(arguments...),
          width_(width),
          height_(height),
          levels_(rows, width, margin),
          carried_(depth, width, margin),
          dots_(rows, (width + Arithmetic::columnsPerByte - 1) / Arithmetic::columnsPerByte,
                margin) {}

    /// The bytes of a lane: of its own row, or of the one `depth` rows below.
    std::uint8_t* levels(int lane) { return levels_.row(lane); }
    /// What the rows of the band, from the first on, hold before it begins.
    Number* carried(int row) { return carried_.row(row); }
    /// The dots of a lane's row.
    const std::uint8_t* dots(int lane) { return dots_.row(lane); }

    /// Decides the dots of the band that begins in row `top`. Time is the column of lane 0; the
    /// windows fill before the page's first column and empty behind its last one.
    void diffuseBand(Index top) {
        const bool innerRows =
            top >= Arithmetic::border && top + rows + Arithmetic::border <= height_;
        const Index end = width_ + lastSkew + reach.behind + 1 + columnsAtOnce;
        top_ = top;
        // By value: the compiler cannot know that the bytes written to rows are none of this
        // object's.
        const Memory memory = {levels_.row(0),  levels_.stride() - skew,
                               carried_.row(0), carried_.stride(),
                               dots_.row(0),    dots_.stride()};
        State state = arithmetic_.start();
        for (Index block = -1; block * columnsAtOnce < end; ++block) {
            const Index time = block * columnsAtOnce;
            if (innerRows && time - lastSkew >= Arithmetic::border &&
                time + columnsAtOnce + Arithmetic::border <= width_) {
                diffuseBlock<true>(state, memory, block);
            } else {
                diffuseBlock<false>(state, memory, block);
            }
        }
    }

private:
    static constexpr int lastSkew = (rows - 1) * skew;
    static constexpr int margin = marginOf(reach, rows);
    static constexpr int place = Arithmetic::levelsBelow ? reach.besides : 0;

    struct Memory {
        const std::uint8_t* levels;
        Index levelDistance;  ///< from the byte of a lane to that of the next
        Number* carried;
        Index carriedStride;
        std::uint8_t* dots;
        Index dotStride;
    };

    // Inlined, like all that it calls: the state stays in registers.
    template <bool inner>
    [[gnu::always_inline]] void diffuseBlock(State& state, const Memory& memory, Index block) {
        const Index time = block * columnsAtOnce;
        const std::array<Numbers, columnsAtOnce> levels =
            loadColumns<Numbers>(memory.levels + time + place, memory.levelDistance);
        diffuseColumns<inner>(state, memory, time, levels,
                              std::make_index_sequence<columnsAtOnce>());
        std::array<typename Mask::Number, std::size_t{rows}> dots;
        store(state.dots, dots.data());
        for (Index lane = 0; lane < rows; ++lane) {
            Arithmetic::store(dots[static_cast<std::size_t>(lane)], time - lane * skew,
                              memory.dots + lane * memory.dotStride);
        }
    }

    template <bool inner, std::size_t... i>
    [[gnu::always_inline]] void diffuseColumns(State& state, const Memory& memory, Index time,
                                               const std::array<Numbers, columnsAtOnce>& levels,
                                               std::index_sequence<i...> /*columns*/) {
        (diffuseColumn<inner>(state, memory, time + static_cast<Index>(i), levels[i]), ...);
    }

    template <bool inner>
    [[gnu::always_inline]] void diffuseColumn(State& state, const Memory& memory, Index time,
                                              const Numbers& level) {
        moveWindows(state, memory, time, Arithmetic::entering(level));
        Arithmetic::template decide<inner>(
            state, level, time, [this, time](int border) { return within(time, border); });
    }

    // All windows one column to the right: the numbers that leave them on the left enter the
    // windows of the next lane. Lane 0 takes over what the band before has left.
    [[gnu::always_inline]] static void moveWindows(State& state, const Memory& memory, Index time,
                                                   const Numbers& entering) {
        std::array<Numbers, std::size_t{depth}> handedDown;
        for (int k = 0; k < depth; ++k) {
            Number* row = memory.carried + k * memory.carriedStride;
            const Numbers leaving = state.below[static_cast<std::size_t>(k)].front();
            handedDown[static_cast<std::size_t>(k)] = movedUp(leaving, row[time + reach.ahead]);
            row[time - lastSkew - 1 - reach.behind] = lastLane(leaving);
        }
        enter(state.own, handedDown.front());
        for (std::size_t k = 0; k + 1 < depth; ++k) {
            enter(state.below[k], handedDown[k + 1]);
        }
        enter(state.below.back(), entering);
    }

    [[gnu::always_inline]] Mask within(Index time, int border) const {
        const auto number = [](Index value) {
            constexpr Index far = 16384;  // further than any lane, and a number of 16 bits
            return all<Mask>(static_cast<typename Mask::Number>(std::clamp(value, -far, far)));
        };
        const Mask lanes = laneTimes(1);
        const Mask behind = laneTimes(skew);
        return (number(time - border + 1) > behind) & (behind > number(time - width_ + border)) &
               (lanes > number(border - 1 - top_)) & (number(height_ - border - top_) > lanes);
    }

    [[gnu::always_inline]] static Mask laneTimes(int factor) {
        std::array<typename Mask::Number, std::size_t{rows}> numbers{};
        for (int lane = 0; lane < rows; ++lane) {
            numbers[static_cast<std::size_t>(lane)] =
                static_cast<typename Mask::Number>(lane * factor);
        }
        return load<Mask>(numbers.data());
    }

    Arithmetic arithmetic_;
    Index width_;
    Index height_;
    Index top_ = 0;
    WideRows<std::uint8_t> levels_;
    WideRows<Number> carried_;
    WideRows<std::uint8_t> dots_;
};

}  // namespace lanes
