#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "tspl/command.h"

namespace tspl {

/// Number of commas in the head of a BITMAP, and in that of one with compressed data.
inline constexpr std::size_t bitmapCommas = 5;
inline constexpr std::size_t compressedBitmapCommas = 6;

/// Reads "BITMAP x,y,width,height,mode," with a width in bytes and a height in dots, or with mode 3
/// "BITMAP x,y,width,height,3,length,". Nothing when a number is missing, does not fit 32 bits, or
/// the width, the height or the length is negative.
std::optional<BitmapHead> parseBitmapHead(const Command& command);

/// The head of a DOWNLOAD that stores a file.
struct DownloadHead {
    std::string name;
    std::uint64_t bytes = 0;  ///< of the file, which follow the head
};

/// Reads 'DOWNLOAD "name",bytes,', with or without a memory's letter before the name. Nothing for
/// any other command.
std::optional<DownloadHead> parseDownloadHead(const Command& command);

}  // namespace tspl
