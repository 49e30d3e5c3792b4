// Mirroring at depths other than 8 bits: bytes are reversed, not pixels, and rows lie as far
// apart as in the source. Nothing beyond either image is touched.
#include <algorithm>

#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;

// The rows that mirroring makes of an image of these rows.
Bytes mirrored(std::uint32_t width, std::uint32_t height, std::uint32_t bpp, const Bytes& rows) {
    RasterImage image;
    makeImage(image, width, height, bpp, rows);
    image.Mirror();
    EXPECT_EQ(image.GetHeader().biBitCount, 8U);
    EXPECT_EQ(image.GetWidth(), static_cast<std::int32_t>(width));
    EXPECT_EQ(image.GetHeight(), static_cast<std::int32_t>(height));
    return rowsOf(image);
}

// What the byte at `place` of the new image must be: the last row that reaches it counts.
// A row reaches `last` + 1 bytes from its start.
std::uint8_t mirroredByte(const Bytes& rows, std::size_t height, std::size_t last,
                          std::size_t place) {
    const std::size_t stride = rows.size() / height;
    const std::size_t start = std::min(height - 1, place / stride) * stride;
    if (place > start + last) {
        return 0;
    }
    const std::size_t from = 2 * start + last - place;
    return from < rows.size() ? rows[from] : 0;
}

void expectReversedBytes(std::uint32_t width, std::uint32_t height, std::uint32_t bpp) {
    RasterImage sizes;
    sizes.Create(width, height, bpp, 0);
    const Bytes rows = noise(sizes.GetHeader().biSizeImage, width);
    const std::size_t last = std::size_t{width - 1} * (bpp == 24 ? 3 : 1);
    Bytes expected(reference::strideOf(width) * height);
    for (std::size_t place = 0; place < expected.size(); ++place) {
        expected[place] = mirroredByte(rows, height, last, place);
    }
    EXPECT_EQ(mirrored(width, height, bpp, rows), expected) << width << " × " << height;
}

void expectReversedBytes(std::uint32_t bpp) {
    for (std::uint32_t width = 1; width <= 130; ++width) {
        for (const std::uint32_t height : {1U, 2U, 5U}) {
            expectReversedBytes(width, height, bpp);
        }
    }
}

TEST(MirrorBytes, ReversesTheBytesThatTheWidthCountsAt1And4Bits) {
    const Bytes rows = {1, 2, 3, 4, 5, 6, 7, 8};
    for (const std::uint32_t bpp : {1U, 4U}) {
        EXPECT_EQ(mirrored(4, 2, bpp, rows), (Bytes{4, 3, 2, 1, 8, 7, 6, 5})) << bpp;
        EXPECT_EQ(mirrored(2, 2, bpp, rows), (Bytes{2, 1, 0, 0, 6, 5, 0, 0})) << bpp;
    }
}

TEST(MirrorBytes, ReadsBytesBehindA1BitImageAsZero) {
    EXPECT_EQ(mirrored(6, 1, 1, {1, 2, 3, 4}), (Bytes{0, 0, 4, 3, 2, 1, 0, 0}));
}

// Rows of 6 bytes, 4 bytes apart: the second overlays the end of the first.
TEST(MirrorBytes, OverlaysRowsThatAreLongerThanTheStride) {
    EXPECT_EQ(mirrored(6, 2, 4, {1, 2, 3, 4, 5, 6, 7, 8}),
              (Bytes{6, 5, 4, 3, 0, 0, 8, 7, 6, 5, 0, 0, 0, 0, 0, 0}));
}

TEST(MirrorBytes, ReversesBytesUpToTheFirstOfTheLastPixelAt24Bits) {
    EXPECT_EQ(mirrored(1, 2, 24, {1, 2, 3, 4, 5, 6, 7, 8}), (Bytes{1, 0, 0, 0, 5, 0, 0, 0}));
    EXPECT_EQ(mirrored(2, 1, 24, {1, 2, 3, 4, 5, 6, 7, 8}), (Bytes{4, 3, 2, 1}));
}

TEST(MirrorBytes, DropsRowsOf24BitsBehindTheNewImage) {
    const Bytes rows = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    EXPECT_EQ(mirrored(2, 2, 24, rows), (Bytes{4, 3, 2, 1, 0, 0, 0, 0}));
}

TEST(MirrorBytes, StaysWithinMemoryAt1Bit) {
    expectReversedBytes(1);
}

TEST(MirrorBytes, StaysWithinMemoryAt4Bits) {
    expectReversedBytes(4);
}

TEST(MirrorBytes, StaysWithinMemoryAt24Bits) {
    expectReversedBytes(24);
}

}  // namespace
