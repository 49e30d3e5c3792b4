#include "enhance/edge_diffusion.h"

#include <algorithm>
#include <vector>

namespace {

constexpr unsigned char black = 0;
constexpr unsigned char white = 255;
constexpr float blackNeighbourRelief = 0.1427F;

/// Errors still to be added to the pixels of this row and of the next: shares reach no further.
struct ErrorRows {
    std::vector<float> current;
    std::vector<float> next;

    void advance() {
        current.swap(next);
        std::fill(next.begin(), next.end(), 0.0F);
    }
};

// `dot` points at the white dot, in an image whose rows are `width` bytes long.
float errorOfInnerWhite(float value, const unsigned char* dot, int width) {
    float relief = 0.0F;
    relief += dot[-1] == black ? blackNeighbourRelief : 0.0F;
    relief += *(dot - width) == black ? blackNeighbourRelief : 0.0F;
    return (1.0F - relief) * -255.0F + value;
}

// Shares of an error at column x; `below` says whether there is a next row.
void spread(ErrorRows& errors, float error, int x, int width, bool below) {
    struct Cell {
        int dx;
        float weight;
    };
    constexpr Cell ahead[] = {{1, 0.505786F}, {2, -0.052926F}};
    constexpr Cell under[] = {{-2, 0.226194F}, {-1, 0.128835F}, {0, 0.243191F}, {1, -0.111078F}};
    const auto add = [=](std::vector<float>& row, const Cell& cell) {
        const int column = x + cell.dx;
        if (column >= 0 && column < width) {
            row[static_cast<std::size_t>(column)] += error * cell.weight;
        }
    };
    for (const Cell& cell : ahead) {
        add(errors.current, cell);
    }
    if (below) {
        for (const Cell& cell : under) {
            add(errors.next, cell);
        }
    }
}

}  // namespace

QMImage edf_cus(const QMImage& src, int threshold) {
    QMImage out(src.width, src.height, QM_IMG_GRAY);
    const auto limit = static_cast<float>(threshold);
    const auto rowLength = static_cast<std::size_t>(std::max(src.width, 0));
    ErrorRows errors = {std::vector<float>(rowLength), std::vector<float>(rowLength)};
    const unsigned char* level = src.data;
    unsigned char* dot = out.data;
    for (int y = 0; y < src.height; ++y) {
        const bool innerRow = y >= 1 && y < src.height - 1;
        for (int x = 0; x < src.width; ++x, ++level, ++dot) {
            const float value =
                errors.current[static_cast<std::size_t>(x)] + static_cast<float>(*level);
            const bool inner = innerRow && x >= 1 && x < src.width - 1;
            float error = value;
            *dot = value > limit ? white : black;
            if (*dot == white) {
                error = inner ? errorOfInnerWhite(value, dot, src.width) : value - 255.0F;
            }
            spread(errors, error, x, src.width, y + 1 < src.height);
        }
        errors.advance();
    }
    return out;
}
