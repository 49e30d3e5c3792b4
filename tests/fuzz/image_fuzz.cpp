#include <cstdlib>
#include <cstring>

#include "image/raster_image.h"
#include "tests/fuzz/fuzz_target.h"
#include "tests/fuzz/input_bytes.h"
#include "tests/fuzz/plain_image.h"

// Any sequence of operations on an image, compared with a plain one after each of them. The input
// holds one byte for an operation, then its arguments, then the next operation.

namespace {

constexpr std::size_t mostColumns = 130;
constexpr std::size_t mostRows = 40;

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// The image under test and what it should be.
struct Pair {
    RasterImage image;
    PlainImage plain;
};

void requireSame(const RasterImage& image, const PlainImage& plain) {
    require(image.IsValid() == plain.isValid());
    if (!plain.isValid()) {
        require(image.GetBits() == nullptr && image.GetPalette() == nullptr);
        return;
    }
    require(image.GetWidth() == static_cast<int>(plain.width));
    require(image.GetHeight() == static_cast<int>(plain.height));
    require(image.GetHeader().biBitCount == plain.depth);
    require(image.GetEffWidth() == plain.stride);
    require(image.GetNumColors() == plain.palette.size());
    require(image.GetPaletteSize() == plain.palette.size() * sizeof(tagRGBQUAD));
    require(image.GetSize() ==
            sizeof(BitmapInfoHeader) + image.GetPaletteSize() + plain.bytes.size());
    require(plain.palette.empty() == (image.GetPalette() == nullptr));
    require(plain.palette.empty() ||
            std::equal(plain.palette.begin(), plain.palette.end(), image.GetPalette()));
    require(std::memcmp(image.GetBits(), plain.bytes.data(), plain.bytes.size()) == 0);
    require(image.GetBits(static_cast<std::uint32_t>(plain.height)) == nullptr);
}

tagRGBQUAD colourFrom(InputBytes& input) {
    tagRGBQUAD colour;
    colour.rgbBlue = input.byte();
    colour.rgbGreen = input.byte();
    colour.rgbRed = input.byte();
    colour.rgbReserved = input.byte();
    return colour;
}

std::size_t roundedDepth(unsigned bits) {
    for (const unsigned depth : {1U, 4U, 8U}) {
        if (bits <= depth) {
            return depth;
        }
    }
    return 24;
}

void create(Pair& pair, InputBytes& input) {
    const std::size_t width = input.byte() % (mostColumns + 1);
    const std::size_t height = input.byte() % (mostRows + 1);
    const unsigned bits = input.byte();
    const bool made = pair.image.Create(static_cast<std::uint32_t>(width),
                                        static_cast<std::uint32_t>(height), bits, 0) != nullptr;
    require(made == (width != 0 && height != 0));
    pair.plain = made ? PlainImage::made(width, height, roundedDepth(bits)) : PlainImage{};
}

PlainImage plainFromArray(const std::vector<std::uint8_t>& array, std::size_t rowBytes, bool flip,
                          std::size_t bits, PlainImage image) {
    image.setGreyPalette();
    for (std::size_t y = 0; y < image.height; ++y) {
        const std::size_t from = y * rowBytes;
        const std::size_t to = (flip ? image.height - 1 - y : y) * image.stride;
        const std::size_t count = bits == 32 ? image.width * 3 : std::min(image.stride, rowBytes);
        for (std::size_t i = 0; i < count; ++i) {
            image.bytes[to + i] = array[from + (bits == 32 ? i / 3 * 4 + i % 3 : i)];
        }
    }
    return image;
}

void createFromArray(Pair& pair, InputBytes& input) {
    constexpr std::uint32_t depths[] = {1, 4, 8, 24, 32, 16};
    const std::size_t width = 1 + input.byte() % mostColumns;
    const std::size_t height = 1 + input.byte() % mostRows;
    const std::uint32_t bits = depths[input.byte() % std::size(depths)];
    const bool flip = input.byte() % 2 != 0;
    // Shorter than the image's rows, or longer.
    const std::size_t enough = (width * bits + 7) / 8;
    const std::size_t chosen = input.byte();
    const std::size_t rowBytes = bits == 32 || chosen < 128 ? enough + chosen % 9 : chosen - 127;
    const std::vector<std::uint8_t> array = input.bytes(rowBytes * height);
    const bool made = pair.image.CreateFromArray(array.data(), static_cast<std::uint32_t>(width),
                                                 static_cast<std::uint32_t>(height), bits,
                                                 static_cast<std::uint32_t>(rowBytes), flip);
    require(made == (bits != 16));
    if (made) {
        pair.plain = plainFromArray(array, rowBytes, flip, bits,
                                    PlainImage::made(width, height, bits == 32 ? 24 : bits));
    }
}

void destroy(Pair& pair) {
    require(pair.image.Destroy());
    pair.plain = {};
}

void transfer(Pair& pair) {
    RasterImage other;
    other.Transfer(pair.image);
    requireSame(pair.image, {});
    pair.image.Transfer(other);
    requireSame(other, {});
}

void pixels(Pair& pair, InputBytes& input) {
    const std::int64_t x = input.byte() - 2;
    const std::int64_t y = input.byte() % 64 - 2;
    const std::uint8_t value = input.byte();
    pair.image.SetPixelIndex(x, y, value);
    pair.plain.setIndex(x, y, value);
    const PlainImage& plain = pair.plain;
    std::uint8_t expected = 0;
    if (!plain.palette.empty()) {
        expected = plain.contains(x, y)
                       ? plain.index(static_cast<std::size_t>(x), static_cast<std::size_t>(y))
                       : plain.bytes[0];
    }
    require(pair.image.GetPixelIndex(x, y) == expected);
}

void blindPixels(Pair& pair, InputBytes& input) {
    const std::size_t column = input.byte();
    const std::size_t row = input.byte();
    const tagRGBQUAD colour = colourFrom(input);
    if (!pair.plain.isValid()) {
        return;
    }
    const std::size_t x = column % pair.plain.width;
    const std::size_t y = row % pair.plain.height;
    const auto signedX = static_cast<std::int64_t>(x);
    const auto signedY = static_cast<std::int64_t>(y);
    pair.image.BlindSetPixelColor(signedX, signedY, colour);
    pair.plain.setColour(x, y, colour);
    require(pair.image.BlindGetPixelColor(signedX, signedY) == pair.plain.colour(x, y));
    require(pair.image.BlindGetPixelIndex(signedX, signedY) == pair.plain.index(x, y));
}

void paletteColour(Pair& pair, InputBytes& input) {
    const std::uint8_t index = input.byte();
    const tagRGBQUAD colour = colourFrom(input);
    pair.image.SetPaletteColor(index, colour.rgbRed, colour.rgbGreen, colour.rgbBlue,
                               colour.rgbReserved);
    const bool exists = index < pair.plain.palette.size();
    if (exists) {
        pair.plain.palette[index] = colour;
    }
    require(pair.image.GetPaletteColor(index) == (exists ? colour : tagRGBQUAD{}));
}

void palette(Pair& pair, InputBytes& input) {
    const std::size_t count = input.byte();
    std::vector<tagRGBQUAD> colours(count);
    for (tagRGBQUAD& colour : colours) {
        colour = colourFrom(input);
    }
    pair.image.SetPalette(colours.data(), static_cast<std::uint32_t>(count));
    std::copy_n(colours.begin(), std::min(count, pair.plain.palette.size()),
                pair.plain.palette.begin());
}

void greyPalette(Pair& pair) {
    pair.image.SetGrayPalette();
    pair.plain.setGreyPalette();
}

void nearestColour(Pair& pair, InputBytes& input) {
    const unsigned important = input.byte();
    const tagRGBQUAD colour = colourFrom(input);
    pair.image.SetClrImportant(important);
    require(pair.image.GetNearestIndex(colour) ==
            (pair.plain.palette.empty() ? 0 : pair.plain.nearest(colour, important)));
    pair.image.SetClrImportant(0);
}

void dither(Pair& pair, InputBytes& input) {
    const long method = input.number() % 16;
    require(pair.image.Dither(method) == pair.plain.isValid());
    if (pair.plain.isValid()) {
        pair.plain = pair.plain.dithered(method);
    }
}

void light(Pair& pair, InputBytes& input) {
    // A page's brightness and contrast, of which neither can be beyond this.
    const int brightness = input.number() % 501;
    const int contrast = input.number() % 201;
    require(pair.image.Light(brightness, contrast) == pair.plain.isValid());
    pair.plain.replaceIndices(reference::lightTable(brightness, contrast));
}

void lookUp(Pair& pair, InputBytes& input) {
    const std::uint8_t factor = input.byte();
    const std::uint8_t offset = input.byte();
    reference::ToneTable table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = static_cast<std::uint8_t>(i * factor + offset);
    }
    require(pair.image.Lut(table.data()) == pair.plain.isValid());
    require(!pair.image.Lut(nullptr));
    pair.plain.replaceIndices(table);
}

void negative(Pair& pair) {
    pair.image.Negative();
    for (std::uint8_t& byte : pair.plain.bytes) {
        byte = static_cast<std::uint8_t>(255 - byte);
    }
}

void rotate(Pair& pair, InputBytes& input) {
    const bool aside = input.byte() % 2 != 0;
    RasterImage other;
    require(pair.image.Rotate180(aside ? &other : nullptr) == pair.plain.isValid());
    const PlainImage rotated = pair.plain.isValid() ? pair.plain.rotated() : PlainImage{};
    if (aside) {
        requireSame(other, rotated);
    } else {
        pair.plain = rotated;
    }
}

void mirror(Pair& pair) {
    pair.image.Mirror();
    if (pair.plain.isValid()) {
        pair.plain = pair.plain.mirrored();
    }
}

void increaseDepth(Pair& pair, InputBytes& input) {
    constexpr std::uint32_t depths[] = {4, 8, 24, 0, 1, 7, 32};
    const std::uint32_t depth = depths[input.byte() % std::size(depths)];
    const bool possible = depth == 4 || depth == 8 || depth == 24;
    const PlainImage& plain = pair.plain;
    const bool works = plain.isValid() && possible && depth >= plain.depth;
    require(pair.image.IncreaseBpp(depth) == works);
    if (works && depth > plain.depth) {
        pair.plain = plain.deepened(depth);
    }
}

void expand(Pair& pair, InputBytes& input) {
    long margins[4];
    for (long& margin : margins) {
        margin = input.byte() % 16 - 1;
    }
    const tagRGBQUAD canvas = colourFrom(input);
    if (pair.plain.width > 2 * mostColumns || pair.plain.height > 2 * mostRows) {
        return;
    }
    const bool works = pair.plain.isValid() && *std::min_element(margins, margins + 4) >= 0;
    require(pair.image.Expand(margins[0], margins[1], margins[2], margins[3], canvas) == works);
    if (works) {
        const auto side = [&](int i) { return static_cast<std::size_t>(margins[i]); };
        pair.plain = pair.plain.expanded(side(0), side(1), side(2), side(3), canvas);
    }
}

void centre(Pair& pair, InputBytes& input) {
    const int width = input.byte() - 1;
    pair.image.MakeCenter(width);
    if (pair.plain.isValid() && width > static_cast<int>(pair.plain.width)) {
        pair.plain = pair.plain.centred(static_cast<std::size_t>(width));
    }
}

void line(Pair& pair, InputBytes& input) {
    int ends[4];
    for (int& end : ends) {
        end = input.byte() - 50;
    }
    const std::uint8_t index = input.byte();
    pair.image.DrawLine(ends[0], ends[1], ends[2], ends[3], index);
    pair.plain.drawLine(ends[0], ends[1], ends[2], ends[3], index);
}

void apply(unsigned operation, Pair& pair, InputBytes& input) {
    switch (operation % 20) {
        case 0:
            return create(pair, input);
        case 1:
            return createFromArray(pair, input);
        case 2:
            return pixels(pair, input);
        case 3:
            return blindPixels(pair, input);
        case 4:
            return paletteColour(pair, input);
        case 5:
            return palette(pair, input);
        case 6:
            return greyPalette(pair);
        case 7:
            return nearestColour(pair, input);
        case 8:
            return dither(pair, input);
        case 9:
            return light(pair, input);
        case 10:
            return lookUp(pair, input);
        case 11:
            return negative(pair);
        case 12:
            return rotate(pair, input);
        case 13:
            return mirror(pair);
        case 14:
            return increaseDepth(pair, input);
        case 15:
            return expand(pair, input);
        case 16:
            return centre(pair, input);
        case 17:
            return line(pair, input);
        case 18:
            return transfer(pair);
        default:
            return destroy(pair);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int mostOperations = 32;
    InputBytes input(data, size);
    Pair pair;
    for (int i = 0; i < mostOperations && !input.isAtEnd(); ++i) {
        apply(input.byte(), pair, input);
        requireSame(pair.image, pair.plain);
    }
    return 0;
}
