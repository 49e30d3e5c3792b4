#include "enhance/grey_conversion.h"

#include <gtest/gtest.h>

#include "tests/reference/stencil_tone.h"
#include "tests/unit/enhance/stencil_pages.h"

namespace {

using reference::ChannelOrder;
using stencil_pages::Bytes;
using stencil_pages::bytesOf;

struct Layout {
    std::size_t channels;
    QM_IMG_COLOR color;
    ChannelOrder order;
};

constexpr auto kBeyondTheNames = static_cast<QM_IMG_COLOR>(7);
constexpr auto kNegative = static_cast<QM_IMG_COLOR>(-1);

const Layout kLayouts[] = {
    {3, QM_IMG_BGR, ChannelOrder::blueFirst},     {3, QM_IMG_RGB, ChannelOrder::redFirst},
    {4, QM_IMG_BGRA, ChannelOrder::blueFirst},    {4, QM_IMG_RGBA, ChannelOrder::redFirst},
    {4, kBeyondTheNames, ChannelOrder::redFirst}, {4, kNegative, ChannelOrder::redFirst}};

Bytes greyOf(QM_IMG_COLOR color, int width, int height, const Bytes& pixels) {
    return bytesOf(cvtGray(QMImage(width, height, color, pixels.data())));
}

/// One pixel of a layout with these channels.
Bytes pixelOf(const Layout& layout, std::uint8_t first, std::uint8_t second, std::uint8_t third) {
    Bytes pixel = {first, second, third};
    pixel.resize(layout.channels, 99);
    return pixel;
}

TEST(CvtGray, KeepsGreyAsItIs) {
    EXPECT_EQ(greyOf(QM_IMG_GRAY, 2, 2, {0, 1, 254, 255}), (Bytes{0, 1, 254, 255}));
}

TEST(CvtGray, GivesAGreyImageOfTheSameSize) {
    for (const Layout& layout : kLayouts) {
        const QMImage grey = cvtGray(QMImage(3, 2, layout.color, Bytes(24, 1).data()));
        EXPECT_EQ(grey.width, 3);
        EXPECT_EQ(grey.height, 2);
        EXPECT_EQ(grey.channels, 1);
        EXPECT_EQ(grey.color, QM_IMG_GRAY);
    }
}

TEST(CvtGray, WeighsBlueGreenAndRedInTheOrderOfTheLayout) {
    // 255 × 0.114 = 29.07, × 0.587 = 149.685, × 0.299 = 76.245.
    for (const Layout& layout : kLayouts) {
        const bool blueFirst = layout.order == ChannelOrder::blueFirst;
        const std::uint8_t first = blueFirst ? 29 : 76;
        const std::uint8_t third = blueFirst ? 76 : 29;
        EXPECT_EQ(greyOf(layout.color, 1, 1, pixelOf(layout, 255, 0, 0)), Bytes{first});
        EXPECT_EQ(greyOf(layout.color, 1, 1, pixelOf(layout, 0, 255, 0)), Bytes{150});
        EXPECT_EQ(greyOf(layout.color, 1, 1, pixelOf(layout, 0, 0, 255)), Bytes{third});
    }
}

TEST(CvtGray, RoundsToTheNearestLevel) {
    // 0.299 × 10 + 0.587 × 20 + 0.114 × 30 = 18.15; 18.55 with a red of 11 and a blue of 31.
    EXPECT_EQ(greyOf(QM_IMG_RGB, 2, 1, {10, 20, 30, 11, 20, 31}), (Bytes{18, 19}));
}

TEST(CvtGray, KeepsBlackWhiteAndTheGreysBetween) {
    for (const Layout& layout : kLayouts) {
        for (int level = 0; level < 256; ++level) {
            const auto byte = static_cast<std::uint8_t>(level);
            EXPECT_EQ(greyOf(layout.color, 1, 1, pixelOf(layout, byte, byte, byte)), Bytes{byte});
        }
    }
}

TEST(CvtGray, AddsTheThirdChannelLastInSinglePrecision) {
    for (const Layout& layout : kLayouts) {
        const int width = 1024;
        const int height = 64;
        const Bytes pixels =
            stencil_pages::noisePage(width, height * static_cast<int>(layout.channels),
                                     static_cast<std::uint32_t>(layout.channels))
                .levels;
        EXPECT_EQ(greyOf(layout.color, width, height, pixels),
                  reference::greyLevels(pixels, layout.channels, layout.order));
    }
}

TEST(CvtGray, OfAnEmptyImageIsEmpty) {
    const QMImage grey = cvtGray(QMImage(0, 4, QM_IMG_BGR));
    EXPECT_EQ(grey.width, 0);
    EXPECT_EQ(grey.height, 4);
    EXPECT_EQ(grey.size(), 0U);
}

}  // namespace
