// BMP files that streams store in the printer.
#include "tests/unit/tspl/picture_bytes.h"

namespace tspl {
namespace {

using namespace std::string_literals;

const std::string whiteBlack = "\xFF\xFF\xFF\0\0\0\0\0"s;
const std::string blackWhite = "\0\0\0\0\xFF\xFF\xFF\0"s;

Texts read(const std::string& file) {
    return rowsOf(readBmp(bytesOf(file)));
}

TEST(BmpFile, HasItsLastRowFirst) {
    EXPECT_EQ(read(bmpOf(10, 2, 1, whiteBlack, "\x80\0\0\0\xFF\x40\0\0"s)),
              (Texts{"########.#......", "#..............."}));
}

TEST(BmpFile, OfANegativeHeightHasItsFirstRowFirst) {
    EXPECT_EQ(read(bmpOf(10, -2, 1, whiteBlack, "\x80\0\0\0\xFF\x40\0\0"s)),
              (Texts{"#...............", "########.#......"}));
}

TEST(BmpFile, BurnsItsDarkColours) {
    EXPECT_EQ(read(bmpOf(8, 1, 1, blackWhite, "\xF0\0\0\0"s)), Texts{"....####"});
    EXPECT_EQ(read(bmpOf(8, 1, 1, blackWhite, "\x0F\0\0\0"s)), Texts{"####...."});
}

TEST(BmpFile, Has4BitsOr8OrAColourForADot) {
    EXPECT_EQ(read(bmpOf(3, 1, 4, blackWhite, "\x01\x00\0\0"s)), Texts{"#.#....."});
    EXPECT_EQ(read(bmpOf(3, 1, 8, blackWhite, "\0\1\0\0"s)), Texts{"#.#....."});
    EXPECT_EQ(read(bmpOf(3, 1, 24, "", "\x7F\x7F\x7F\x80\x80\x80\xFF\0\0\0\0\0"s)),
              Texts{"#.#....."});
}

// Rec. 601: red 0.299, green 0.587, blue 0.114 of 255.
TEST(BmpFile, TakesAColourForDarkByItsLuma) {
    const std::string colours = "\xFF\0\0\0\xFF\0\0\0\xFF\0\xFF\xFF"s;  // blue, green, red, yellow
    EXPECT_EQ(read(bmpOf(4, 1, 24, "", colours)), Texts{"#.#....."});
}

TEST(BmpFile, DoesNotBurnWhatFillsTheLastByte) {
    EXPECT_EQ(read(bmpOf(3, 1, 1, blackWhite, "\0\0\0\0"s)), Texts{"###....."});
}

TEST(BmpFile, ThatEndsEarlyOrIsOfAnotherKindIsNotRead) {
    const std::string good = bmpOf(10, 2, 1, whiteBlack, "\x80\0\0\0\xFF\x40\0\0"s);
    for (std::size_t bytes = 0; bytes < good.size(); ++bytes) {
        EXPECT_EQ(read(good.substr(0, bytes)), Texts{}) << bytes;
    }
    EXPECT_EQ(read("BX" + good.substr(2)), Texts{});
    EXPECT_EQ(read(bmpOf(10, 2, 2, whiteBlack, "\x80\0\0\0\xFF\x40\0\0"s)), Texts{});
    EXPECT_EQ(read(bmpOf(0, 2, 1, whiteBlack, "\x80\0\0\0\xFF\x40\0\0"s)), Texts{});
    EXPECT_EQ(read(bmpOf(-10, 2, 1, whiteBlack, "\x80\0\0\0\xFF\x40\0\0"s)), Texts{});
    EXPECT_EQ(read(bmpOf(INT32_MAX, INT32_MIN, 1, whiteBlack, "\x80\0\0\0"s)), Texts{});
    std::string packed = good;
    packed[30] = 1;
    EXPECT_EQ(read(packed), Texts{});
}

}  // namespace
}  // namespace tspl
