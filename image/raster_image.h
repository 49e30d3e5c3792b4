#pragma once

#include <cstdint>

#include "image/bitmap_info_header.h"
#include "image/malloc_buffer.h"
#include "image/rgb_quad.h"

/// What a `RasterImage` knows beside its header.
struct RasterImageInfo {
    std::uint32_t effWidth = 0;       ///< bytes per pixel row (the stride), a multiple of 4
    std::uint8_t* bits = nullptr;     ///< first pixel row inside the memory block
    std::uint32_t type = 0;           ///< the caller's image-format tag, carried along
    char lastError[256] = {};         ///< NUL-terminated text of the last failure
    tagRGBQUAD lastColor = {};        ///< colour of the last nearest-colour search
    std::uint8_t lastColorIndex = 0;  ///< its answer
    bool lastColorValid = false;      ///< whether a search was ever made
};

/// A palette image of 1, 4 or 8 bits per pixel, or a colour image of 24.
///
/// One heap block holds a copy of the header, the palette and the pixel rows back to back.
/// Rows lie `GetEffWidth()` bytes apart, row 0 first. An image is valid when it has a block.
/// Eight-bit grey pages use the grey level as the index, 0 black to 255 white.
///
/// Operations never throw. They return false or null on failure and leave a text for
/// `GetLastError`; setters ignore bad arguments silently. Not copyable: `Transfer` hands the
/// block from one image to another.
class RasterImage {
public:
    RasterImage() = default;
    ~RasterImage() = default;
    RasterImage(const RasterImage&) = delete;
    RasterImage& operator=(const RasterImage&) = delete;

    // Construction and ownership (raster_image.cpp)

    /// Makes a new image of zeroed pixels and a zeroed palette; what the image held before is
    /// freed, also on failure. `bpp` is rounded up to 1, 4, 8 or 24. Returns the block, or null
    /// when a size is 0, the image is too large, or memory is short.
    void* Create(std::uint32_t width, std::uint32_t height, std::uint32_t bpp, std::uint32_t type);
    /// Frees the block; header and information record stay as they are. Always true.
    bool Destroy();
    /// Takes over everything of `from`, which is left empty. The flag has no effect. Always true.
    bool Transfer(RasterImage& from, bool unused = false);
    /// Copies the information record of `src`, but only into an image without a block.
    void CopyInfo(const RasterImage& src);
    /// Fills a new image from `height` rows of packed pixels, `bytesPerLine` bytes apart;
    /// `bpp` is 1, 4, 8, 24 or 32 (stored as 24, every fourth byte dropped). Rows are copied as
    /// far as both strides reach. `flip` puts the first source row last. Up to 8 bits the image
    /// gets a grey palette.
    bool CreateFromArray(const std::uint8_t* array, std::uint32_t width, std::uint32_t height,
                         std::uint32_t bpp, std::uint32_t bytesPerLine, bool flip);

    /// Makes an image of 8 bits with a grey palette and undefined pixels, zeros behind each row.
    /// When it cannot be had, the former image stays what it was.
    bool ReplaceByGrey(std::uint32_t width, std::uint32_t height);
    /// The same, filled from `height` rows of bytes as `CreateFromArray` does it.
    bool LoadGrey(const std::uint8_t* array, std::uint32_t width, std::uint32_t height,
                  std::uint32_t bytesPerLine);

    bool IsValid() const { return dib != nullptr; }
    const char* GetLastError() const { return info.lastError; }
    /// Start of a pixel row; null without a block or beyond the last row.
    std::uint8_t* GetBits(std::uint32_t row = 0);
    const std::uint8_t* GetBits(std::uint32_t row = 0) const;
    /// Size of header, palette and pixels in bytes.
    std::uint32_t GetSize() const;
    // Width and height come in a const and a non-const form: both belong to the interface.
    std::int32_t GetWidth() { return header.biWidth; }
    std::int32_t GetWidth() const { return header.biWidth; }
    std::int32_t GetHeight() { return header.biHeight; }
    std::int32_t GetHeight() const { return header.biHeight; }
    std::uint32_t GetEffWidth() const { return info.effWidth; }
    /// Number of palette entries: 2, 16, 256, or 0 for 24 bits.
    std::uint32_t GetNumColors() const { return header.biClrUsed; }
    const BitmapInfoHeader& GetHeader() const { return header; }
    const RasterImageInfo& GetInfo() const { return info; }

    // Palette (raster_image_palette.cpp). Without a palette setters do nothing and getters
    // return null or zero.

    tagRGBQUAD* GetPalette() const;
    /// Size of the palette in bytes.
    std::uint32_t GetPaletteSize() const;
    /// Copies the first `nColors` entries, at most as many as the palette has.
    void SetPalette(const tagRGBQUAD* pal, std::uint32_t nColors);
    /// Grey ramp from 0 to 255 in equal steps; reserved bytes stay.
    void SetGrayPalette();
    void SetPaletteColor(std::uint8_t index, std::uint8_t r, std::uint8_t g, std::uint8_t b,
                         std::uint8_t alpha);
    tagRGBQUAD GetPaletteColor(std::uint8_t index) const;
    /// Index of the palette entry with the smallest squared Euclidean distance in blue, green
    /// and red; the lowest of several.
    std::uint8_t GetNearestIndex(tagRGBQUAD c);
    /// Limits `GetNearestIndex` to the first `n` palette entries; 0 means all.
    void SetClrImportant(std::uint32_t n) { header.biClrImportant = n; }

    // Pixels (raster_image_pixels.cpp): x counts columns, y buffer rows, both from 0

    /// Index of a pixel; 0 without a palette. Outside the image the raw first byte of the
    /// pixel data, whatever the depth: error diffusion reads there and drops the write.
    std::uint8_t GetPixelIndex(std::int64_t x, std::int64_t y) const;
    /// Stores as many low bits of `index` as a pixel has; ignored outside the image.
    void SetPixelIndex(std::int64_t x, std::int64_t y, std::uint8_t index);
    // The blind accessors check nothing: the caller guarantees a valid pixel.
    std::uint8_t BlindGetPixelIndex(std::int64_t x, std::int64_t y) const;
    void BlindSetPixelIndex(std::int64_t x, std::int64_t y, std::uint8_t index);
    tagRGBQUAD BlindGetPixelColor(std::int64_t x, std::int64_t y, bool unused = false) const;
    void BlindSetPixelColor(std::int64_t x, std::int64_t y, tagRGBQUAD c, bool unused = false);

    // Halftoning (dither.cpp)

    /// Replaces a grey image by its 1-bit black-and-white halftone. Methods: 0 threshold,
    /// 1 ordered 4 × 4, 2 Burkes, 3 Stucki, 4 Jarvis-Judice-Ninke, 5 Sierra, 6 Stevenson-Arce,
    /// 7 Bayer 4 × 4, any other Floyd-Steinberg. A 1-bit image is left alone.
    bool Dither(long method);

    // Tone (tone.cpp)

    /// Adds `brightness` and scales around the middle level by `contrast` percent (0: as is,
    /// -100: flat).
    bool Light(int brightness, int contrast);
    /// Replaces every pixel index i by `table[i]`; `table` has 256 entries.
    bool Lut(const std::uint8_t* table);
    /// Inverts every byte of the pixel rows, padding included; the palette stays.
    void Negative();

    // Geometry (geometry.cpp, increase_bpp.cpp, expand.cpp, draw_line.cpp)

    /// Turns the image by 180 degrees into an 8-bit image: `dst`, or this one for null. True
    /// whenever there was an image, even if memory ran out and the target is left empty.
    bool Rotate180(RasterImage* dst = nullptr);
    /// Mirrors an 8-bit image left to right. Meant for 8 bits only: at other depths it
    /// reverses the bytes of a row, not the pixels.
    void Mirror();
    /// Widens to `nbit` 4, 8 or 24 bits per pixel. False for other or smaller depths.
    bool IncreaseBpp(std::uint32_t nbit);
    /// Adds borders, in pixels, of the palette colour nearest to `canvasColor`. The `bottom`
    /// rows come first in the buffer and the `top` rows last. False for a negative border.
    bool Expand(long left, long top, long right, long bottom, tagRGBQUAD canvasColor);
    /// Centres the image on a new 8-bit image `newWidth` pixels wide, whose new columns hold
    /// index 0. Does nothing unless that is wider.
    void MakeCenter(int newWidth);
    /// Draws a straight line, both end points included; points outside the image are dropped.
    /// Both x coordinates come first. Integer line algorithm after J. E. Bresenham, "Algorithm
    /// for computer control of a digital plotter", IBM Systems Journal 4(1), 1965.
    void DrawLine(int startX, int endX, int startY, int endY, std::uint8_t index);

private:
    bool contains(std::int64_t x, std::int64_t y) const {
        return x >= 0 && y >= 0 && x < header.biWidth && y < header.biHeight;
    }
    std::uint8_t* rowAt(std::int64_t y) const { return info.bits + y * info.effWidth; }
    void setLastError(const char* text);
    bool checkSize(std::uint32_t width, std::uint32_t height, std::uint32_t bpp);
    void fillHeader(std::uint32_t width, std::uint32_t height, std::uint32_t bpp);
    /// What becomes of the pixels of a new image: nothing but zeros, or zeros behind the pixels
    /// of each row only, when every pixel is written anyway.
    enum class Rows { Zeroed, Written };
    bool create(std::uint32_t width, std::uint32_t height, std::uint32_t bpp, std::uint32_t type,
                Rows rows);
    /// Fills header and information record for an image that has no block yet.
    bool describe(std::uint32_t width, std::uint32_t height, std::uint32_t bpp, std::uint32_t type);
    bool allocate(Rows rows);
    void clearRowEnds();
    void useBlock(MallocBuffer block);
    void copyRows(const std::uint8_t* array, std::uint32_t bytesPerLine, bool flip);
    void mirrorBytesInto(RasterImage& target) const;
    void createLike(const RasterImage& source, std::uint32_t width, std::uint32_t height,
                    std::uint32_t bpp, Rows rows = Rows::Zeroed);

    BitmapInfoHeader header;
    RasterImageInfo info;
    MallocBuffer dib;
};
