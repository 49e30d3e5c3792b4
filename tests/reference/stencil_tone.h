// Grey levels, threshold and tone curve of stencil halftones.
#pragma once

#include <cstddef>
#include <optional>

#include "tests/reference/grey_image.h"
#include "tests/reference/tone.h"

namespace reference {

/// The order of the interleaved channels of a colour image; a fourth channel is ignored.
enum class ChannelOrder { blueFirst, redFirst };

/// The grey levels of `pixels`, `channels` (3 or 4) bytes each, back to back.
Bytes greyLevels(const Bytes& pixels, std::size_t channels, ChannelOrder order);

/// The threshold that keeps the first three moments of the grey levels: 128 when they give no
/// pair of levels, -1 when no level is reached. Nothing where the square root gives nothing.
std::optional<int> momentThreshold(const Bytes& grey);

/// The new levels under two power curves that meet at the knee (-1 to 255), truncated.
ToneTable gammaTable(int knee, float gammaLow, float gammaHigh);

/// Every level replaced by its entry of the table.
Bytes withTones(const Bytes& grey, const ToneTable& table);

}  // namespace reference
