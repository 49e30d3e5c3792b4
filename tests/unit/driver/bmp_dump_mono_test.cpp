// Pixels of the image dumps of 1 bit.
#include "tests/reference/bmp.h"
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

Bytes dumpOf(const Bytes& memory, std::size_t bytesPerLine, std::size_t height, std::size_t width,
             unsigned short bitCount = 1) {
    const TemporaryFolder folder;
    TestPrinter printer;
    printer.setImagePath(folder.path("dump.bmp"));
    printer.saveImage(memory.data(), bytesPerLine, height, width, bitCount);
    return readBytes(folder.path("dump.bmp"));
}

Bytes rowsOf(const Bytes& dump) {
    return {dump.begin() + 62, dump.end()};
}

TEST(MonoDump, SetsABitForEveryZeroByteAndForUnusedLowBits) {
    EXPECT_EQ(rowsOf(dumpOf(Bytes(10, 0), 10, 1, 10)), (Bytes{0xFF, 0xFF, 0x00, 0x00}));
    EXPECT_EQ(rowsOf(dumpOf(Bytes(10, 1), 10, 1, 10)), (Bytes{0x00, 0x3F, 0x00, 0x00}));
}

TEST(MonoDump, PutsTheFirstPixelIntoTheHighestBit) {
    EXPECT_EQ(rowsOf(dumpOf({0, 1, 2, 0, 255, 0, 9, 9}, 8, 1, 8)),
              (Bytes{0b10010100, 0x00, 0x00, 0x00}));
}

TEST(MonoDump, WritesTheLastRowFirst) {
    Bytes memory(24, 1);
    std::fill(memory.begin(), memory.begin() + 8, std::uint8_t{0});
    memory[8] = 0;
    EXPECT_EQ(rowsOf(dumpOf(memory, 8, 3, 8)),
              (Bytes{0x00, 0, 0, 0, 0x80, 0, 0, 0, 0xFF, 0, 0, 0}));
}

TEST(MonoDump, StartsEachRowWithAnEmptyBuffer) {
    Bytes memory(16, 0);
    std::fill(memory.begin(), memory.begin() + 8, std::uint8_t{1});
    EXPECT_EQ(rowsOf(dumpOf(memory, 8, 2, 8)), (Bytes{0xFF, 0, 0, 0, 0x00, 0, 0, 0}));
}

TEST(MonoDump, PacksTheWholeRowInMemoryAndNotOnlyTheWidth) {
    EXPECT_EQ(rowsOf(dumpOf(Bytes(16, 0), 16, 1, 3)), (Bytes{0xFF, 0xFF, 0x00, 0x00}));
}

TEST(MonoDump, DropsWhatHasNoRoomInTheRow) {
    const Bytes dump = dumpOf(Bytes(80, 0), 40, 2, 3);
    EXPECT_EQ(rowsOf(dump), Bytes(8, 0xFF));
}

TEST(MonoDump, IsThatOfTheReference) {
    for (std::uint32_t width = 1; width <= 70; ++width) {
        for (const std::uint32_t extra : {0U, 1U, 6U, 40U}) {
            Bytes memory = noise(std::size_t{width + extra} * 3, width);
            for (std::uint8_t& level : memory) {
                level = level < 128 ? 0 : level;
            }
            EXPECT_EQ(dumpOf(memory, width + extra, 3, width),
                      reference::monoDump(memory, width + extra, width, 3))
                << width << " columns of " << width + extra;
        }
    }
}

TEST(MonoDump, OfAnotherBitCountLacksOnlyThePalette) {
    const Bytes memory = noise(33, 5);
    EXPECT_EQ(dumpOf(memory, 11, 3, 11, 24), reference::monoDump(memory, 11, 11, 3, 24));
}

}  // namespace
