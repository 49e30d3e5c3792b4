#include "tests/reference/stencil_blur.h"

#include <algorithm>
#include <cstdint>

#include "tests/reference/stencil_numeric.h"

namespace reference {

namespace {

/// A packed grey image with signed coordinates.
struct Plane {
    int width;
    int height;
    const Bytes& levels;
};

Plane planeOf(std::size_t width, std::size_t height, const Bytes& levels) {
    return {static_cast<int>(width), static_cast<int>(height), levels};
}

double nearestLevel(const Plane& plane, int x, int y) {
    const int column = std::clamp(x, 0, plane.width - 1);
    const int row = std::clamp(y, 0, plane.height - 1);
    const int place = row * plane.width + column;
    return static_cast<double>(plane.levels[static_cast<std::size_t>(place)]);
}

std::uint8_t byteOf(double sum) {
    const int rounded = roundedHalfAway(static_cast<float>(sum));
    return static_cast<std::uint8_t>(static_cast<unsigned>(rounded) % 256U);
}

void normalise(Weights& weights) {
    double sum = 0.0;
    for (const double weight : weights) {
        sum = sum + weight;
    }
    for (double& weight : weights) {
        weight = weight / sum;
    }
}

/// The sum at one pixel; dx and dy say in which direction the weights lie.
double filteredLevel(const Plane& plane, const Weights& weights, int x, int y, int dx, int dy) {
    const int half = static_cast<int>(weights.size()) / 2;
    double sum = 0.0;
    for (int k = -half; k <= half; ++k) {
        const double level = nearestLevel(plane, x + k * dx, y + k * dy);
        const double product = level * weights[static_cast<std::size_t>(k + half)];
        sum = product + sum;
    }
    return sum;
}

Bytes filtered(const Plane& plane, const Weights& weights, int dx, int dy) {
    Bytes result;
    for (int y = 0; y < plane.height; ++y) {
        for (int x = 0; x < plane.width; ++x) {
            result.push_back(byteOf(filteredLevel(plane, weights, x, y, dx, dy)));
        }
    }
    return result;
}

double squareLevel(const Plane& plane, const Weights& weights, int size, int x, int y) {
    const int half = size / 2;
    double sum = 0.0;
    for (int j = -half; j <= half; ++j) {
        for (int i = -half; i <= half; ++i) {
            const int place = (j + half) * size + i + half;
            const double level = nearestLevel(plane, x + i, y + j);
            const double product = level * weights[static_cast<std::size_t>(place)];
            sum = sum + product;
        }
    }
    return sum;
}

std::uint8_t weightedLevel(std::uint8_t a, std::uint8_t b, float weight) {
    const float ownWeight = 1.0F + weight;
    const float own = static_cast<float>(a) * ownWeight;
    const float other = static_cast<float>(b) * -weight;
    const float both = own + other;
    const float value = both + 0.0F;
    return static_cast<std::uint8_t>(std::clamp(roundedHalfAway(value), 0, 255));
}

}  // namespace

Weights gaussianWeights(int size, double sigma) {
    const int half = size / 2;
    const double norm = static_cast<double>(squareRoot(6.2831855F).value());
    const double variance = sigma * sigma;
    const double height = 1.0 / (norm * sigma);
    Weights weights;
    for (int i = -half; i <= half; ++i) {
        const double halved = static_cast<double>(i * i) * -0.5;
        const double exponent = halved / variance;
        const double fall = static_cast<double>(exponential(static_cast<float>(exponent)));
        weights.push_back(height * fall);
    }
    normalise(weights);
    return weights;
}

Weights gaussianSquare(int size, double sigmaX, double sigmaY) {
    const int half = size / 2;
    const double divisorX = sigmaX * 2.0 * sigmaX;
    const double divisorY = sigmaY * 2.0 * sigmaY;
    const double height = 1.0 / (sigmaX * 6.283185307179586 * sigmaY);
    Weights weights;
    for (int j = -half; j <= half; ++j) {
        for (int i = -half; i <= half; ++i) {
            const double across = static_cast<double>(-(i * i)) / divisorX;
            const double down = static_cast<double>(j * j) / divisorY;
            const auto exponent = static_cast<float>(across - down);
            weights.push_back(height * static_cast<double>(exponential(exponent)));
        }
    }
    normalise(weights);
    return weights;
}

Bytes filteredRows(std::size_t width, std::size_t height, const Bytes& grey,
                   const Weights& weights) {
    return filtered(planeOf(width, height, grey), weights, 1, 0);
}

Bytes filteredColumns(std::size_t width, std::size_t height, const Bytes& grey,
                      const Weights& weights) {
    return filtered(planeOf(width, height, grey), weights, 0, 1);
}

Bytes blurred(std::size_t width, std::size_t height, const Bytes& grey, int size, double sigma) {
    const Weights weights = gaussianWeights(size, sigma);
    return filteredColumns(width, height, filteredRows(width, height, grey, weights), weights);
}

Bytes blurredAtOnce(std::size_t width, std::size_t height, const Bytes& grey, int size,
                    double sigmaX, double sigmaY) {
    const Weights weights = gaussianSquare(size, sigmaX, sigmaY);
    const Plane plane = planeOf(width, height, grey);
    Bytes result;
    for (int y = 0; y < plane.height; ++y) {
        for (int x = 0; x < plane.width; ++x) {
            result.push_back(byteOf(squareLevel(plane, weights, size, x, y)));
        }
    }
    return result;
}

Bytes weightedDifference(const Bytes& a, const Bytes& b, float weight) {
    Bytes result;
    for (std::size_t i = 0; i < a.size(); ++i) {
        result.push_back(weightedLevel(a[i], b[i], weight));
    }
    return result;
}

Bytes sharpened(std::size_t width, std::size_t height, const Bytes& grey, float percent, int size) {
    const float weight = percent / 100.0F;
    return weightedDifference(grey, blurred(width, height, grey, size, 3.0), weight);
}

}  // namespace reference
