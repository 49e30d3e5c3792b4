#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "intake/document_kind.h"

namespace intake::picture {

/// Binary samples of whole bytes whose highest value is less than a byte's.
struct NarrowSamples {
    unsigned width = 0;
    unsigned height = 0;
    bool isColour = false;  ///< three samples for each dot, else one
    unsigned highest = 0;   ///< value, 1 to 254
    std::size_t begin = 0;  ///< of the samples in the file
};

/// How a channel's samples come from the decoder: the highest of them is not all light.
struct SampleRange {
    unsigned shift = 0;      ///< of the value in its byte
    unsigned highest = 255;  ///< value
};

/// What GraphicsMagick does not say of a file, or gets wrong.
struct FileDetails {
    /// Of PNG's eXIf.
    std::optional<int> orientation;
    /// The one colour that is transparent in PNG of 3 samples, which have 16 bits here.
    std::optional<std::array<std::uint16_t, 3>> transparent;
    /// In BMP of older headers the fourth byte of 32 bits is not said to be for transparency.
    bool hasNoAlpha = false;
    /// In others it is often zero throughout and means nothing.
    bool mayHaveNoAlpha = false;
    /// PNM of a maximum under 255.
    std::optional<NarrowSamples> narrow;
    /// PNM in digits that ends with one.
    bool lacksLineEnd = false;
    /// Of narrow ones, and of BMP of 16 bits: red, green and blue.
    std::optional<std::array<SampleRange, 3>> ranges;
};

/// Reads them from the file. What is damaged is left out, for the decoder to say so; where it would
/// not, throws JobFailure.
FileDetails detailsOf(const std::string& path, const Document& document);

/// The orientation, 1 to 8, that Exif data tell; nothing when they do not. `data` begin with the
/// header of TIFF, or with "Exif" and two zeros before it.
std::optional<int> exifOrientation(std::span<const unsigned char> data);

}  // namespace intake::picture
