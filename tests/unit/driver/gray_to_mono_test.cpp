#include "tests/reference/grey_to_mono.h"

#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

struct Packing {
    int length = 0;
    Bytes packed;
    std::string log;
};

Packing pack(Bytes grey, int bytesPerLine, int height, std::size_t skipRight = 0) {
    TestPrinter printer;
    printer.setSkipRightPixels(skipRight);
    Packing result;
    result.log = errorOutputOf(
        [&] { result.length = printer.GrayToMono(bytesPerLine, height, grey.data()); });
    grey.resize(static_cast<std::size_t>(result.length));
    result.packed = grey;
    return result;
}

TEST(GrayToMono, SetsABitForEveryByteThatIsNotZero) {
    EXPECT_EQ(pack({0, 1, 255, 0, 7, 0, 0, 128}, 8, 1).packed, Bytes{0b01101001});
}

TEST(GrayToMono, StartsEveryRowInAByteOfItsOwn) {
    const Packing result = pack(Bytes(20, 9), 10, 2);
    EXPECT_EQ(result.length, 4);
    EXPECT_EQ(result.packed, (Bytes{0xFF, 0xC0, 0xFF, 0xC0}));
}

TEST(GrayToMono, LeavesUnusedLowBitsAtZero) {
    EXPECT_EQ(pack({1, 0, 1}, 3, 1).packed, Bytes{0b10100000});
}

TEST(GrayToMono, LeavesOutTheSkippedColumns) {
    const Packing result = pack(Bytes(20, 9), 10, 2, 3);
    EXPECT_EQ(result.length, 2);
    EXPECT_EQ(result.packed, (Bytes{0xFE, 0xFE}));
}

TEST(GrayToMono, ReadsRowsByTheirFullLengthWhenColumnsAreSkipped) {
    EXPECT_EQ(pack({1, 0, 0, 1, 0, 1, 1, 1}, 4, 2, 2).packed, (Bytes{0x80, 0x40}));
}

TEST(GrayToMono, PacksNothingForANegativeSize) {
    EXPECT_EQ(pack(Bytes(8, 1), 8, -1).length, 0);
    EXPECT_EQ(pack(Bytes(8, 1), -8, 1).length, 0);
}

TEST(GrayToMono, IgnoresASkipThatLeavesNothing) {
    EXPECT_EQ(pack(Bytes(8, 1), 8, 1, 8).packed, Bytes{0xFF});
    EXPECT_EQ(pack(Bytes(8, 1), 8, 1, 9).packed, Bytes{0xFF});
    EXPECT_EQ(pack(Bytes(8, 1), 8, 1, 7).packed, Bytes{0x80});
}

TEST(GrayToMono, PacksNothingOfAPageWithoutRows) {
    EXPECT_EQ(pack(Bytes(8, 1), 8, 0).length, 0);
}

TEST(GrayToMono, TracesItsSizes) {
    EXPECT_EQ(pack(Bytes(20, 9), 10, 2, 3).log,
              "DEBUG:GrayToMono, bpl(10), h(2), skipPixels(3), wb(7)\n");
    EXPECT_EQ(pack(Bytes(20, 9), 10, 2, 10).log,
              "DEBUG:GrayToMono, bpl(10), h(2), skipPixels(10), wb(10)\n");
}

// A page in which about half of the bytes are zero.
Bytes halfBlankPage(std::size_t size, std::uint32_t seed) {
    Bytes page = noise(size, seed);
    for (std::uint8_t& level : page) {
        level = level < 128 ? 0 : level;
    }
    return page;
}

TEST(GrayToMono, AgreesWithTheReferenceAtEveryWidth) {
    for (std::uint32_t width = 1; width <= 70; ++width) {
        for (std::uint32_t skip = 0; skip <= width + 1; skip += 3) {
            const Bytes page = halfBlankPage(std::size_t{width} * 5, width);
            const Packing result = pack(page, static_cast<int>(width), 5, skip);
            EXPECT_EQ(result.packed, reference::greyToMono(page, width, 5, skip))
                << width << " columns, skip " << skip;
            EXPECT_EQ(result.log, reference::greyToMonoLog(width, 5, skip) + "\n");
        }
    }
}

}  // namespace
