#include "intake/picture/decoded_picture.h"

#include <magick/api.h>

#include <utility>

#include "intake/picture/grey.h"
#include "intake/picture/library_problem.h"

namespace intake::picture {
namespace {

std::span<const unsigned char> profileOf(const Image& image) {
    std::size_t size = 0;
    const unsigned char* const profile = GetImageProfile(&image, "ICM", &size);
    return profile == nullptr ? std::span<const unsigned char>() : std::span(profile, size);
}

bool isInks(const Image& image) {
    return image.colorspace == CMYKColorspace;
}

struct Colour {
    unsigned channels = 1;
    std::unique_ptr<ColourProfile> profile;
};

Colour colourWith(std::span<const unsigned char> profile, unsigned channels) {
    auto found = profile.empty() ? nullptr : ColourProfile::of(profile, channels);
    return found ? Colour{channels, std::move(found)} : Colour{};
}

// Grey pictures have profiles for grey or for colours.
Colour colourOf(const Image& image) {
    const auto profile = profileOf(image);
    if (isInks(image)) {
        return colourWith(profile, 4);
    }
    Colour colour = colourWith(profile, 3);
    return colour.profile ? std::move(colour) : colourWith(profile, 1);
}

std::uint16_t lumaOf(const PixelPacket& pixel) {
    return luma(pixel.red, pixel.green, pixel.blue);
}

// Cyan, magenta and yellow stand in the places of red, green and blue, black in that of opacity.
std::uint16_t lumaOfInks(const PixelPacket& pixel) {
    return luma(lightOf(pixel.red, pixel.opacity), lightOf(pixel.green, pixel.opacity),
                lightOf(pixel.blue, pixel.opacity));
}

PixelPacket onPaper(PixelPacket pixel) {
    const std::uint32_t transparency = pixel.opacity;
    pixel.red = static_cast<Quantum>(overWhite(pixel.red, transparency));
    pixel.green = static_cast<Quantum>(overWhite(pixel.green, transparency));
    pixel.blue = static_cast<Quantum>(overWhite(pixel.blue, transparency));
    return pixel;
}

void copyInks(const PixelPacket& pixel, std::uint16_t* sample) {
    sample[0] = pixel.red;
    sample[1] = pixel.green;
    sample[2] = pixel.blue;
    sample[3] = pixel.opacity;
}

void copyLight(const PixelPacket& pixel, std::uint16_t* sample) {
    sample[0] = pixel.red;
    sample[1] = pixel.green;
    sample[2] = pixel.blue;
}

}  // namespace

void DestroyImage::operator()(_Image* image) const {
    DestroyImageList(image);
}

DecodedPicture::DecodedPicture(LibraryImage image) : image_(std::move(image)) {
    Colour colour = colourOf(*image_);
    channels_ = colour.channels;
    profile_ = std::move(colour.profile);
    samples_.resize(std::size_t{width()} * channels_);
}

unsigned DecodedPicture::width() const {
    return static_cast<unsigned>(image_->columns);
}

unsigned DecodedPicture::height() const {
    return static_cast<unsigned>(image_->rows);
}

std::span<const std::uint16_t> DecodedPicture::row(unsigned index) {
    LibraryProblem problem;
    const PixelPacket* const pixels = AcquireImagePixels(image_.get(), 0, static_cast<long>(index),
                                                         image_->columns, 1, problem.info());
    if (pixels == nullptr) {
        failToRead(problem.text());
    }
    const bool inks = isInks(*image_);
    const bool isTransparent = image_->matte != 0U && !inks;
    for (unsigned column = 0; column < width(); ++column) {
        const PixelPacket pixel = isTransparent ? onPaper(pixels[column]) : pixels[column];
        std::uint16_t* const sample = &samples_[std::size_t{column} * channels_];
        if (channels_ == 4) {
            copyInks(pixel, sample);
        } else if (channels_ == 3) {
            copyLight(pixel, sample);
        } else {
            *sample = inks ? lumaOfInks(pixel) : lumaOf(pixel);
        }
    }
    return samples_;
}

}  // namespace intake::picture
