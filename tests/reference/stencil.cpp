#include "tests/reference/stencil.h"

#include <array>
#include <cstdint>
#include <vector>

#include "tests/reference/stencil_blur.h"
#include "tests/reference/stencil_tone.h"

namespace reference {

namespace {

/// One receiver of a dot's error: dx columns to the right, dy rows down.
struct StencilCell {
    int dx;
    int dy;
    float weight;
};

const std::array<StencilCell, 6> kCells = {{{1, 0, 0.505786F},
                                            {2, 0, -0.052926F},
                                            {-2, 1, 0.226194F},
                                            {-1, 1, 0.128835F},
                                            {0, 1, 0.243191F},
                                            {1, 1, -0.111078F}}};

/// A page while its dots are decided, with the error that still goes to each of them.
struct StencilField {
    int width;
    int height;
    const Bytes& grey;
    std::vector<float> errors;
    Bytes dots;
};

std::size_t placeOf(const StencilField& field, int x, int y) {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(field.width) +
           static_cast<std::size_t>(x);
}

bool isInside(const StencilField& field, int x, int y) {
    return x >= 0 && x < field.width && y >= 0 && y < field.height;
}

bool isOnBorder(const StencilField& field, int x, int y) {
    return x == 0 || y == 0 || x == field.width - 1 || y == field.height - 1;
}

/// What a white dot leaves of the value `v`.
float whiteError(const StencilField& field, int x, int y, float v) {
    if (isOnBorder(field, x, y)) {
        return v - 255.0F;
    }
    float relief = 0.0F;
    if (field.dots[placeOf(field, x - 1, y)] == 0) {
        relief = relief + 0.1427F;
    }
    if (field.dots[placeOf(field, x, y - 1)] == 0) {
        relief = relief + 0.1427F;
    }
    const float rest = 1.0F - relief;
    const float taken = rest * -255.0F;
    return taken + v;
}

void spread(StencilField& field, int x, int y, float error) {
    for (const StencilCell& cell : kCells) {
        if (isInside(field, x + cell.dx, y + cell.dy)) {
            const float share = error * cell.weight;
            float& receiver = field.errors[placeOf(field, x + cell.dx, y + cell.dy)];
            receiver = receiver + share;
        }
    }
}

void decideDot(StencilField& field, int x, int y, int threshold) {
    const std::size_t place = placeOf(field, x, y);
    const float v = field.errors[place] + static_cast<float>(field.grey[place]);
    const bool white = v > static_cast<float>(threshold);
    const float error = white ? whiteError(field, x, y, v) : v;
    field.dots[place] = white ? 255 : 0;
    spread(field, x, y, error);
}

Bytes bentTones(const Bytes& grey, int threshold, bool x8) {
    if (x8) {
        return withTones(grey, gammaTable(threshold, 0.5F, 1.5F));
    }
    return withTones(grey, gammaTable(64, 0.85F, 0.7F));
}

}  // namespace

Bytes diffuseStencil(std::size_t width, std::size_t height, const Bytes& grey, int threshold) {
    StencilField field{static_cast<int>(width), static_cast<int>(height), grey,
                       std::vector<float>(grey.size(), 0.0F), Bytes(grey.size(), 0)};
    for (int y = 0; y < field.height; ++y) {
        for (int x = 0; x < field.width; ++x) {
            decideDot(field, x, y, threshold);
        }
    }
    return field.dots;
}

Bytes stencil(std::size_t width, std::size_t height, const Bytes& grey, bool x8) {
    if (grey.empty()) {
        return grey;
    }
    const int threshold = momentThreshold(grey).value();
    const Bytes sharp = sharpened(width, height, bentTones(grey, threshold, x8), 300.0F, 11);
    return diffuseStencil(width, height, sharp, threshold);
}

}  // namespace reference
