#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace tspl {

/// An area of dots: its upper left corner, its width and its height. May lie anywhere.
struct Area {
    std::int64_t x = 0;
    std::int64_t y = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
};

/// The edges of what is drawn: the first dot and the one behind the last in each direction.
struct Extent {
    std::int64_t left = std::numeric_limits<std::int64_t>::max();
    std::int64_t top = std::numeric_limits<std::int64_t>::max();
    std::int64_t right = std::numeric_limits<std::int64_t>::min();
    std::int64_t bottom = std::numeric_limits<std::int64_t>::min();

    void add(const Extent& other);
    [[nodiscard]] bool operator==(const Extent& other) const = default;
};

/// How new dots meet those that are there.
enum class DrawMode {
    Overwrite,
    Or,
    ExclusiveOr,
};

/// The printer's image buffer: one bit per dot, 1 for a dot that burns, the most significant bit
/// of a byte on the left. Rows take memory from the first one down to the last one drawn on. What
/// is drawn outside is left out and counted.
class DotCanvas {
public:
    /// A bare canvas of `width` dots and at most `height` rows.
    DotCanvas(std::int64_t width, std::int64_t height);

    [[nodiscard]] std::int64_t width() const { return width_; }
    [[nodiscard]] std::int64_t height() const { return height_; }

    /// Makes every dot bare and forgets what was left out.
    void clear();

    /// Burns, bares or swaps every dot of an area.
    void fill(const Area& area);
    void erase(const Area& area);
    void invert(const Area& area);

    /// Draws 8 dots a byte, from (x, y) to the right; a 1 bit burns.
    void drawBits(std::int64_t x, std::int64_t y, std::span<const std::uint8_t> bits,
                  DrawMode mode);

    /// Whether a dot burns; false for every dot outside.
    [[nodiscard]] bool burns(std::int64_t x, std::int64_t y) const;

    /// The smallest area from the upper left corner that holds every dot that burns.
    [[nodiscard]] Area burntArea() const;

    /// Number of dots that burn, on the whole canvas or in an area.
    [[nodiscard]] std::uint64_t burntDots() const;
    [[nodiscard]] std::uint64_t burntDots(const Area& area) const;

    /// The edges of what was to burn since it was asked last, on the canvas and beside it.
    [[nodiscard]] Extent takeExtent();

    /// Number of dots that were to burn outside the canvas since it was last cleared.
    [[nodiscard]] std::uint64_t dotsOutside() const { return dotsOutside_; }

private:
    void reachRow(std::int64_t y);
    [[nodiscard]] std::uint8_t* row(std::int64_t y);
    [[nodiscard]] std::int64_t rows() const;
    [[nodiscard]] Area clipped(const Area& area) const;
    template <class Change>
    void changeRow(std::int64_t x, std::int64_t end, std::uint8_t* row, Change change);
    void drawByte(std::int64_t x, std::uint8_t* row, std::uint8_t bits, DrawMode mode);
    void countOutside(std::uint64_t dots);
    void reach(const Area& area);
    void reachBits(std::int64_t x, std::int64_t y, std::span<const std::uint8_t> bits);

    std::int64_t width_;
    std::int64_t height_;
    std::size_t stride_;
    std::vector<std::uint8_t> bytes_;
    std::uint64_t dotsOutside_ = 0;
    Extent extent_;
};

}  // namespace tspl
