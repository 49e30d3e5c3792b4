#pragma once

#include <cstddef>
#include <cstdint>

#include "driver/halftone_type.h"

/// Size of a text field: 40 characters and the terminator.
inline constexpr std::size_t settingsTextSize = 41;

/// Everything a job takes from the queue's PPD and its options. Texts are choice names.
struct Settings {
    char PageSize[settingsTextSize];
    float pageWidth;   ///< mm; the PPD's size at first, then that of the raster page
    float pageHeight;  ///< mm
    char Resolution[settingsTextSize];
    char MediaMethod[settingsTextSize];
    char PaperType[settingsTextSize];
    std::int32_t GapsHeight;  ///< gap or black mark in mm
    char PostAction[settingsTextSize];
    char Occurrence[settingsTextSize];
    char Origin[settingsTextSize];
    std::int32_t MirrorImage;    ///< on when not 0
    std::int32_t NegativeImage;  ///< on when not 0
    DitherType halftoneType;
    char PrintSpeed[settingsTextSize];
    std::int32_t Darkness;
    std::int32_t Brightness;
    std::int32_t DirectBuffer;       ///< always 0
    std::int32_t StoredGraphics;     ///< always 0
    std::int32_t OptionDisplayUnit;  ///< always 0
    char outputFileName[256];        ///< recording file; empty for no recording
    std::int32_t ForceRotation;
};
