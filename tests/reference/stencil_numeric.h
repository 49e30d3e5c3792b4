// The approximate square root, exponential, logarithm and power that stencil halftones use.
#pragma once

#include <optional>

namespace reference {

/// Square root: y starts at half the argument and becomes (y + x / y) / 2 until it moves by
/// less than 1e-6; the last y but one is the result. -1 below zero, 0 for zero. Nothing when
/// the iteration goes round in circles or leaves the numbers.
std::optional<float> squareRoot(float x);

/// Exponential: terms are added up to the first below 1e-6, 20 at most. The reciprocal of the
/// exponential of the opposite for a negative argument.
float exponential(float x);

/// Natural logarithm: y starts at (x - 1) / (x + 1) and goes down by (exponential(y) - x) / x
/// until it moves by less than 1e-6; the last y but one is the result. -1 for zero and below.
/// Nothing when the iteration goes round in circles or leaves the numbers.
std::optional<float> logarithm(float x);

/// x to the power y for an x of 0 or more: 0 to the power of 0 is 1, of a positive number 0 and
/// of a negative one -1. Nothing where the logarithm gives nothing.
std::optional<float> power(float x, float y);

/// The nearest whole number, halves away from zero. The argument must fit an int.
int roundedHalfAway(float x);

}  // namespace reference
