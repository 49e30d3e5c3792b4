// The mean of the area of a picture that lies under each dot of a scaled one.
#pragma once

#include <cstdint>
#include <vector>

namespace reference {

/// Scales `samples`, height rows x width columns, to scaledHeight x scaledWidth dots: every sample
/// of the picture counts with the area that it shares with the dot, rounded to the nearest, halves
/// upward.
std::vector<std::uint16_t> areaAverage(const std::vector<std::uint16_t>& samples, unsigned width,
                                       unsigned height, unsigned scaledWidth,
                                       unsigned scaledHeight);

}  // namespace reference
