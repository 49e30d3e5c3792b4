// Tone and geometry of 8-bit images against the reference, byte for byte with the padding.
#include "tests/reference/transforms.h"

#include <numeric>

#include "tests/reference/tone.h"
#include "tests/unit/image/test_images.h"

namespace {

using reference::GreyImage;

constexpr std::size_t heights[] = {1, 2, 5};

void expectSame(const RasterImage& image, const GreyImage& expected) {
    ASSERT_EQ(static_cast<std::size_t>(image.GetWidth()), expected.width);
    ASSERT_EQ(static_cast<std::size_t>(image.GetHeight()), expected.height);
    ASSERT_EQ(image.GetEffWidth(), expected.stride);
    if (rowsOf(image) != expected.bytes) {
        FAIL() << testing::PrintToString(rowsOf(image)) << " is not "
               << testing::PrintToString(expected.bytes);
    }
}

// Compares `change` of an image with `expected` of a reference image on pages of noise.
template <typename Change, typename Expected>
void expectAsReference(Change change, Expected expected) {
    for (std::size_t width = 1; width <= 130; ++width) {
        for (const std::size_t height : heights) {
            SCOPED_TRACE(testing::Message() << width << " × " << height);
            const GreyImage page = noisyImage(width, height, static_cast<std::uint32_t>(width));
            RasterImage image;
            makeLike(image, page);
            change(image);
            expectSame(image, expected(page));
        }
    }
}

TEST(TransformsReference, LightIsMetAtAllWidths) {
    expectAsReference([](RasterImage& image) { image.Light(15, 40); },
                      [](GreyImage page) {
                          reference::light(page, 15, 40);
                          return page;
                      });
}

TEST(TransformsReference, LightIsMetAtAllSettings) {
    GreyImage levels = reference::filledImage(256, 1, 0);
    std::iota(levels.bytes.begin(), levels.bytes.end(), std::uint8_t{0});
    for (int brightness = -260; brightness <= 260; brightness += 5) {
        for (int contrast = -220; contrast <= 220; contrast += 2) {
            SCOPED_TRACE(testing::Message() << brightness << ", " << contrast);
            RasterImage image;
            makeLike(image, levels);
            image.Light(brightness, contrast);
            GreyImage expected = levels;
            reference::light(expected, brightness, contrast);
            expectSame(image, expected);
        }
    }
}

TEST(TransformsReference, LightIsMetAtOddSettings) {
    GreyImage levels = reference::filledImage(256, 1, 0);
    std::iota(levels.bytes.begin(), levels.bytes.end(), std::uint8_t{0});
    for (int contrast = -333; contrast <= 999; ++contrast) {
        SCOPED_TRACE(contrast);
        RasterImage image;
        makeLike(image, levels);
        image.Light(contrast / 7, contrast);
        GreyImage expected = levels;
        reference::light(expected, contrast / 7, contrast);
        expectSame(image, expected);
    }
}

TEST(TransformsReference, NegativeIsMetAtAllWidths) {
    expectAsReference([](RasterImage& image) { image.Negative(); }, reference::negative);
}

TEST(TransformsReference, Rotate180IsMetAtAllWidths) {
    expectAsReference([](RasterImage& image) { image.Rotate180(); }, reference::rotate180);
}

TEST(TransformsReference, MirrorIsMetAtAllWidths) {
    expectAsReference([](RasterImage& image) { image.Mirror(); }, reference::mirror);
}

TEST(TransformsReference, ExpandIsMetAtAllWidths) {
    for (const std::uint8_t fill : reference::Bytes{0, 200, 255}) {
        expectAsReference(
            [fill](RasterImage& image) {
                image.Expand(3, 2, 6, 1, {fill, fill, fill, 0});
            },
            [fill](const GreyImage& page) {
                return reference::expand(page, {.left = 3, .top = 2, .right = 6, .bottom = 1},
                                         fill);
            });
    }
}

TEST(TransformsReference, ExpandIsMetWithEveryCombinationOfBorders) {
    const GreyImage page = noisyImage(5, 3);
    for (long borders = 0; borders < 256; ++borders) {
        SCOPED_TRACE(borders);
        const long left = borders % 4;
        const long top = borders / 4 % 4;
        const long right = borders / 16 % 4;
        const long bottom = borders / 64;
        const reference::Margins margins = {
            static_cast<std::size_t>(left), static_cast<std::size_t>(top),
            static_cast<std::size_t>(right), static_cast<std::size_t>(bottom)};
        RasterImage image;
        makeLike(image, page);
        image.Expand(left, top, right, bottom, {90, 90, 90, 0});
        expectSame(image, reference::expand(page, margins, 90));
    }
}

TEST(TransformsReference, MakeCenterIsMetAtAllWidths) {
    for (const int newWidth : {1, 64, 65, 130, 131, 200}) {
        expectAsReference([newWidth](RasterImage& image) { image.MakeCenter(newWidth); },
                          [newWidth](const GreyImage& page) {
                              return reference::makeCenter(page,
                                                           static_cast<std::size_t>(newWidth));
                          });
    }
}

}  // namespace
