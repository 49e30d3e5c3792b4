// BARCODE, by the definitions of the codes.
#include <array>

#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

constexpr const char* bareLabel = "SIZE 200 dot,8 dot\nCLS\n";

// The row of dots that a command draws at the top of a label of 200 x 8 dots, without the bare dots
// at its end.
std::string topRowOf(const std::string& command) {
    const Texts rows = pictureOf(bareLabel + command + "\nPRINT 1\n");
    const std::string row = rows.empty() ? "" : rows.front();
    return row.substr(0, row.find_last_not_of('.') + 1);
}

// The same for a type and a content, with narrow elements of a dot and wide ones of three.
std::string barsOf(const std::string& type, const std::string& content) {
    return topRowOf("BARCODE 0,0,\"" + type + "\",4,0,0,1,3,\"" + content + "\"");
}

// A character of bars and spaces in turn, n and w for the narrow and the wide ones.
std::string elements(const std::string& widths, std::size_t wide) {
    std::string row;
    char dot = '#';
    for (const char width : widths) {
        row.append(width == 'w' ? wide : 1, dot);
        dot = dot == '#' ? '.' : '#';
    }
    return row;
}

// Code 39: three of nine elements are wide; a narrow space stands between characters.
std::string code39A(std::size_t wide) {
    const std::string star = elements("nwnnwnwnn", wide);
    return star + "." + elements("wnnnnwnnw", wide) + "." + star;
}

constexpr std::array sEanLeft = {"...##.#", "..##..#", "..#..##", ".####.#", ".#...##",
                                 ".##...#", ".#.####", ".###.##", ".##.###", "...#.##"};

std::string swapped(std::string modules) {
    for (char& module : modules) {
        module = module == '#' ? '.' : '#';
    }
    return modules;
}

std::string backwards(const std::string& text) {
    return {text.rbegin(), text.rend()};
}

// A digit of the left half in set L or G, or of the right one in set R.
std::string eanDigit(char digit, char set) {
    const std::string left = sEanLeft.at(static_cast<std::size_t>(digit - '0'));
    if (set == 'L') {
        return left;
    }
    return set == 'R' ? swapped(left) : backwards(swapped(left));
}

std::string eanDigits(const std::string& digits, const std::string& sets) {
    std::string modules;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        modules += eanDigit(digits[i], sets[i]);
    }
    return modules;
}

TEST(Barcode39, HasItsNineElementsInNarrowAndWide) {
    EXPECT_EQ(barsOf("39", "A"), code39A(3));
}

TEST(Barcode39, HasWideElementsOfAnyNumberOfDots) {
    EXPECT_EQ(topRowOf("BARCODE 0,0,\"39\",4,0,0,1,2,\"A\""), code39A(2));
    EXPECT_EQ(topRowOf("BARCODE 0,0,\"39\",4,0,0,1,4,\"A\""), code39A(4));
}

// A is 10: the remainder of 10 by 43.
TEST(Barcode39, OfTypeCAddsItsCheckDigit) {
    const std::string a = elements("wnnnnwnnw", 3);
    const std::string star = elements("nwnnwnwnn", 3);
    EXPECT_EQ(barsOf("39C", "A"), star + "." + a + "." + a + "." + star);
}

TEST(Barcode39, HasSmallLettersAsPlusSignAndCapital) {
    EXPECT_EQ(barsOf("39", "a"), barsOf("39S", "+A"));
}

TEST(Barcode39, KeepsTheCharactersThatItHasItself) {
    EXPECT_EQ(barsOf("39", "+A"), barsOf("39S", "+A"));
    EXPECT_EQ(barsOf("39", "$%/"), barsOf("39S", "$%/"));
}

// 5 stands in the sets LGGLLG of the first half; 7 is the check digit.
TEST(BarcodeEan13, HasItsGuardsAndDigits) {
    const std::string expected =
        "#.#" + eanDigits("901234", "LGGLLG") + ".#.#." + eanDigits("123457", "RRRRRR") + "#.#";
    EXPECT_EQ(barsOf("EAN13", "590123412345"), expected);
    EXPECT_EQ(barsOf("EAN13", "5901234123457"), expected);
}

// 12 is 0 when divided by four: both digits in set L.
TEST(BarcodeEan13, HasItsAddOnOfTwoDigitsBehindIt) {
    const std::string addOn = "#.##" + eanDigit('1', 'L') + ".#" + eanDigit('2', 'L');
    const std::string code = barsOf("EAN13", "590123412345");
    for (const char* content : {"59012341234512", "590123412345712", "590123412345+12"}) {
        const std::string bars = barsOf("EAN13+2", content);
        EXPECT_EQ(bars.substr(0, code.size()), code);
        EXPECT_EQ(bars.substr(bars.size() - addOn.size()), addOn);
        EXPECT_EQ(bars.substr(code.size(), bars.size() - code.size() - addOn.size()), ".......")
            << content;
    }
}

TEST(BarcodeEan8, HasItsGuardsAndDigits) {
    const std::string expected =
        "#.#" + eanDigits("1234", "LLLL") + ".#.#." + eanDigits("5670", "RRRR") + "#.#";
    EXPECT_EQ(barsOf("EAN8", "1234567"), expected);
    EXPECT_EQ(barsOf("EAN8", "12345670"), expected);
}

TEST(BarcodeUpcA, IsTheEan13WithAZeroInFront) {
    EXPECT_EQ(barsOf("UPCA", "01234567890"), barsOf("EAN13", "001234567890"));
}

// Bars hold the first digit, spaces the second one: 1 is wnnnw, 2 is nwnnw.
TEST(BarcodeInterleaved, HoldsADigitInItsBarsAndOneInItsSpaces) {
    EXPECT_EQ(barsOf("25", "12"),
              elements("nnnn", 3) + elements("wnnwnnnnww", 3) + elements("wnn", 3));
}

TEST(BarcodeInterleaved, HasAZeroInFrontOfAnOddNumberOfDigits) {
    EXPECT_EQ(barsOf("25", "123"), barsOf("25", "0123"));
}

// 3 times 1 and 3, 2 once: 14, to which 6 lack.
TEST(BarcodeInterleaved, OfTypeCAddsItsCheckDigit) {
    EXPECT_EQ(barsOf("25C", "123"), barsOf("25", "1236"));
}

TEST(BarcodeItf14, TakesItsCheckDigitAndChecksIt) {
    EXPECT_EQ(barsOf("ITF14", "1234567890123"), barsOf("25", "12345678901231"));
    EXPECT_EQ(barsOf("ITF14", "12345678901231"), barsOf("25", "12345678901231"));
}

// A start bar of four modules: a wide and a narrow element wide.
TEST(BarcodeStandard25, BeginsWithABarOfAWideAndANarrowElement) {
    EXPECT_EQ(topRowOf("BARCODE 0,0,\"25S\",4,0,0,2,5,\"1\"").substr(0, 10), "#######..#");
}

// Only the bars of a low and a high bar differ: the low ones are two fifths high.
TEST(BarcodePost, HasHighBarsForOnesAndLowOnesForZeros) {
    const Texts rows =
        pictureOf("SIZE 63 dot,10 dot\nCLS\nBARCODE 0,0,\"POST\",10,0,0,1,1,\"00000\"\nPRINT 1\n");
    ASSERT_EQ(rows.size(), 10U);
    // A frame bar, 11000 five times and once more for the check digit 0, a frame bar.
    std::string high = "#";
    std::string all = "#";
    for (int digit = 0; digit < 6; ++digit) {
        high += ".#.#......";
        all += ".#.#.#.#.#";
    }
    for (std::size_t y = 0; y < rows.size(); ++y) {
        EXPECT_EQ(rows[y], (y < 6 ? high : all) + ".#") << y;
    }
}

// Start, bits of the digits from the highest one, stop: 1 is a wide bar.
TEST(BarcodeMsi, HasABarForEveryBit) {
    const std::string zero = elements("nw", 3);
    const std::string one = elements("wn", 3);
    EXPECT_EQ(barsOf("MSI", "5"), one + zero + one + zero + one + elements("nwn", 3));
}

TEST(Barcode128, OfOwnSubsetsIsTheOneOfItsValues) {
    // Start B, A, the check value (104 + 33) mod 103 = 34, stop.
    const std::string expected =
        "##.#..#...."
        "#.#...##..."
        "#...#.##..."
        "##...###.#.##";
    EXPECT_EQ(barsOf("128", "A"), expected);
    EXPECT_EQ(barsOf("128M", "A"), expected);
    EXPECT_EQ(barsOf("128M", "!104A"), expected);
}

TEST(BarcodeEan128, TakesIdentifiersWithAndWithoutParentheses) {
    EXPECT_EQ(barsOf("EAN128", "(00)123"), barsOf("EAN128", "00123"));
    // Start C, FNC1, 00, 12.
    EXPECT_EQ(barsOf("EAN128", "(00)12"), barsOf("128M", "!105!1020012"));
}

TEST(BarcodeEan14, IsAnEan128WithIdentifier01) {
    EXPECT_EQ(barsOf("EAN14", "1234567890123"), barsOf("EAN128", "(01)12345678901231"));
    EXPECT_EQ(barsOf("EAN14", "12345678901231"), barsOf("EAN128", "(01)12345678901231"));
}

TEST(Barcode, IsAsHighAsItSaysAtItsPlace) {
    const Texts rows = pictureOf(
        "SIZE 8 dot,5 dot\nREFERENCE 1,1\nCLS\nBARCODE 1,0,\"39\",3,0,0,1,2,\"A\"\nPRINT 1\n");
    EXPECT_EQ(rows, (Texts{"........", "..#..#.#", "..#..#.#", "..#..#.#", "........"}));
}

TEST(Barcode, IsAsWideAsItsNarrowElements) {
    const std::string once = barsOf("93", "A");
    std::string thrice;
    for (const char dot : once) {
        thrice.append(3, dot);
    }
    EXPECT_EQ(topRowOf("BARCODE 0,0,\"93\",4,0,0,3,1,\"A\""), thrice);
}

// The code turns about its upper left corner, which keeps its place.
TEST(Barcode, TurnsClockwiseAboutItsCorner) {
    const auto drawn = [](int rotation) {
        return pictureOf("SIZE 6 dot,6 dot\nCLS\nBARCODE 3,3,\"39\",2,0," +
                         std::to_string(rotation) + ",1,2,\"A\"\nPRINT 1\n");
    };
    // The code begins with #..#
    EXPECT_EQ(drawn(0), (Texts{"......", "......", "......", "...#..", "...#..", "......"}));
    EXPECT_EQ(drawn(90), (Texts{"......", "......", "......", ".##...", "......", "......"}));
    EXPECT_EQ(drawn(180), (Texts{"......", "..#...", "..#...", "......", "......", "......"}));
    EXPECT_EQ(drawn(270), (Texts{"......", "......", "...##.", "......", "......", "......"}));
}

TEST(Barcode, LiesOnItsPlaceLeftOfItOrAboutIt) {
    const std::string code = code39A(3);  // 47 dots
    const auto at = [](const std::string& x, const std::string& alignment) {
        return topRowOf("BARCODE " + x + ",0,\"39\",4,0,0,1,3," + alignment + ",\"A\"");
    };
    ASSERT_EQ(code.size(), 47U);
    EXPECT_EQ(at("100", "0"), std::string(100, '.') + code);
    EXPECT_EQ(at("100", "1"), std::string(100, '.') + code);
    EXPECT_EQ(at("100", "2"), std::string(77, '.') + code);
    EXPECT_EQ(at("100", "3"), std::string(53, '.') + code);
}

TEST(Barcode, AddsToWhatIsThere) {
    EXPECT_EQ(topRowOf("BAR 0,0,2,1\nBARCODE 0,0,\"39\",4,0,0,1,3,\"A\"").substr(0, 5), "##..#");
}

TEST(Barcode, TakesTypesInSmallLetters) {
    EXPECT_EQ(barsOf("ean13", "590123412345"), barsOf("EAN13", "590123412345"));
}

TEST(Barcode, HoldsAQuotationMark) {
    EXPECT_EQ(barsOf("128", "\\[\"]"), barsOf("128M", "!104\\[\"]"));
    EXPECT_NE(barsOf("128", "\\[\"]"), barsOf("128", "[]"));
}

class EveryType : public testing::TestWithParam<std::pair<const char*, const char*>> {};

// What any type holds can be drawn, and begins with a bar at its place.
TEST_P(EveryType, IsDrawn) {
    const auto& [type, content] = GetParam();
    EXPECT_EQ(barsOf(type, content).substr(0, 1), "#");
}

INSTANTIATE_TEST_SUITE_P(
    Types, EveryType,
    testing::Values(
        std::pair("128", "a"), std::pair("128M", "a"), std::pair("EAN128", "(21)a"),
        std::pair("25", "12"), std::pair("25C", "1"), std::pair("25S", "1"), std::pair("25I", "1"),
        std::pair("39", "A"), std::pair("39C", "A"), std::pair("39S", "A"), std::pair("93", "a"),
        std::pair("EAN13+2", "59012341234512"), std::pair("EAN13+5", "59012341234512345"),
        std::pair("EAN8+2", "123456712"), std::pair("EAN8+5", "123456712345"),
        std::pair("CODA", "A1B"), std::pair("POST", "12345"), std::pair("UPCA+2", "0123456789012"),
        std::pair("UPCA+5", "0123456789012345"), std::pair("UPCE", "123456"),
        std::pair("UPCE+2", "12345612"), std::pair("UPCE+5", "12345612345"),
        std::pair("CPOST", "12"), std::pair("MSI", "1"), std::pair("MSIC", "1"),
        std::pair("PLESSEY", "1"), std::pair("ITF14", "1234567890123"),
        std::pair("EAN14", "1234567890123"), std::pair("11", "1"), std::pair("TELEPEN", "a"),
        std::pair("TELEPENN", "12"), std::pair("PLANET", "12345678901"), std::pair("CODE49", "A"),
        std::pair("DPI", "12345678901"), std::pair("DPL", "1234567890123"),
        std::pair("LOGMARS", "A"), std::pair("EAN128M", "(21)a")));

// Two rows of four bytes each at least, and three lines.
TEST(BarcodeCode49, HasALineAboveBetweenAndBelowItsRows) {
    const Texts rows =
        pictureOf("SIZE 70 dot,9 dot\nCLS\nBARCODE 0,0,\"CODE49\",3,0,0,1,1,\"A\"\nPRINT 1\n");
    ASSERT_EQ(rows.size(), 9U);
    const std::string line(70, '#');
    EXPECT_EQ(rows[0], line);
    EXPECT_EQ(rows[4], line);
    EXPECT_EQ(rows[8], line);
    EXPECT_EQ(rows[1], rows[3]);
    EXPECT_EQ(rows[5], rows[7]);
    EXPECT_NE(rows[1], rows[5]);
    EXPECT_NE(rows[1], line);
}

}  // namespace
}  // namespace tspl
