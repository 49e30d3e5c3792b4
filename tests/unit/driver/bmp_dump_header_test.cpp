// The header and the palette of the image dumps, field by field.
#include <array>

#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

// The dump of an image without content.
Bytes dumpOf(std::size_t width, std::size_t height, unsigned short bitCount) {
    const TemporaryFolder folder;
    TestPrinter printer;
    printer.setImagePath(folder.path("dump.bmp"));
    const Bytes pixels(width * height, 0);
    printer.saveImage(pixels.data(), width, height, width, bitCount);
    return readBytes(folder.path("dump.bmp"));
}

// An unsigned field, lowest byte first.
std::uint32_t field(const Bytes& dump, std::size_t offset, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = size; i > 0; --i) {
        value = value * 256 + dump.at(offset + i - 1);
    }
    return value;
}

struct Field {
    const char* name;
    std::size_t offset;
    std::size_t size;
    std::uint32_t value;
};

std::string nameOf(const testing::TestParamInfo<Field>& row) {
    return row.param.name;
}

// 301 columns make rows of 304 bytes with 8 bits and of 40 bytes with 1 bit.
class GreyHeader : public testing::TestWithParam<Field> {};

TEST_P(GreyHeader, HasTheFieldInItsPlace) {
    EXPECT_EQ(field(dumpOf(301, 7, 8), GetParam().offset, GetParam().size), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, GreyHeader,
    testing::Values(Field{"Signature", 0, 2, 0x4D42}, Field{"FileSize", 2, 4, 1078 + 304 * 7},
                    Field{"Reserved1", 6, 2, 0}, Field{"Reserved2", 8, 2, 0},
                    Field{"PixelOffset", 10, 4, 1078}, Field{"HeaderSize", 14, 4, 40},
                    Field{"Width", 18, 4, 301}, Field{"Height", 22, 4, 7},
                    Field{"Planes", 26, 2, 1}, Field{"BitsPerPixel", 28, 2, 8},
                    Field{"Compression", 30, 4, 0}, Field{"ImageSize", 34, 4, 304 * 7},
                    Field{"HorizontalResolution", 38, 4, 0}, Field{"VerticalResolution", 42, 4, 0},
                    Field{"ColoursUsed", 46, 4, 256}, Field{"ImportantColours", 50, 4, 256}),
    nameOf);

class MonoHeader : public testing::TestWithParam<Field> {
protected:
    static void expectField(unsigned short bitCount) {
        EXPECT_EQ(field(dumpOf(301, 7, bitCount), GetParam().offset, GetParam().size),
                  GetParam().value);
    }
};

TEST_P(MonoHeader, HasTheFieldInItsPlace) {
    expectField(1);
}

TEST_P(MonoHeader, IsThatOfEveryOtherBitCountToo) {
    for (const auto bitCount : std::to_array<unsigned short>({0, 2, 4, 16, 24, 32})) {
        SCOPED_TRACE(bitCount);
        expectField(bitCount);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Fields, MonoHeader,
    testing::Values(Field{"Signature", 0, 2, 0x4D42}, Field{"FileSize", 2, 4, 62 + 40 * 7},
                    Field{"Reserved1", 6, 2, 0}, Field{"Reserved2", 8, 2, 0},
                    Field{"PixelOffset", 10, 4, 62}, Field{"HeaderSize", 14, 4, 40},
                    Field{"Width", 18, 4, 301}, Field{"Height", 22, 4, 7},
                    Field{"Planes", 26, 2, 1}, Field{"BitsPerPixel", 28, 2, 1},
                    Field{"Compression", 30, 4, 0}, Field{"ImageSize", 34, 4, 40 * 7},
                    Field{"HorizontalResolution", 38, 4, 0}, Field{"VerticalResolution", 42, 4, 0},
                    Field{"ColoursUsed", 46, 4, 0}, Field{"ImportantColours", 50, 4, 0}),
    nameOf);

TEST(DumpPalette, OfGreyLevelsIsARampFromBlackToWhite) {
    const Bytes dump = dumpOf(4, 1, 8);
    for (std::size_t i = 0; i < 256; ++i) {
        const auto level = static_cast<std::uint32_t>(i);
        EXPECT_EQ(field(dump, 54 + 4 * i, 4), level * 0x010101U) << "entry " << i;
    }
}

TEST(DumpPalette, OfOneBitIsBlackAndWhite) {
    const Bytes dump = dumpOf(4, 1, 1);
    EXPECT_EQ(field(dump, 54, 4), 0U);
    EXPECT_EQ(field(dump, 58, 4), 0x00FFFFFFU);
    EXPECT_EQ(dump.size(), 62U + 4);
}

TEST(DumpPalette, IsLeftOutForOtherBitCounts) {
    for (const auto bitCount : std::to_array<unsigned short>({0, 4, 24})) {
        const Bytes dump = dumpOf(8, 1, bitCount);
        EXPECT_EQ(dump.size(), 54U + 4) << bitCount;
        EXPECT_EQ(field(dump, 54, 4), 0x000000FFU) << bitCount;
    }
}

}  // namespace
