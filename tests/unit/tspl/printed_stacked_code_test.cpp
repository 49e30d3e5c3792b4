// PDF417, MPDF417, CODABLOCK and RSS, by the definitions of the codes.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

Texts drawn(int width, int height, const std::string& command) {
    return pictureOf("SIZE " + std::to_string(width) + " dot," + std::to_string(height) +
                     " dot\nCLS\n" + command + "\nPRINT 1\n");
}

Texts complaint(const std::string& text) {
    return {"complaint 0 " + text};
}

const std::string sStart = "########.#.#.#...";
const std::string sStop = "#######.#...#.#..#";

// Two columns: 17 modules of start, two indicators and two words, 18 of stop.
constexpr int sTwoColumns = 103;

TEST(Pdf417, HasItsStartAndItsStopInEveryRow) {
    const Texts code = drawn(sTwoColumns, 9, "PDF417 0,0,9,9,0,W1,H1,C2,\"Hello PDF417\"");
    for (const std::string& row : code) {
        EXPECT_EQ(row.substr(0, 17), sStart);
        EXPECT_EQ(row.substr(85), sStop);
    }
}

TEST(Pdf417, WithoutItsRightSideHasOneBarForItsStop) {
    const Texts code = drawn(sTwoColumns, 9, "PDF417 0,0,9,9,0,W1,H1,C2,T1,\"Hello PDF417\"");
    EXPECT_EQ(code.front().substr(0, 17), sStart);
    EXPECT_EQ(code.front().substr(68), "#" + std::string(34, '.'));
}

TEST(Pdf417, HasModulesAndRowsOfItsDots) {
    const Texts once = drawn(sTwoColumns, 9, "PDF417 0,0,9,9,0,W1,H1,C2,\"Hello PDF417\"");
    const Texts larger = drawn(2 * sTwoColumns, 27, "PDF417 0,0,9,9,0,W2,H3,C2,\"Hello PDF417\"");
    for (std::size_t y = 0; y < larger.size(); ++y) {
        for (std::size_t x = 0; x < larger[y].size(); ++x) {
            ASSERT_EQ(larger[y][x], once[y / 3][x / 2]) << x << ", " << y;
        }
    }
}

TEST(Pdf417, FillsItsAreaWithoutAModuleAndSaysSo) {
    EXPECT_EQ(findingsOf("PDF417 0,0,400,100,0,C2,\"Hello PDF417\""),
              Texts{"remark 0 PDF417 names no module; with 3 x 11 dots it fills its area"});
    EXPECT_EQ(findingsOf("PDF417 0,0,400,100,0,C2,W2,\"Hello PDF417\""),
              Texts{"remark 0 PDF417 names no module; with 2 x 11 dots it fills its area"});
    EXPECT_EQ(findingsOf("PDF417 0,0,0,0,0,C2,\"Hello PDF417\""),
              Texts{"remark 0 PDF417 names no module; with 2 x 4 dots it fills its area"});
}

TEST(Pdf417, StandsInTheMiddleOfItsAreaWhenItIsToldTo) {
    EXPECT_EQ(drawn(130, 20, "PDF417 1,2,123,17,0,M1,W1,H1,C2,\"Hello PDF417\""),
              drawn(130, 20, "PDF417 11,6,9,9,0,M0,W1,H1,C2,\"Hello PDF417\""));
}

TEST(Pdf417, PassesOverTheOptionsThatChangeNoModule) {
    EXPECT_EQ(findingsOf("PDF417 0,0,9,9,0,P1,L5,R90,W1,H1,C2,\"a\""), Texts{});
}

TEST(Pdf417, OfATextBesideItIsDrawnWithoutIt) {
    EXPECT_EQ(findingsOf("PDF417 0,0,9,9,0,U10,20,30,W1,H1,C2,\"a\""),
              Texts{"remark 0 the text beside PDF417 is not drawn"});
}

TEST(Pdf417, OfAnOptionThatIsNoneIsComplainedOf) {
    EXPECT_EQ(findingsOf("PDF417 0,0,9,9,0,Z1,\"a\""),
              complaint("PDF417: it does not take \"Z1\""));
    EXPECT_EQ(findingsOf("PDF417 0,0,9,9,0,5,\"a\""), complaint("PDF417: it does not take \"5\""));
    EXPECT_EQ(findingsOf("PDF417 0,0,9,9,0,U1,2,3,4,\"a\""),
              complaint("PDF417: it does not take \"4\""));
    EXPECT_EQ(findingsOf("PDF417 0,0,9,9,0,E9,\"a\""),
              complaint("PDF417: the level behind E is 0 to 8, not \"9\""));
    EXPECT_EQ(findingsOf("PDF417 0,0,9,9,0,C2,R3,\"Hello PDF417\""),
              complaint("PDF417: the content takes 9 rows, more than R allows"));
    EXPECT_EQ(findingsOf("PDF417 0,0,9,9,45,\"a\""),
              complaint("PDF417: the rotation is 0, 90, 180 or 270, not \"45\""));
}

// One column is 38 modules wide: 10 of each address, 17 of a word, the last bar.
TEST(MicroPdf417, HasItsColumnsAndEndsWithABar) {
    const Texts code = drawn(40, 110, "MPDF417 0,0,0,W1,H10,C1,\"Hello\"");
    for (const std::string& row : code) {
        EXPECT_EQ(row.substr(37), "#..");
    }
    EXPECT_EQ(drawn(40, 110, "MPDF417 0,0,0,C1,\"Hello\""), code);
}

TEST(MicroPdf417, OfAnOptionThatIsNoneIsComplainedOf) {
    EXPECT_EQ(findingsOf("MPDF417 0,0,0,C5,\"a\""),
              complaint("MPDF417: the number behind C is 0 to 4, not \"5\""));
    EXPECT_EQ(findingsOf("MPDF417 0,0,0,E1,\"a\""), complaint("MPDF417: it does not take \"E1\""));
}

// 101 modules wide with four characters a row; each row begins as Code 128 in subset A.
TEST(Codablock, HasLinesAboutRowsOfCode128) {
    const Texts code = drawn(101, 10, "CODABLOCK 0,0,0,2,1,\"ABCDEFGHIJ\"");
    ASSERT_EQ(code.size(), 10U);
    for (std::size_t y = 0; y < 10; ++y) {
        if (y % 3 == 0) {
            EXPECT_EQ(code[y], std::string(101, '#')) << y;
        } else {
            EXPECT_EQ(code[y].substr(0, 11), "##.#....#..") << y;
        }
    }
}

TEST(Codablock, HasRowsOfEightDotsAndModulesOfTwoUnlessToldOtherwise) {
    const std::string content = ",\"ABCDEFGHIJ\"";
    EXPECT_EQ(drawn(210, 40, "CODABLOCK 0,0,0" + content),
              drawn(210, 40, "CODABLOCK 0,0,0,8,2" + content));
    EXPECT_EQ(drawn(210, 40, "CODABLOCK 0,0,0,9" + content),
              drawn(210, 40, "CODABLOCK 0,0,0,9,2" + content));
}

// Rows of dots from the top that are alike.
std::vector<std::size_t> heightsOf(const Texts& rows) {
    std::vector<std::size_t> heights;
    for (std::size_t y = 0; y < rows.size(); ++y) {
        if (y == 0 || rows[y] != rows[y - 1]) {
            heights.push_back(0);
        }
        ++heights.back();
    }
    return heights;
}

std::vector<std::size_t> heightsOf(const std::string& command) {
    return heightsOf(drawn(400, 200, command));
}

using Heights = std::vector<std::size_t>;

TEST(DataBar, HasRowsAsHighAsItsTypeSays) {
    const std::string content = ",\"1234567890123\"";
    EXPECT_EQ(heightsOf("RSS 0,0,\"RSS14\",0,2,1" + content), (Heights{66, 134}));
    EXPECT_EQ(heightsOf("RSS 0,0,\"RSS14T\",0,2,1" + content), (Heights{26, 174}));
    EXPECT_EQ(heightsOf("RSS 0,0,\"RSSLIM\",0,2,1" + content), (Heights{20, 180}));
    EXPECT_EQ(heightsOf("RSS 0,0,\"RSS14S\",0,2,1" + content), (Heights{10, 2, 14, 174}));
    EXPECT_EQ(heightsOf("RSS 0,0,\"RSS14S\",0,2,2" + content), (Heights{10, 4, 14, 172}));
    EXPECT_EQ(heightsOf("RSS 0,0,\"RSS14SO\",0,2,1" + content), (Heights{66, 2, 2, 2, 66, 62}));
    EXPECT_EQ(heightsOf("RSS 0,0,\"RSSEXP\",0,1,1,\"(01)12345678901231\""), (Heights{34, 166}));
}

TEST(DataBar, HasASecondContentAboveItsOwn) {
    // Three rows of two modules, a separator, the bars.
    EXPECT_EQ(heightsOf("RSS 0,0,\"UCC128CCA\",0,2,1,30,\"0112345678901231|21abc\""),
              (Heights{4, 4, 4, 2, 30, 156}));
}

TEST(DataBar, OfStackedSegmentsHasRowsOfSoMany) {
    const std::string content = "\"(01)98898765432106(3202)012345(15)991231\"";
    const Texts stacked = drawn(400, 200, "RSS 0,0,\"RSSEXP\",0,1,1,4," + content);
    // Four segments are two pairs: 102 modules wide.
    EXPECT_EQ(stacked.front().substr(101), "#" + std::string(298, '.'));
    EXPECT_EQ(heightsOf(stacked), (Heights{34, 1, 1, 1, 34, 129}));
}

TEST(DataBar, OfATypeOrANumberThatIsNoneIsComplainedOf) {
    EXPECT_EQ(findingsOf("RSS 0,0,\"RSS15\",0,2,1,\"1\""),
              complaint("RSS: there is no type \"RSS15\""));
    EXPECT_EQ(findingsOf("RSS 0,0,\"RSS14\",0,2,3,\"1\""),
              complaint("RSS: the separator is 1 to 2, not \"3\""));
    EXPECT_EQ(findingsOf("RSS 0,0,\"RSS14\",0,2,1,5,\"1\""),
              complaint("RSS: it does not take \"5\""));
    EXPECT_EQ(findingsOf("RSS 0,0,\"RSSEXP\",0,2,1,1,\"(01)1\""),
              complaint("RSS: the number of segments is 2 to 22, not \"1\""));
    EXPECT_EQ(findingsOf("RSS 0,0,\"EAN8\",0,2,1,\"12345670|(21)a\""),
              complaint("RSS: EAN8 takes 7 digits, not \"12345670\""));
    EXPECT_EQ(findingsOf("RSS 0,0,\"UCC128CCA\",0,2,1,30,\"0112345678901231|(21)abc\""),
              complaint("RSS: identifiers of one content only stand in parentheses"));
}

}  // namespace
}  // namespace tspl
