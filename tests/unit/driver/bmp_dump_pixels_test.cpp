// Pixels of the image dumps of 8 bits.
#include "tests/reference/bmp.h"
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

Bytes dumpOf(const Bytes& memory, std::size_t bytesPerLine, std::size_t height, std::size_t width) {
    const TemporaryFolder folder;
    TestPrinter printer;
    printer.setImagePath(folder.path("dump.bmp"));
    printer.saveImage(memory.data(), bytesPerLine, height, width, 8);
    return readBytes(folder.path("dump.bmp"));
}

Bytes pixelsOf(const Bytes& dump) {
    return {dump.begin() + 1078, dump.end()};
}

TEST(GreyDump, HoldsThePixelsInMemoryOrder) {
    const Bytes dump = dumpOf({1, 2, 3, 4, 5, 6, 7, 8}, 4, 2, 4);
    EXPECT_EQ(dump.size(), 1086U);
    EXPECT_EQ(pixelsOf(dump), (Bytes{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(GreyDump, DoesNotPadItsRows) {
    const Bytes dump = dumpOf({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 5, 2, 5);
    EXPECT_EQ(dump.size(), 1088U);
    EXPECT_EQ(Bytes(dump.begin() + 34, dump.begin() + 38), (Bytes{16, 0, 0, 0}));
    EXPECT_EQ(pixelsOf(dump), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST(GreyDump, TakesOneBlockWhateverTheDistanceOfTheRows) {
    EXPECT_EQ(pixelsOf(dumpOf({1, 2, 3, 4, 5, 6, 7, 8}, 4, 2, 3)), (Bytes{1, 2, 3, 4, 5, 6}));
}

TEST(GreyDump, OfAnImageWithoutColumnsIsItsHeaderAndPalette) {
    EXPECT_EQ(dumpOf({1, 2, 3, 4}, 4, 1, 0).size(), 1078U);
}

TEST(GreyDump, IsThatOfTheReference) {
    for (std::uint32_t width = 1; width <= 40; ++width) {
        const Bytes memory = noise(std::size_t{width + 3} * 3, width);
        EXPECT_EQ(dumpOf(memory, width + 3, 3, width), reference::greyDump(memory, width, 3))
            << width;
    }
}

}  // namespace
