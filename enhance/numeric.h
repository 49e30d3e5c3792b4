#pragma once

// The numeric functions of the stencil library. They are approximations with fixed iteration
// rules, in single precision with every step rounded: the stencil code calls these and never
// the platform's, so that a page comes out the same bit for bit everywhere.

/// The absolute value; -0 and NaN come back as they are.
float myabs(float x);

/// Square root by Newton's iteration from x / 2, to the first iterate whose successor is less
/// than 1e-6 away. -1 for a negative argument. Values without a settled iterate (NaN, infinity
/// and a number whose half is 0) give the first one, x / 2.
float my_sqrt(float x);

/// Exponential by its Taylor series: terms are added up to the first below 1e-6, 20 at most,
/// so that it falls short above about 10. Negative arguments give the reciprocal.
float my_exp(float x);

/// Natural logarithm by Newton's iteration with the slope at the root, to the first iterate
/// whose successor is less than 1e-6 away. -1 for zero and below, NaN for NaN, infinity for
/// infinity, minus infinity where an iterate leaves the range of numbers, and the last iterate
/// where they come round to an earlier one (some arguments above 7 million).
/// Takes about 1 / x steps for a small x: a millionth is a matter of milliseconds.
float my_ln(float x);

/// x to the power y as my_exp(y × my_ln(x)). 0 to the power of 0 is 1, of a positive number 0;
/// -1 for 0 to any other power and for a negative x with a fractional y.
float my_pow(float x, float y);

/// The float truncated toward zero to 32 bits; the smallest integer for one that has no place
/// there.
inline int truncateToInt(float x) {
    constexpr float limit = 2147483648.0F;
    return x > -limit && x < limit ? static_cast<int>(x) : -2147483647 - 1;
}

/// The nearest whole number, halves away from zero.
inline int my_round(float x) {
    return truncateToInt(static_cast<double>(x) >= 0.0 ? x + 0.5F : x - 0.5F);
}

/// v limited to lo..hi; lo when the limits are crossed and v is below lo.
template <typename T>
T myClamp(T v, T lo, T hi) {
    if (v >= lo) {
        return v < hi ? v : hi;
    }
    return lo;
}

/// Whether column x and row y lie inside an image of this size.
inline bool isWithinBounds(int x, int y, int width, int height) {
    return x >= 0 && x < width && y >= 0 && y < height;
}
