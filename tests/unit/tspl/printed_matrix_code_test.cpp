// QRCODE and DMATRIX, by the definitions of the codes.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

Texts drawn(int side, const std::string& command) {
    const std::string dots = std::to_string(side) + " dot";
    return pictureOf("SIZE " + dots + "," + dots + "\nCLS\n" + command + "\nPRINT 1\n");
}

// The rows of a part of a picture.
Texts part(const Texts& rows, std::size_t x, std::size_t y, std::size_t width, std::size_t height) {
    Texts result;
    for (std::size_t row = y; row < y + height && row < rows.size(); ++row) {
        result.push_back(rows[row].substr(x, width));
    }
    return result;
}

Texts magnified(const Texts& rows, std::size_t times) {
    Texts result;
    for (const std::string& row : rows) {
        std::string wide;
        for (const char dot : row) {
            wide.append(times, dot);
        }
        result.insert(result.end(), times, wide);
    }
    return result;
}

// Turned clockwise by a quarter.
Texts quarterTurned(const Texts& rows) {
    Texts result(rows.front().size(), std::string(rows.size(), '.'));
    for (std::size_t y = 0; y < rows.size(); ++y) {
        for (std::size_t x = 0; x < rows[y].size(); ++x) {
            result[x][rows.size() - 1 - y] = rows[y][x];
        }
    }
    return result;
}

const Texts sFinder = {"#######", "#.....#", "#.###.#", "#.###.#", "#.###.#", "#.....#", "#######"};
constexpr int sSide = 21;  // modules of the smallest QR code

Texts smallQr(const std::string& options = "") {
    return drawn(sSide, "QRCODE 0,0,L,1,A,0," + options + "\"HELLO\"");
}

TEST(QrCode, HasItsFindersInThreeCorners) {
    const Texts code = smallQr();
    EXPECT_EQ(part(code, 0, 0, 7, 7), sFinder);
    EXPECT_EQ(part(code, 14, 0, 7, 7), sFinder);
    EXPECT_EQ(part(code, 0, 14, 7, 7), sFinder);
    EXPECT_NE(part(code, 14, 14, 7, 7), sFinder);
}

TEST(QrCode, HasItsTimingBetweenTheFinders) {
    const Texts code = smallQr();
    EXPECT_EQ(part(code, 6, 6, 9, 1), Texts{"#.#.#.#.#"});
}

// Bits 14 to 10 of the format, in row 8 from the left: the level and the mask, after exclusive or
// with 10101. Level L is 01, M 00, Q 11 and H 10.
std::string formatOf(const std::string& level, int mask) {
    const Texts code =
        drawn(sSide, "QRCODE 0,0," + level + ",1,A,0,S" + std::to_string(mask) + ",\"HELLO\"");
    return part(code, 0, 8, 5, 1).front();
}

TEST(QrCode, NamesItsLevelAndItsMask) {
    EXPECT_EQ(formatOf("L", 0), "###.#");  // 01000 ^ 10101
    EXPECT_EQ(formatOf("M", 0), "#.#.#");  // 00000 ^ 10101
    EXPECT_EQ(formatOf("Q", 0), ".##.#");  // 11000 ^ 10101
    EXPECT_EQ(formatOf("H", 0), "..#.#");  // 10000 ^ 10101
    EXPECT_EQ(formatOf("M", 1), "#.#..");  // 00001 ^ 10101
    EXPECT_EQ(formatOf("M", 7), "#..#.");  // 00111 ^ 10101
}

TEST(QrCode, OfMaskEightIsTheOneOfTheEncoder) {
    EXPECT_EQ(smallQr("S8,"), smallQr());
}

TEST(QrCode, IsAsLargeAsItsCells) {
    const Texts once = smallQr();
    EXPECT_EQ(drawn(10 * sSide, "QRCODE 0,0,L,10,A,0,\"HELLO\""), magnified(once, 10));
    EXPECT_EQ(drawn(2 * sSide, "QRCODE 0,0,L,2,A,0,\"HELLO\""), magnified(once, 2));
}

TEST(QrCode, StandsAtItsPlaceAndMovesWithTheReference) {
    const Texts code = drawn(30, "REFERENCE 2,1\nQRCODE 3,4,L,1,A,0,\"HELLO\"");
    EXPECT_EQ(part(code, 5, 5, sSide, sSide), smallQr());
}

TEST(QrCode, TurnsClockwiseAboutItsCorner) {
    const Texts upright = smallQr();
    const auto turned = [](int x, int y, int rotation) {
        return drawn(sSide, "QRCODE " + std::to_string(x) + "," + std::to_string(y) + ",L,1,A," +
                                std::to_string(rotation) + ",\"HELLO\"");
    };
    const Texts quarter = quarterTurned(upright);
    EXPECT_EQ(turned(sSide, 0, 90), quarter);
    EXPECT_EQ(turned(sSide, sSide, 180), quarterTurned(quarter));
    EXPECT_EQ(turned(0, sSide, 270), quarterTurned(quarterTurned(quarter)));
}

TEST(QrCode, LiesAboutItsPlaceAsItsJustificationSays) {
    const auto justified = [](int number, int cell, int x, int y) {
        const Texts code = drawn(2 * sSide, "QRCODE " + std::to_string(x) + "," +
                                                std::to_string(y) + ",L," + std::to_string(cell) +
                                                ",A,0,J" + std::to_string(number) + ",\"HELLO\"");
        return part(code, 0, 0, sSide, sSide);
    };
    EXPECT_EQ(justified(1, 1, 0, 0), smallQr());
    EXPECT_EQ(justified(3, 1, sSide, 0), smallQr());
    EXPECT_EQ(justified(7, 1, 0, sSide), smallQr());
    EXPECT_EQ(justified(9, 1, sSide, sSide), smallQr());
    const Texts twice = drawn(2 * sSide, "QRCODE 0,0,L,2,A,0,\"HELLO\"");
    EXPECT_EQ(drawn(2 * sSide, "QRCODE 21,21,L,2,A,0,J5,\"HELLO\""), twice);
    EXPECT_EQ(drawn(2 * sSide, "QRCODE 21,0,L,2,A,0,J2,\"HELLO\""), twice);
    EXPECT_EQ(drawn(2 * sSide, "QRCODE 0,21,L,2,A,0,J4,\"HELLO\""), twice);
}

TEST(QrCode, InManualModeHoldsItsParts) {
    const auto manual = [](const std::string& content) {
        return drawn(sSide, "QRCODE 0,0,L,1,M,0,\"" + content + "\"");
    };
    const Texts expected = drawn(sSide, "QRCODE 0,0,L,1,A,0,\"12ABc,!\"");
    EXPECT_EQ(manual("N12!AAB!B0003c,!"), expected);
    EXPECT_EQ(manual("B000712ABc,!"), expected);
    EXPECT_EQ(manual("B000212!AAB!Kc,!B0001!"), drawn(sSide, "QRCODE 0,0,L,1,A,0,\"12ABc,!\""));
}

TEST(QrCode, OfModelOneIsDrawnAsModelTwoWithARemark) {
    EXPECT_EQ(smallQr("M1,"), smallQr("M2,"));
    EXPECT_EQ(findingsOf("QRCODE 0,0,L,1,A,0,M1,\"HELLO\""),
              Texts{"remark 0 QRCODE of model 1 is drawn as model 2"});
}

// Dark along the left and the lower edge, every other module along the upper and the right one.
TEST(DataMatrix, HasItsFinderAndItsTiming) {
    const Texts code = drawn(10, "DMATRIX 0,0,10,10,x1,\"A\"");
    ASSERT_EQ(code.size(), 10U);
    EXPECT_EQ(code.front(), "#.#.#.#.#.");
    EXPECT_EQ(code.back(), "##########");
    for (std::size_t y = 0; y < 10; ++y) {
        EXPECT_EQ(code[y].front(), '#') << y;
        EXPECT_EQ(code[y].back(), y % 2 == 1 ? '#' : '.') << y;
    }
}

TEST(DataMatrix, IsAsLargeAsItsModules) {
    EXPECT_EQ(drawn(30, "DMATRIX 0,0,10,10,x3,\"A\""),
              magnified(drawn(10, "DMATRIX 0,0,10,10,x1,\"A\""), 3));
}

TEST(DataMatrix, FillsItsAreaWithoutAModuleAndSaysSo) {
    EXPECT_EQ(drawn(30, "DMATRIX 0,0,39,31,\"A\""), drawn(30, "DMATRIX 0,0,9,9,x3,\"A\""));
    EXPECT_EQ(findingsOf("DMATRIX 0,0,39,31,\"A\""),
              Texts{"remark 0 DMATRIX names no module; with 3 dots it fills its area"});
    EXPECT_EQ(findingsOf("DMATRIX 0,0,3,3,\"A\""),
              Texts{"remark 0 DMATRIX names no module; with 1 dot it fills its area"});
}

TEST(DataMatrix, HasTheSizeThatItNames) {
    const Texts code = drawn(20, "DMATRIX 0,0,9,9,x1,18,18,\"A\"");
    EXPECT_EQ(code[17], std::string(18, '#') + "..");
    const Texts low = drawn(20, "DMATRIX 0,0,9,9,x1,8,18,\"A\"");
    EXPECT_EQ(low[7], std::string(18, '#') + "..");
    EXPECT_EQ(low[8], std::string(20, '.'));
}

TEST(DataMatrix, IsSquareUnlessItIsToBeRectangular) {
    // Eight letters fill 14 x 14 modules, or 8 x 32 as rectangles go.
    const Texts square = drawn(40, "DMATRIX 0,0,9,9,x1,a0,\"ABCDEFGHI\"");
    EXPECT_EQ(square[13].substr(0, 15), std::string(14, '#') + ".");
    const Texts rectangular = drawn(40, "DMATRIX 0,0,9,9,x1,a1,\"ABCDEFGHI\"");
    EXPECT_EQ(rectangular[7].substr(0, 33), std::string(32, '#') + ".");
}

TEST(DataMatrix, TurnsClockwiseAboutItsCorner) {
    const Texts upright = drawn(10, "DMATRIX 0,0,9,9,x1,\"A\"");
    EXPECT_EQ(drawn(10, "DMATRIX 10,0,9,9,x1,r90,\"A\""), quarterTurned(upright));
    EXPECT_EQ(drawn(10, "DMATRIX 10,10,9,9,x1,R180,\"A\""), quarterTurned(quarterTurned(upright)));
    EXPECT_EQ(drawn(10, "DMATRIX 0,10,9,9,x1,r270,\"A\""),
              quarterTurned(quarterTurned(quarterTurned(upright))));
}

TEST(DataMatrix, ResolvesWhatFollowsItsEscapeCharacter) {
    const auto code = [](const std::string& options, const std::string& content) {
        return drawn(20, "DMATRIX 0,0,9,9,x1," + options + "\"" + content + "\"");
    };
    EXPECT_EQ(code("c126,", "A~~B"), code("", "A~B"));
    EXPECT_EQ(code("c126,", "~d065B"), code("", "AB"));
    EXPECT_EQ(code("c126,", "A~I"), code("", "A\t"));
    EXPECT_EQ(code("c95,", "A~_AB"), code("", std::string("A~\x01"
                                                          "B")));
    EXPECT_NE(code("c126,", "~10112"), code("", "0112"));
}

}  // namespace
}  // namespace tspl
