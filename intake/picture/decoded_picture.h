#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "intake/picture/colour_profile.h"
#include "intake/picture/file_details.h"

// Names of GraphicsMagick.
struct _Image;        // NOLINT(bugprone-reserved-identifier)
struct _PixelPacket;  // NOLINT(bugprone-reserved-identifier)

namespace intake::picture {

struct DestroyImage {
    void operator()(_Image* image) const;
};
/// An image of GraphicsMagick, with those that follow it.
using LibraryImage = std::unique_ptr<_Image, DestroyImage>;

/// One picture of a file, decoded.
class DecodedPicture {
public:
    DecodedPicture(LibraryImage image, const FileDetails& details);

    /// As it lies in the file, before its turn.
    unsigned width() const;
    unsigned height() const;

    /// 1, luma; or with a profile what that needs to make luma.
    unsigned channels() const { return channels_; }
    /// Null when the samples are luma already.
    ColourProfile* profile() const { return profile_.get(); }

    /// A row of samples, channels interleaved, on white paper where it is transparent. Good until
    /// the next call. Throws JobFailure.
    std::span<const std::uint16_t> row(unsigned index);

private:
    void copy(std::span<const _PixelPacket> pixels);
    void copySpecial(std::span<const _PixelPacket> pixels);
    void copyOpaque(const _PixelPacket& pixel, std::uint16_t* sample) const;
    template <class Copy>
    void copyWith(std::span<const _PixelPacket> pixels, const Copy& copy);

    LibraryImage image_;
    bool isTransparent_ = false;
    std::optional<std::array<SampleRange, 3>> ranges_;
    std::optional<std::array<std::uint16_t, 3>> transparent_;
    unsigned channels_ = 1;
    std::unique_ptr<ColourProfile> profile_;
    std::vector<std::uint16_t> samples_;
};

}  // namespace intake::picture
