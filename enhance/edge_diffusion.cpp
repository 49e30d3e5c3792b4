#include "enhance/edge_diffusion.h"

#include <algorithm>
#include <array>
#include <utility>

#include "enhance/float_lanes.h"
#include "enhance/numeric.h"

namespace {

constexpr float blackNeighbourRelief = 0.1427F;

constexpr int ahead = 2;    // columns right of a pixel that take shares in its own row
constexpr int behind = 2;   // columns left of it that take shares in the row below
constexpr int besides = 1;  // columns right of it that do

// Columns that a row lies behind the row above: an error leaves the window over the row below on
// the left just when it enters the window of that row on the right.
constexpr int skew = ahead + behind + 1;
constexpr int rows = EdgeDiffusion::rows;
constexpr int lastSkew = (rows - 1) * skew;
constexpr int columns = 8;  // that are worked on between two looks at memory

static_assert(rows == FloatLanes::count);

/// The rows of a band in memory.
struct Band {
    const unsigned char* levels;
    std::ptrdiff_t levelStride;
    unsigned char* dots;
    std::ptrdiff_t dotStride;
    float* errors;  ///< for the first row at the beginning, for the next band at the end
    int width;
    int height;  ///< of the page
    int top;     ///< row of the page in which the band begins
    float threshold;
};

/// What moves along with the rows of a band. A lane is a row.
struct State {
    std::array<FloatLanes, ahead + 1> own;               ///< errors of columns 0 to `ahead`
    std::array<FloatLanes, behind + besides + 1> below;  ///< of the row below
    std::array<MaskLanes, skew> black;                   ///< the last dots, oldest first
};

/// One band, time by time. Time is the column of lane 0.
class BandDiffusion {
public:
    explicit BandDiffusion(const Band& band) : band_(band) {}

    void run() const {
        const bool innerRows = band_.top >= 1 && band_.top + rows < band_.height;
        const int firstInner = lastSkew + behind + 1;
        const int end = band_.width + lastSkew + behind + 1;
        State state{};
        for (int time = -columns; time < end; time += columns) {
            if (innerRows && time >= firstInner && time + columns + ahead <= band_.width) {
                diffuseBlock<true>(state, time);
            } else {
                diffuseBlock<false>(state, time);
            }
        }
    }

private:
    bool contains(int x, int lane) const {
        return isWithinBounds(x, band_.top + lane, band_.width, band_.height);
    }
    const unsigned char* levelAt(int x, int lane) const {
        return band_.levels + lane * band_.levelStride + x;
    }
    unsigned char* dotAt(int x, int lane) const { return band_.dots + lane * band_.dotStride + x; }

    // Inlined, like all that it calls: the state stays in registers.
    template <bool inner>
    [[gnu::always_inline]] void diffuseBlock(State& state, int time) const {
        const std::array<FloatLanes, columns> levels = loadLevels<inner>(time);
        std::array<MaskLanes, columns> white;
        if constexpr (inner) {
            diffuseInnerColumns(state, time, levels, white, std::make_index_sequence<columns>());
        } else {
            for (std::size_t i = 0; i < columns; ++i) {
                white[i] = diffuseColumn<false>(state, time + static_cast<int>(i), levels[i]);
            }
        }
        storeDots<inner>(white, time);
    }

    template <std::size_t... i>
    [[gnu::always_inline]] void diffuseInnerColumns(State& state, int time,
                                                    const std::array<FloatLanes, columns>& levels,
                                                    std::array<MaskLanes, columns>& white,
                                                    std::index_sequence<i...>) const {
        ((white[i] = diffuseColumn<true>(state, time + static_cast<int>(i), levels[i])), ...);
    }

    // Returns the white dots.
    template <bool inner>
    [[gnu::always_inline]] MaskLanes diffuseColumn(State& state, int time, FloatLanes level) const {
        const MaskLanes blackAbove = movedUp(state.black.front(), isBlackAboveBand<inner>(time));
        const MaskLanes blackLeft = state.black.back();
        moveWindows<inner>(state, time);
        const FloatLanes value = state.own[0] + level;
        const MaskLanes white = value > allLanes(band_.threshold);
        FloatLanes relief = allLanes(blackNeighbourRelief) & blackLeft;
        relief = relief + (allLanes(blackNeighbourRelief) & blackAbove);
        if constexpr (!inner) {
            relief = relief & insideBorder(time);
        }
        const FloatLanes taken = (allLanes(1.0F) - relief) * allLanes(-255.0F);
        FloatLanes error = (taken & white) + value;
        if constexpr (!inner) {
            error = error & insidePage(time);
        }
        spread(state, error);
        state.black.back() = ~white;
        return white;
    }

    [[gnu::always_inline]] static void spread(State& state, FloatLanes error) {
        const auto add = [error](FloatLanes& receiver, float weight) {
            receiver = receiver + error * allLanes(weight);
        };
        add(state.own[1], 0.505786F);
        add(state.own[2], -0.052926F);
        add(state.below[0], 0.226194F);
        add(state.below[1], 0.128835F);
        add(state.below[2], 0.243191F);
        add(state.below[3], -0.111078F);
    }

    template <typename Lanes, std::size_t size>
    [[gnu::always_inline]] static void enter(std::array<Lanes, size>& window, Lanes last) {
        moveDown(window, std::make_index_sequence<size - 1>());
        window.back() = last;
    }
    template <typename Window, std::size_t... i>
    [[gnu::always_inline]] static void moveDown(Window& window, std::index_sequence<i...>) {
        ((window[i] = window[i + 1]), ...);
    }

    // All windows one column to the right: the errors that leave the window over the row below
    // enter the window of the next lane.
    template <bool inner>
    [[gnu::always_inline]] void moveWindows(State& state, int time) const {
        const FloatLanes leaving = state.below.front();
        storeError<inner>(leaving, time - lastSkew - behind - 1);
        enter(state.own, movedUp(leaving, errorAt<inner>(time + ahead)));
        enter(state.below, allLanes(0.0F));
        enter(state.black, state.black.back());
    }

    template <bool inner>
    float errorAt(int x) const {
        return inner || (x >= 0 && x < band_.width) ? band_.errors[x] : 0.0F;
    }

    template <bool inner>
    void storeError(FloatLanes leaving, int x) const {
        if (inner || (x >= 0 && x < band_.width)) {
            band_.errors[x] = lastLane(leaving);
        }
    }

    template <bool inner>
    bool isBlackAboveBand(int x) const {
        return (inner || (band_.top > 0 && x >= 0 && x < band_.width)) && *dotAt(x, -1) == 0;
    }

    template <typename Condition>
    static MaskLanes lanesWhere(Condition condition) {
        std::array<std::int32_t, rows> masks{};
        for (int lane = 0; lane < rows; ++lane) {
            masks[static_cast<std::size_t>(lane)] = condition(lane) ? -1 : 0;
        }
        return loadMasks(masks);
    }
    MaskLanes insidePage(int time) const {
        return lanesWhere([=, this](int lane) { return contains(time - lane * skew, lane); });
    }
    MaskLanes insideBorder(int time) const {
        return lanesWhere([=, this](int lane) {
            const int x = time - lane * skew;
            return contains(x - 1, lane - 1) && contains(x + 1, lane + 1);
        });
    }

    // Pixels outside the page may have any level, but are not looked for in memory.
    template <bool inner>
    std::array<FloatLanes, columns> loadLevels(int time) const {
        if constexpr (inner) {
            return loadColumns(levelAt(time, 0), band_.levelStride - skew);
        } else {
            std::array<unsigned char, std::size_t{rows} * columns> block{};
            for (int i = 0; i < rows * columns; ++i) {
                const int lane = i / columns;
                const int x = time + i % columns - lane * skew;
                if (contains(x, lane)) {
                    block[static_cast<std::size_t>(i)] = *levelAt(x, lane);
                }
            }
            return loadColumns(block.data(), columns);
        }
    }

    template <bool inner>
    void storeDots(const std::array<MaskLanes, columns>& white, int time) const {
        if constexpr (inner) {
            storeColumns(white, dotAt(time, 0), band_.dotStride - skew);
        } else {
            std::array<unsigned char, std::size_t{rows} * columns> block{};
            storeColumns(white, block.data(), columns);
            for (int i = 0; i < rows * columns; ++i) {
                const int lane = i / columns;
                const int x = time + i % columns - lane * skew;
                if (contains(x, lane)) {
                    *dotAt(x, lane) = block[static_cast<std::size_t>(i)];
                }
            }
        }
    }

    const Band band_;
};

}  // namespace

EdgeDiffusion::EdgeDiffusion(int width, int height, int threshold)
    : width_(width),
      height_(height),
      threshold_(static_cast<float>(threshold)),
      errors_(static_cast<std::size_t>(std::max(width, 0))) {}

void EdgeDiffusion::diffuseBand(const unsigned char* levels, std::ptrdiff_t levelStride,
                                unsigned char* dots, std::ptrdiff_t dotStride) {
    BandDiffusion(
        {levels, levelStride, dots, dotStride, errors_.data(), width_, height_, top_, threshold_})
        .run();
    top_ += rows;
}

QMImage edf_cus(const QMImage& src, int threshold) {
    QMImage out(src.width, src.height, QM_IMG_GRAY);
    EdgeDiffusion diffusion(src.width, src.height, threshold);
    for (int y = 0; y < src.height; y += EdgeDiffusion::rows) {
        const std::ptrdiff_t start = std::ptrdiff_t{y} * src.width;
        diffusion.diffuseBand(src.data + start, src.width, out.data + start, src.width);
    }
    return out;
}
