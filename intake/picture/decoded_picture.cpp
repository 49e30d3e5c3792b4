#include "intake/picture/decoded_picture.h"

#include <magick/api.h>

#include <algorithm>
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

void copyLight(const PixelPacket& pixel, std::uint16_t* sample) {
    sample[0] = pixel.red;
    sample[1] = pixel.green;
    sample[2] = pixel.blue;
}

void copyInks(const PixelPacket& pixel, std::uint16_t* sample) {
    copyLight(pixel, sample);
    sample[3] = pixel.opacity;
}

// Some programs write zeros where transparency would be.
bool isNothingToBeSeen(Image& image) {
    LibraryProblem problem;
    for (unsigned long row = 0; row < image.rows; ++row) {
        const PixelPacket* const pixels =
            AcquireImagePixels(&image, 0, static_cast<long>(row), image.columns, 1, problem.info());
        const auto isTransparent = [](const PixelPacket& pixel) {
            return pixel.opacity == TransparentOpacity;
        };
        if (pixels == nullptr || !std::all_of(pixels, pixels + image.columns, isTransparent)) {
            return false;
        }
    }
    return true;
}

std::uint16_t spread(Quantum sample, const SampleRange& range) {
    constexpr unsigned bitsOfByte = 8;
    const unsigned value = std::min((unsigned{sample} >> bitsOfByte) >> range.shift, range.highest);
    return static_cast<std::uint16_t>((value * mostLight + range.highest / 2) / range.highest);
}

}  // namespace

void DestroyImage::operator()(_Image* image) const {
    DestroyImageList(image);
}

DecodedPicture::DecodedPicture(LibraryImage image, const FileDetails& details)
    : image_(std::move(image)), ranges_(details.ranges), transparent_(details.transparent) {
    isTransparent_ = image_->matte != 0U && !isInks(*image_) && !details.hasNoAlpha &&
                     !(details.mayHaveNoAlpha && isNothingToBeSeen(*image_));
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
    copy({pixels, image_->columns});
    return samples_;
}

void DecodedPicture::copy(std::span<const _PixelPacket> pixels) {
    if (ranges_ || transparent_) {
        return copySpecial(pixels);
    }
    if (isInks(*image_)) {
        return channels_ == 4
                   ? copyWith(pixels, copyInks)
                   : copyWith(pixels, [](const PixelPacket& pixel, std::uint16_t* sample) {
                         *sample = lumaOfInks(pixel);
                     });
    }
    if (isTransparent_) {
        return copyWith(pixels, [this](const PixelPacket& pixel, std::uint16_t* sample) {
            copyOpaque(onPaper(pixel), sample);
        });
    }
    copyWith(pixels, [this](const PixelPacket& pixel, std::uint16_t* sample) {
        copyOpaque(pixel, sample);
    });
}

void DecodedPicture::copySpecial(std::span<const _PixelPacket> pixels) {
    copyWith(pixels, [this](PixelPacket pixel, std::uint16_t* sample) {
        if (ranges_) {
            pixel.red = spread(pixel.red, (*ranges_)[0]);
            pixel.green = spread(pixel.green, (*ranges_)[1]);
            pixel.blue = spread(pixel.blue, (*ranges_)[2]);
        }
        if (transparent_ && std::array{pixel.red, pixel.green, pixel.blue} == *transparent_) {
            pixel.red = pixel.green = pixel.blue = mostLight;
        }
        copyOpaque(pixel, sample);
    });
}

void DecodedPicture::copyOpaque(const _PixelPacket& pixel, std::uint16_t* sample) const {
    if (channels_ == 1) {
        *sample = lumaOf(pixel);
    } else {
        copyLight(pixel, sample);
    }
}

template <class Copy>
void DecodedPicture::copyWith(std::span<const _PixelPacket> pixels, const Copy& copy) {
    std::uint16_t* sample = samples_.data();
    for (const PixelPacket& pixel : pixels) {
        copy(pixel, sample);
        sample += channels_;
    }
}

}  // namespace intake::picture
