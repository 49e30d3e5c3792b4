// Eight and sixteen pixels at a time.
#include "lanes/byte_words.h"

#include <gtest/gtest.h>

#include <array>

#include "lanes/byte_marks.h"

namespace {

TEST(ByteWords, HaveTheFirstPixelInTheLowestByte) {
    const std::array<std::uint8_t, 8> bytes = {1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(loadWord(bytes.data()), 0x0807060504030201U);
    EXPECT_EQ(loadPartOfWord(bytes.data(), 3), 0x030201U);
    std::array<std::uint8_t, 8> stored{};
    storeWord(0x0807060504030201U, stored.data());
    EXPECT_EQ(stored, bytes);
}

TEST(ByteWords, PackAndUnpackEveryByteOfDots) {
    for (unsigned dots = 0; dots < 256; ++dots) {
        const ByteWord bytes = unpackedBits(static_cast<std::uint8_t>(dots));
        for (unsigned i = 0; i < 8; ++i) {
            EXPECT_EQ(bytes >> (8 * i) & 0xFF, dots >> (7 - i) & 1);
        }
        EXPECT_EQ(packedTopBits(bytes << 7), dots);
    }
}

TEST(ByteMarks, AreThoseOfEveryLevelAgainstEveryLimit) {
    for (unsigned limit = 0; limit < 256; ++limit) {
        const lanes::Bytes limits = lanes::repeated(inEachByte(static_cast<std::uint8_t>(limit)));
        for (unsigned level = 0; level < 256; ++level) {
            std::array<std::uint8_t, 16> bytes{};
            bytes[level % 16] = static_cast<std::uint8_t>(level);
            const unsigned marks =
                lanes::packedMarks(lanes::isAtLeast(lanes::loadBytes(bytes.data()), limits));
            for (unsigned i = 0; i < 16; ++i) {
                const unsigned place = i / 8 * 8 + 7 - i % 8;
                ASSERT_EQ(marks >> place & 1, bytes[i] >= limit ? 1U : 0U)
                    << level << ", " << limit << ", " << i;
            }
        }
    }
}

TEST(ByteMarks, AreSetWherePixelsAreZero) {
    std::array<std::uint8_t, 16> bytes{};
    bytes.fill(1);
    bytes[0] = 0;
    bytes[9] = 0;
    EXPECT_EQ(lanes::packedMarks(lanes::isZero(lanes::loadBytes(bytes.data()))), 0x4080U);
}

}  // namespace
