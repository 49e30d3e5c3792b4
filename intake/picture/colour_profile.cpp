#include "intake/picture/colour_profile.h"

#include <lcms2.h>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "intake/picture/grey.h"

namespace intake::picture {
namespace {

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, CloseProfile>;

struct Channels {
    unsigned count;
    cmsColorSpaceSignature space;
    cmsUInt32Number format;
};
constexpr std::array sChannels{
    Channels{1, cmsSigGrayData, TYPE_GRAY_16},
    Channels{3, cmsSigRgbData, TYPE_RGB_16},
    Channels{4, cmsSigCmykData, TYPE_CMYK_16},
};

const Channels* channelsOf(void* profile, unsigned count) {
    const auto* const known = std::ranges::find(sChannels, count, &Channels::count);
    const bool fits = known != sChannels.end() && cmsGetColorSpace(profile) == known->space;
    return fits ? known : nullptr;
}

// Of a cube of colours, whose corners are those of all colours.
constexpr unsigned sSteps = 9;
constexpr unsigned sStep = mostLight / (sSteps - 1);

std::vector<std::uint16_t> colourCube(unsigned channels) {
    std::vector<std::uint16_t> cube;
    const unsigned count = channels == 1 ? sSteps : sSteps * sSteps * sSteps;
    for (unsigned index = 0; index < count; ++index) {
        unsigned rest = index;
        for (unsigned channel = 0; channel < channels; ++channel) {
            cube.push_back(static_cast<std::uint16_t>(rest % sSteps * sStep));
            rest /= sSteps;
        }
    }
    return cube;
}

}  // namespace

std::unique_ptr<ColourProfile> ColourProfile::of(std::span<const unsigned char> profile,
                                                 unsigned channels) {
    const Profile given(
        cmsOpenProfileFromMem(profile.data(), static_cast<cmsUInt32Number>(profile.size())));
    const Channels* const known = given ? channelsOf(given.get(), channels) : nullptr;
    if (known == nullptr) {
        return nullptr;
    }
    const Profile screen(cmsCreate_sRGBProfile());
    void* const transform =
        cmsCreateTransform(given.get(), known->format, screen.get(), TYPE_RGB_16,
                           INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_BLACKPOINTCOMPENSATION);
    if (transform == nullptr) {
        return nullptr;
    }
    std::unique_ptr<ColourProfile> result(new ColourProfile(transform, channels));
    return result->saysNothing() ? nullptr : std::move(result);
}

ColourProfile::ColourProfile(void* transform, unsigned channels)
    : transform_(transform), channels_(channels) {}

ColourProfile::~ColourProfile() {
    cmsDeleteTransform(transform_);
}

void ColourProfile::makeLuma(std::span<const std::uint16_t> samples,
                             std::span<std::uint16_t> luma) {
    colours_.resize(luma.size() * 3);
    cmsDoTransform(transform_, samples.data(), colours_.data(),
                   static_cast<cmsUInt32Number>(luma.size()));
    for (std::size_t dot = 0; dot < luma.size(); ++dot) {
        luma[dot] = picture::luma(colours_[3 * dot], colours_[3 * dot + 1], colours_[3 * dot + 2]);
    }
}

bool ColourProfile::saysNothing() {
    if (channels_ == 4) {
        return false;
    }
    const std::vector<std::uint16_t> cube = colourCube(channels_);
    std::vector<std::uint16_t> found(cube.size() / channels_);
    makeLuma(cube, found);
    for (std::size_t colour = 0; colour < found.size(); ++colour) {
        const std::uint16_t* const sample = &cube[colour * channels_];
        const int plain =
            channels_ == 1 ? sample[0] : picture::luma(sample[0], sample[1], sample[2]);
        constexpr int oneLevel = 257;
        if (std::abs(found[colour] - plain) > oneLevel) {
            return false;
        }
    }
    return true;
}

}  // namespace intake::picture
