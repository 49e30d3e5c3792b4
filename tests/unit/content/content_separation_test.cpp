// What becomes of text, codes, pictures and tints on a label.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/unit/content/test_page.h"

namespace {

using reference::Levels;

// Where black was and where something else was.
Levels blackWhere(const TestPage& page, int least) {
    Levels levels = page.levels();
    for (std::vector<int>& row : levels) {
        for (int& level : row) {
            level = level >= least ? 255 : 0;
        }
    }
    return levels;
}

const std::vector<int> bars{2, 2, 4, 2, 2, 4, 3, 3, 2, 2, 4, 4, 2, 2, 2, 3, 4, 2};

TEST(ContentSeparation, MakesCodesOfEveryColourBlack) {
    // 255 black, 226 blue, 223 rich black, 217 dark grey, 179 red, 105 green, 29 yellow.
    for (const int level : {255, 226, 223, 217, 179, 105, 29}) {
        TestPage page(200, 100);
        page.drawBars(20, 20, 60, bars, level);
        EXPECT_EQ(separated(page), blackWhere(page, level)) << level;
    }
}

TEST(ContentSeparation, MakesCodesWithLargeModulesBlack) {
    // 8 dots, 1 mm, wherever they lie: squares of three modules, and bars of four.
    for (int place = 0; place < 8; ++place) {
        TestPage page(200, 120);
        page.fill(20 + place, 20 + place, 56, 56, 105);
        page.fill(28 + place, 28 + place, 40, 40, 0);
        page.fill(36 + place, 36 + place, 24, 24, 105);
        page.drawBars(110 + place, 20, 80, {16, 8, 16, 4, 12, 12}, 105);
        EXPECT_EQ(separated(page), blackWhere(page, 105)) << place;
    }
}

TEST(ContentSeparation, TakesTheMiddleOfTheLevelsForLight) {
    TestPage page(100, 40);
    page.drawBars(20, 10, 20, bars, 255);
    page.fill(19, 10, 1, 20, 128);
    page.fill(18 + 4, 10, 1, 20, 129);
    EXPECT_EQ(separated(page), blackWhere(page, 129));
}

TEST(ContentSeparation, LeavesWhatIsTooFaintToTell) {
    TestPage page(200, 100);
    page.drawBars(20, 20, 60, bars, 23);
    EXPECT_EQ(separated(page), page.levels());
}

TEST(ContentSeparation, MakesBlurredBarsAsWideAsTheyWere) {
    for (const int level : {255, 179, 105}) {
        TestPage page(200, 100);
        page.drawBars(20, 20, 60, bars, level);
        const Levels sharp = blackWhere(page, level);
        page.blur();
        const Levels result = separated(page);
        for (std::size_t y = 24; y < 76; ++y) {
            EXPECT_EQ(result[y], sharp[y]) << level << ", row " << y;
        }
    }
}

TEST(ContentSeparation, TakesTheNoiseOfAJpegOffThePaperBesideText) {
    TestPage page(200, 100);
    page.drawBars(20, 20, 60, bars, 200);
    const Levels sharp = blackWhere(page, 200);
    for (int y = 0; y < page.rows(); ++y) {
        for (int x = 0; x < page.columns(); ++x) {
            const int noise = (x * 7 + y * 13) % 15;
            page.at(x, y) = std::min(255, page.at(x, y) + (page.at(x, y) == 0 ? noise : -noise));
        }
    }
    const Levels result = separated(page);
    for (std::size_t y = 16; y < 84; ++y) {
        for (std::size_t x = 16; x < 80; ++x) {
            ASSERT_EQ(result[y][x], sharp[y][x]) << x << ", " << y;
        }
    }
}

TEST(ContentSeparation, LeavesATintWithItsEdges) {
    for (const int level : {30, 60, 128, 200, 240}) {
        TestPage page(200, 120);
        page.fill(21, 19, 133, 83, level);
        EXPECT_EQ(separated(page), page.levels()) << level;
    }
}

TEST(ContentSeparation, LeavesAnEvenTintThatIsVeryLight) {
    TestPage page(200, 120);
    page.fill(21, 19, 133, 83, 15);
    EXPECT_EQ(separated(page), page.levels());
}

TEST(ContentSeparation, LeavesTextOnATintWithIt) {
    TestPage page(300, 60);
    page.fill(10, 10, 280, 40, 100);
    // Black and white letters over most of the row, and a bare end.
    page.drawBars(20, 16, 28, {3, 5, 3, 5, 3, 5, 3, 5, 3, 5, 3, 5}, 255);
    page.drawBars(120, 16, 28, {3, 5, 3, 5, 3, 5, 3, 5, 3, 5, 3, 5}, 0);
    EXPECT_EQ(separated(page), page.levels());
}

TEST(ContentSeparation, MakesTextBesideATintBlack) {
    TestPage page(300, 120);
    page.fill(16, 16, 100, 80, 100);
    page.drawBars(136, 16, 80, bars, 105);
    Levels expected = page.levels();
    for (std::vector<int>& row : expected) {
        std::replace(row.begin() + 130, row.end(), 105, 255);
    }
    EXPECT_EQ(separated(page), expected);
}

TEST(ContentSeparation, LeavesAGradientAsFarAsItGoes) {
    TestPage page(300, 120);
    page.shade(10, 10, 280, 100, 250, 60);
    EXPECT_EQ(separated(page), page.levels());
}

TEST(ContentSeparation, LeavesTheDarkEndOfAGradientThatBeginsWithBlack) {
    TestPage page(300, 120);
    page.shade(16, 16, 280, 96, 254, 60);
    EXPECT_EQ(separated(page), page.levels());
}

TEST(ContentSeparation, LeavesAPhotographWithSharpThingsInIt) {
    TestPage page(300, 200);
    for (int y = 20; y < 180; ++y) {
        for (int x = 20; x < 280; ++x) {
            const int hill = 150 + 60 * (((x / 40) + (y / 50)) % 2) - (x + y) % 97 / 2;
            page.at(x, y) = hill;
        }
    }
    page.fill(100, 60, 6, 60, 255);
    page.fill(140, 60, 30, 4, 0);
    EXPECT_EQ(separated(page), page.levels());
}

TEST(ContentSeparation, MakesFaintHairlinesBlack) {
    for (const int level : {24, 40, 80, 160}) {
        TestPage page(200, 60);
        page.fill(10, 20, 180, 1, level);
        page.fill(30, 5, 1, 50, level);
        EXPECT_EQ(separated(page), blackWhere(page, level)) << level;
    }
}

TEST(ContentSeparation, KeepsLightLinesInBlack) {
    TestPage page(200, 60);
    page.fill(0, 0, 200, 60, 255);
    page.fill(10, 20, 180, 1, 0);
    EXPECT_EQ(separated(page), page.levels());
}

TEST(ContentSeparation, LeavesBlackOnWhiteAsItIs) {
    TestPage page(200, 100);
    page.drawBars(20, 20, 60, bars, 255);
    page.fill(120, 20, 60, 60, 255);
    EXPECT_EQ(separated(page), page.levels());
}

TEST(ContentSeparation, MakesPaperThatIsNotQuiteWhiteWhite) {
    TestPage page(100, 100);
    page.fill(0, 0, 100, 100, 6);
    EXPECT_EQ(separated(page), TestPage(100, 100).levels());
}

TEST(ContentSeparation, TreatsALetterOfOneColourAlikeAllOver) {
    // A ring as large as two blocks and a half, wherever it lies on the blocks.
    for (int place = 0; place < 8; ++place) {
        TestPage page(100, 100);
        page.fill(40 + place, 40 + place, 20, 20, 105);
        page.fill(43 + place, 43 + place, 14, 14, 0);
        EXPECT_EQ(separated(page), blackWhere(page, 105)) << place;
    }
}

TEST(ContentSeparation, GivesARowBackForEveryRow) {
    for (const int rows : {1, 7, 8, 9, 63, 64, 65, 72, 200}) {
        EXPECT_EQ(separated(TestPage(5, rows)).size(), static_cast<std::size_t>(rows));
    }
}

}  // namespace
