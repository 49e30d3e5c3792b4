#include "tspl/maxicode_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tspl {
namespace {

constexpr double sMillimetresPerInch = 25.4;
constexpr double sColumnPitch = 0.88;  // millimetres
constexpr double sRowPitch = 0.76;
// From where to where each dark ring reaches, in millimetres from the middle.
constexpr std::array<std::array<double, 2>, 3> sRings = {
    {{0.51, 1.18}, {1.86, 2.53}, {3.20, 3.87}}};
constexpr std::int64_t sMiddleRow = 16;
constexpr std::int64_t sMiddleColumn = 14;

struct Grid {
    explicit Grid(int dpi)
        : dotsPerMillimetre(dpi / sMillimetresPerInch),
          column(std::max<std::int64_t>(std::lround(sColumnPitch * dotsPerMillimetre), 2)),
          row(std::max<std::int64_t>(std::lround(sRowPitch * dotsPerMillimetre), 2)) {}

    // The left edge of a hexagon: every other row stands half a hexagon further right.
    [[nodiscard]] std::int64_t left(std::int64_t y, std::int64_t x) const {
        return x * column + (y % 2) * (column / 2);
    }

    double dotsPerMillimetre;
    std::int64_t column;  ///< dots between the middles of neighbours
    std::int64_t row;     ///< dots between rows
};

// Burns the dots of a row, about its middle, for which `isDark` holds.
template <class IsDark>
void fillRow(CodeDrawing& drawing, std::int64_t left, std::int64_t y, std::int64_t width,
             IsDark isDark) {
    for (std::int64_t x = 0; x < width; ++x) {
        if (isDark(static_cast<double>(x) + 0.5 - static_cast<double>(width) / 2)) {
            drawing.fill({left + x, y, 1, 1});
        }
    }
}

// A hexagon on its tip, a dot of paper to the next one at its side. It is a third of a row higher
// than rows are apart.
void fillHexagon(CodeDrawing& drawing, const Grid& grid, std::int64_t left, std::int64_t top) {
    const std::int64_t width = grid.column - 1;
    const std::int64_t height = grid.row * 4 / 3 - 1;
    const double halfWidth = static_cast<double>(width) / 2;
    const double halfHeight = static_cast<double>(height) / 2;
    for (std::int64_t y = 0; y < height; ++y) {
        const double away = std::abs(static_cast<double>(y) + 0.5 - halfHeight);
        fillRow(drawing, left, top + y, width,
                [&](double x) { return away <= halfHeight * (1 - std::abs(x) / halfWidth / 2); });
    }
}

void fillRings(CodeDrawing& drawing, const Grid& grid) {
    const auto radius =
        static_cast<std::int64_t>(std::ceil(sRings.back()[1] * grid.dotsPerMillimetre));
    const std::int64_t middleX = grid.left(sMiddleRow, sMiddleColumn) + (grid.column - 1) / 2;
    const std::int64_t middleY = sMiddleRow * grid.row + (grid.row * 4 / 3 - 1) / 2;
    for (std::int64_t y = -radius; y < radius; ++y) {
        fillRow(drawing, middleX - radius, middleY + y, 2 * radius, [&](double x) {
            const double away =
                std::hypot(x, static_cast<double>(y) + 0.5) / grid.dotsPerMillimetre;
            return std::any_of(sRings.begin(), sRings.end(),
                               [&](const auto& ring) { return away >= ring[0] && away < ring[1]; });
        });
    }
}

}  // namespace

void drawMaxiCodeSymbol(CodeDrawing& drawing, const CodeSymbol& symbol, int dpi) {
    const Grid grid(dpi);
    for (std::int64_t y = 0; y < symbol.height(); ++y) {
        const auto& modules = symbol.rows[static_cast<std::size_t>(y)].modules;
        for (std::size_t x = 0; x < modules.size(); ++x) {
            if (modules[x]) {
                fillHexagon(drawing, grid, grid.left(y, static_cast<std::int64_t>(x)),
                            y * grid.row);
            }
        }
    }
    fillRings(drawing, grid);
}

}  // namespace tspl
