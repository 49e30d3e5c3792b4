// AZTEC and MAXICODE, whose finders are in their middle.
#include <cmath>

#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

Texts drawn(int side, const std::string& command, int dpi = 203) {
    PrinterOptions options;
    options.dpi = dpi;
    const std::string dots = std::to_string(side) + " dot";
    return pictureOf("SIZE " + dots + "," + dots + "\nCLS\n" + command + "\nPRINT 1\n", options);
}

Texts complaint(const std::string& text) {
    return {"complaint 0 " + text};
}

Texts part(const Texts& rows, std::size_t x, std::size_t y, std::size_t width, std::size_t height) {
    Texts result;
    for (std::size_t row = y; row < y + height && row < rows.size(); ++row) {
        result.push_back(rows[row].substr(x, width));
    }
    return result;
}

const Texts sBullseye = {"#########", "#.......#", "#.#####.#", "#.#...#.#", "#.#.#.#.#",
                         "#.#...#.#", "#.#####.#", "#.......#", "#########"};

TEST(Aztec, HasItsBullseyeInTheMiddle) {
    EXPECT_EQ(part(drawn(15, "AZTEC 0,0,0,1,\"Hello\""), 3, 3, 9, 9), sBullseye);
}

TEST(Aztec, HasTheLayersThatItNames) {
    // Four more modules on a side for every layer.
    EXPECT_EQ(part(drawn(27, "AZTEC 0,0,0,1,104,\"Hello\""), 9, 9, 9, 9), sBullseye);
    EXPECT_EQ(part(drawn(31, "AZTEC 0,0,0,1,204,\"Hello\""), 11, 11, 9, 9), sBullseye);
    EXPECT_EQ(part(drawn(11, "AZTEC 0,0,0,1,300,\"25\""), 1, 1, 9, 9), sBullseye);
}

TEST(Aztec, HasModulesOfSixDotsUnlessToldOtherwise) {
    EXPECT_EQ(drawn(90, "AZTEC 0,0,0,\"Hello\""), drawn(90, "AZTEC 0,0,0,6,\"Hello\""));
    EXPECT_NE(drawn(90, "AZTEC 0,0,0,\"Hello\""), drawn(90, "AZTEC 0,0,0,5,\"Hello\""));
}

TEST(Aztec, OfReversedModulesHasThemTheOtherWayRound) {
    Texts expected = drawn(15, "AZTEC 0,0,0,1,0,0,0,1,0,\"Hello\"");
    for (std::string& row : expected) {
        for (char& dot : row) {
            dot = dot == '#' ? '.' : '#';
        }
    }
    EXPECT_EQ(drawn(15, "AZTEC 0,0,0,1,0,0,0,1,1,\"Hello\""), expected);
}

// A share of error correction from which more layers follow.
TEST(Aztec, HasTheShareOfCorrectionThatItNames) {
    const std::string content = ",\"" + std::string(20, 'a') + "\"";
    EXPECT_NE(drawn(40, "AZTEC 0,0,0,1,10" + content), drawn(40, "AZTEC 0,0,0,1,90" + content));
    EXPECT_EQ(drawn(40, "AZTEC 0,0,0,1,0" + content), drawn(40, "AZTEC 0,0,0,1,23" + content));
}

TEST(Aztec, OfAnotherShareOfCorrectionIsRemarkedOn) {
    const auto remark = [](const std::string& drawn, const std::string& asked) {
        return Texts{"remark 0 AZTEC is drawn with a correction of " + drawn + " percent, not " +
                     asked};
    };
    const auto findings = [](const std::string& correction) {
        return findingsOf("AZTEC 0,0,0,1," + correction + ",\"a\"");
    };
    EXPECT_EQ(findings("1"), remark("10", "1"));
    EXPECT_EQ(findings("11"), remark("23", "11"));
    EXPECT_EQ(findings("24"), remark("36", "24"));
    EXPECT_EQ(findings("37"), remark("50", "37"));
    EXPECT_EQ(findings("99"), remark("50", "99"));
    for (const std::string same : {"0", "10", "23", "36", "50", "101", "232"}) {
        EXPECT_EQ(findings(same), Texts{}) << same;
    }
}

TEST(Aztec, OfWhatThereIsNotIsComplainedOf) {
    EXPECT_EQ(findingsOf("AZTEC 0,0,0,21,\"a\""),
              complaint("AZTEC: the size is 1 to 20, not \"21\""));
    EXPECT_EQ(findingsOf("AZTEC 0,0,0,1,105,\"a\""),
              complaint("AZTEC: there is no correction 105"));
    EXPECT_EQ(findingsOf("AZTEC 0,0,0,1,100,\"a\""),
              complaint("AZTEC: there is no correction 100"));
    EXPECT_EQ(findingsOf("AZTEC 0,0,0,1,233,\"a\""),
              complaint("AZTEC: there is no correction 233"));
    EXPECT_EQ(findingsOf("AZTEC 0,0,0,1,301,\"a\""),
              complaint("AZTEC: the correction is 0 to 300, not \"301\""));
}

TEST(Aztec, OfSeveralSymbolsOrEscapesIsNotDrawn) {
    EXPECT_EQ(findingsOf("AZTEC 0,0,0,1,0,0,0,2,0,\"a\""),
              Texts{"remark 0 AZTEC is not drawn: it has more than one symbol"});
    EXPECT_EQ(findingsOf("AZTEC 0,0,0,1,0,1,0,1,0,\"a\""),
              Texts{"remark 0 AZTEC is not drawn: it has escape sequences"});
}

// 203 dpi are 8 dots to the millimetre: hexagons 0.88 mm apart are 7 dots apart, rows 6.
constexpr int sColumns = 7;
constexpr int sRows = 6;

// The second module of the first row is dark with this message, and stands alone. A hexagon 6 dots
// wide and 7 high reaches (1 - |x| / 6) * 3.5 dots up from its middle: 3.2 at x = 0.5, 2.6 at 1.5
// and 2.04 at 2.5, where the rows of dots are 0, 1, 2 and 3 from the middle.
TEST(MaxiCode, HasHexagonsOnTheirTips) {
    const Texts code = drawn(240, "MAXICODE 0,0,4,\"hello\"");
    EXPECT_EQ(part(code, sColumns - 1, 0, 9, 8),
              (Texts{"...##....", ".######..", ".######..", ".######..", ".######..", ".######..",
                     "...##....", "........."}));
}

TEST(MaxiCode, HasThreeRingsInItsMiddle) {
    const Texts code = drawn(240, "MAXICODE 0,0,4,\"hello\"");
    const double millimetre = 203 / 25.4;
    const std::size_t middleX = 14 * sColumns + 3;
    const std::size_t middleY = 16 * sRows + 3;
    const auto at = [&](double distance) {
        return code[middleY][middleX + static_cast<std::size_t>(distance * millimetre)];
    };
    EXPECT_EQ(at(0), '.');
    EXPECT_EQ(at(0.85), '#');
    EXPECT_EQ(at(1.5), '.');
    EXPECT_EQ(at(2.2), '#');
    EXPECT_EQ(at(2.9), '.');
    EXPECT_EQ(at(3.6), '#');
}

TEST(MaxiCode, IsAsLargeAtEveryResolution) {
    const auto widthOf = [](int side, int dpi) {
        std::size_t width = 0;
        for (const std::string& row : drawn(side, "MAXICODE 0,0,4,\"hello\"", dpi)) {
            width = std::max(width, row.find_last_of('#') + 1);
        }
        return static_cast<double>(width) / dpi * 25.4;
    };
    EXPECT_NEAR(widthOf(240, 203), 26, 1);
    EXPECT_NEAR(widthOf(350, 300), 26, 1);
    EXPECT_NEAR(widthOf(650, 600), 26, 1);
}

TEST(MaxiCode, SaysWhatItIsDrawnFor) {
    EXPECT_EQ(findingsOf("MAXICODE 0,0,4,\"hello\""),
              Texts{"remark 0 the hexagons of MAXICODE are drawn alike, for 203 dpi"});
}

TEST(MaxiCode, TakesAPostCodeInOnePartOrInTwo) {
    EXPECT_EQ(drawn(240, "MAXICODE 0,0,2,300,840,06810,7317,\"a\""),
              drawn(240, "MAXICODE 0,0,2,300,840,068107317,\"a\""));
    EXPECT_EQ(drawn(240, "MAXICODE 0,0,2,300,840,06810,\"a\""),
              drawn(240, "MAXICODE 0,0,2,300,840,068100000,\"a\""));
}

TEST(MaxiCode, OfWhatThereIsNotIsComplainedOf) {
    EXPECT_EQ(findingsOf("MAXICODE 0,0,1,\"a\""),
              complaint("MAXICODE: the mode is 2 to 6, not \"1\""));
    EXPECT_EQ(findingsOf("MAXICODE 0,0,2,\"a\""),
              complaint("MAXICODE: a class, a country and a post code stand before the message"));
    EXPECT_EQ(findingsOf("MAXICODE 0,0,3,1,840,A,B,\"a\""),
              complaint("MAXICODE: a class, a country and a post code stand before the message"));
    EXPECT_EQ(findingsOf("MAXICODE 0,0,4,1,\"a\""),
              complaint("MAXICODE: nothing but the mode stands before the message"));
    EXPECT_EQ(findingsOf("MAXICODE 0,0,2,1000,840,06810,\"a\""),
              complaint("MAXICODE: the class of service is 0 to 999, not \"1000\""));
    EXPECT_EQ(findingsOf("MAXICODE 0,0,2,1,840,0681073171,\"a\""),
              complaint("MAXICODE: the post code is up to nine digits, not \"0681073171\""));
    EXPECT_EQ(findingsOf("MAXICODE 0,0,3,1,840,ABCDEFG,\"a\""),
              complaint("MAXICODE: the post code is up to six characters, not \"ABCDEFG\""));
}

}  // namespace
}  // namespace tspl
