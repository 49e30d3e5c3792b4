#include "enhance/edge_kernels.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "lanes/byte_words.h"
#include "lanes/wavefront.h"

namespace {

using lanes::all;
using lanes::chosen;
using lanes::Lanes;

// Eight dots as bytes of 255 and 0, by their bits.
constexpr std::array<ByteWord, 256> dotBytes = [] {
    std::array<ByteWord, 256> words{};
    for (std::size_t bits = 0; bits < words.size(); ++bits) {
        words[bits] = unpackedBits(static_cast<std::uint8_t>(bits)) * 255;
    }
    return words;
}();

// What a white dot takes from its level, by the black dots left of it and above.
constexpr float takenBeside(int blackDots) {
    constexpr float blackNeighbourRelief = 0.1427F;
    float relief = 0.0F;
    for (int i = 0; i < blackDots; ++i) {
        relief = relief + blackNeighbourRelief;
    }
    return (1.0F - relief) * -255.0F;
}

/// Errors in single precision, each step rounded.
class FloatDiffusion {
public:
    using Numbers = Lanes<float, EdgeBands::rows>;
    using Mask = lanes::MaskOf<Numbers>;
    static constexpr lanes::Reach reach = {2, 2, 1, 1};
    static constexpr bool levelsBelow = false;
    static constexpr int border = 1;
    static constexpr int columnsPerByte = 1;

private:
    static constexpr int skew = lanes::skewOf(reach);
    static constexpr int lastSkew = (EdgeBands::rows - 1) * skew;

public:
    struct State : lanes::Windows<Numbers, reach> {
        std::array<Mask, skew> black;  ///< the last dots, oldest first
        Mask dots;                     ///< one bit each
        Numbers threshold;
        std::int32_t* blackAbove;  ///< the last row of the band before
    };

    FloatDiffusion(std::ptrdiff_t width, float threshold)
        : threshold_(threshold), blackAbove_(1, width, lanes::marginOf(reach, EdgeBands::rows)) {}

    State start() {
        State state{};
        state.threshold = all<Numbers>(threshold_);
        state.blackAbove = blackAbove_.row(0);
        return state;
    }

    [[gnu::always_inline]] static Numbers entering(const Numbers& /*level*/) {
        return all<Numbers>(0.0F);
    }

    template <bool inner, typename Within>
    [[gnu::always_inline]] static void decide(State& state, const Numbers& level,
                                              std::ptrdiff_t time, Within within) {
        const Numbers value = state.own[0] + level;
        const Mask white = value > state.threshold;
        const Mask left = state.black.back();
        const Mask above = blackAbove(state, time);
        Mask isOne = left | above;
        Mask areTwo = left & above;
        if constexpr (!inner) {
            isOne = isOne & within(border);
            areTwo = areTwo & within(border);
        }
        const Numbers taken =
            chosen(areTwo, all<Numbers>(takenBeside(2)),
                   chosen(isOne, all<Numbers>(takenBeside(1)), all<Numbers>(takenBeside(0))));
        Numbers error = chosen(white, taken + value, value);
        if constexpr (!inner) {
            error = error & within(0);
        }
        spread(state, error);
        state.dots = state.dots + state.dots - white;
        lanes::enter(state.black, ~white);
    }

    // Bytes of 255 and 0.
    [[gnu::always_inline]] static void store(std::int32_t dots, std::ptrdiff_t x,
                                             std::uint8_t* row) {
        storeWord(dotBytes[static_cast<std::uint8_t>(dots)], row + x);
    }

private:
    // As the errors do, the dots of a row reach the lane of the row below, and those of the last
    // lane the next band.
    [[gnu::always_inline]] static Mask blackAbove(const State& state, std::ptrdiff_t time) {
        std::int32_t* row = state.blackAbove;
        const Mask leaving = state.black.front();
        const Mask above = movedUp(leaving, row[time]);
        row[time - lastSkew - skew] = lastLane(leaving);
        return above;
    }

    [[gnu::always_inline]] static void spread(State& state, const Numbers& error) {
        const auto add = [&error](Numbers & receiver, float weight) __attribute__((always_inline)) {
            receiver = receiver + error * all<Numbers>(weight);
        };
        add(state.own[1], 0.505786F);
        add(state.own[2], -0.052926F);
        add(state.below[0][0], 0.226194F);
        add(state.below[0][1], 0.128835F);
        add(state.below[0][2], 0.243191F);
        // The first share that the pixel gets: 0 and the share are the share.
        state.below[0][3] = error * all<Numbers>(-0.111078F);
    }

    float threshold_;
    lanes::WideRows<std::int32_t> blackAbove_;
};

class LevelBands : public EdgeBands {
public:
    LevelBands(int width, int height, float threshold)
        : width_(width), height_(height), wavefront_(width, height, width, threshold) {}

    void diffuse(const EdgeBand& band) override {
        const int count = std::min(rows, height_ - top_);
        for (int lane = 0; lane < count; ++lane) {
            std::copy_n(band.levels + lane * band.levelStride, width_, wavefront_.levels(lane));
        }
        wavefront_.diffuseBand(top_);
        for (int lane = 0; lane < count; ++lane) {
            std::copy_n(wavefront_.dots(lane), width_, band.dots + lane * band.dotStride);
        }
        top_ += count;
    }

private:
    int width_;
    int height_;
    int top_ = 0;
    lanes::Wavefront<FloatDiffusion> wavefront_;
};

std::unique_ptr<EdgeBands> makeBands(int width, int height, float threshold) {
    return std::make_unique<LevelBands>(width, height, threshold);
}

}  // namespace

template <>
const EdgeTable EdgeKernels<lanes::ThisLevel>::table = {makeBands};
