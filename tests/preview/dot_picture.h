#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "tests/reference/job.h"

/// Dots on paper: height rows × width columns back to back, 1 for a burnt (black) dot.
struct DotPicture {
    std::size_t width = 0;
    std::size_t height = 0;
    reference::Bytes dots;
};

/// A PNG file of 1 bit per pixel without colours.
struct PngPicture {
    DotPicture picture;
    std::uint32_t xDotsPerMetre = 0;
    std::uint32_t yDotsPerMetre = 0;
};

/// Reads a picture; throws when the file is no PNG of 1 bit grey with a resolution in metres.
PngPicture readPng(const std::string& path);

/// The dots that are drawn as '#' in rows of equal length.
DotPicture drawnPicture(const std::vector<std::string>& rows);

/// The dots that a finished image burns: those whose byte is not 0, rows taken `width` bytes
/// apart, which makes pages lean whose width is no multiple of 4.
DotPicture burntDots(const reference::GreyImage& finished);

/// The picture turned by 180 degrees.
DotPicture turned(const DotPicture& picture);

/// The pictures of the pages of a job that prints all of them, as the reference has them.
std::vector<DotPicture> picturesOf(const reference::Job& job);

/// What differs between two pictures; empty when nothing does.
std::string differenceOf(const DotPicture& expected, const DotPicture& actual);
