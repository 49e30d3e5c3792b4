// PCX files that streams store in the printer.
#include "tests/unit/tspl/picture_bytes.h"

namespace tspl {
namespace {

using namespace std::string_literals;

Texts read(const std::string& file) {
    return rowsOf(readPcx(bytesOf(file)));
}

TEST(PcxFile, BurnsItsZeroBits) {
    EXPECT_EQ(read(pcxOf(10, 2, 1, 2, "\x0F\x3F\x40\x00"s)),
              (Texts{"####....##......", "#.########......"}));
}

TEST(PcxFile, HasRunsOfBytes) {
    EXPECT_EQ(read(pcxOf(24, 2, 1, 4, "\xC4\xFF\xC2\x00\xC2\xFF"s)),
              (Texts{std::string(24, '.'), "################........"}));
}

TEST(PcxFile, HasRunsOfNothing) {
    EXPECT_EQ(read(pcxOf(8, 1, 1, 2, "\xC0\x55\x0F\x00"s)), Texts{"####...."});
}

TEST(PcxFile, OfBytesHasItsPaletteAtTheEnd) {
    std::string palette(768, '\xFF');
    palette.replace(3 * 5, 3, "\0\0\0"s);
    EXPECT_EQ(read(pcxOf(4, 1, 8, 4, "\5\0\5\1"s + "\x0C" + palette)), Texts{"#.#....."});
}

TEST(PcxFile, ThatEndsEarlyOrIsOfAnotherKindIsNotRead) {
    const std::string good = pcxOf(10, 2, 1, 2, "\x0F\x3F\x40\x00"s);
    for (std::size_t bytes = 0; bytes < good.size(); ++bytes) {
        EXPECT_EQ(read(good.substr(0, bytes)), Texts{}) << bytes;
    }
    EXPECT_EQ(read(pcxOf(10, 2, 4, 8, good.substr(128))), Texts{});
    EXPECT_EQ(read(pcxOf(0, 2, 1, 2, good.substr(128))), Texts{});
    EXPECT_EQ(read(pcxOf(65536, 65536, 1, 8192, "")), Texts{});
    EXPECT_EQ(read(pcxOf(10, 2, 1, 1, good.substr(128))), Texts{});
}

}  // namespace
}  // namespace tspl
