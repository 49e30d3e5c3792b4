#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace intake::picture {

/// The colours that a picture's numbers stand for, as its ICC profile says. Makes grey of them by
/// way of sRGB (relative colorimetric, with compensation of the black point).
class ColourProfile {
public:
    /// Takes the profile from the picture's file; `channels` are those of its samples: 1 grey,
    /// 3 RGB, 4 CMYK. Says no when it is damaged, is one for other channels, or gives the luma
    /// that the numbers have anyway, within one of 255 levels: sRGB's own.
    static std::unique_ptr<ColourProfile> of(std::span<const unsigned char> profile,
                                             unsigned channels);
    ~ColourProfile();
    ColourProfile(const ColourProfile&) = delete;
    ColourProfile& operator=(const ColourProfile&) = delete;

    /// Makes a row of luma from a row of samples, channels interleaved.
    void makeLuma(std::span<const std::uint16_t> samples, std::span<std::uint16_t> luma);

private:
    ColourProfile(void* transform, unsigned channels);
    bool saysNothing();

    void* transform_;
    unsigned channels_;
    std::vector<std::uint16_t> colours_;
};

}  // namespace intake::picture
