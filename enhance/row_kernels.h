#pragma once

#include <cstddef>

// What is done to a row of pixels at a time. Each function says what it does to one pixel; where
// there is SSE2 it does so to several at once, in the same order and with the same roundings.

/// Row of sums: for every pixel x the products taps[k][x] × weights[k], added in double precision
/// from the first tap to the last and rounded to single precision.
void addWeightedTaps(const double* const* taps, const double* weights, std::size_t count,
                     std::size_t width, float* sums);

/// The low 8 bits of the nearest whole number of every sum.
void roundToBytes(const float* sums, std::size_t width, unsigned char* bytes);

/// a × (1 + weight) - b × weight of every pixel, in single precision, rounded and limited to
/// 0..255.
void addWeightedRow(const unsigned char* a, const unsigned char* b, float weight, std::size_t width,
                    unsigned char* out);

/// Every byte as a double.
void widenToDoubles(const unsigned char* bytes, std::size_t width, double* doubles);
