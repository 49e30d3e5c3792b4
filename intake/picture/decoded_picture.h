#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "intake/picture/colour_profile.h"

struct _Image;

namespace intake::picture {

struct DestroyImage {
    void operator()(_Image* image) const;
};
/// An image of GraphicsMagick, with those that follow it.
using LibraryImage = std::unique_ptr<_Image, DestroyImage>;

/// One picture of a file, decoded.
class DecodedPicture {
public:
    explicit DecodedPicture(LibraryImage image);

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
    LibraryImage image_;
    unsigned channels_ = 1;
    std::unique_ptr<ColourProfile> profile_;
    std::vector<std::uint16_t> samples_;
};

}  // namespace intake::picture
