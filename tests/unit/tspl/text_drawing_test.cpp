// Lines of text in dots.
#include "tspl/text_drawing.h"

#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

constexpr std::int64_t sSide = 240;

SetFont font(const char* name, std::int32_t x = 1, std::int32_t y = 1) {
    return {fontOf(name).value(), x, y};
}

struct Drawn {
    Texts rows;
    Extent extent;
};

Drawn drawn(const TextFrame& frame, const SetFont& setFont, std::u32string_view text) {
    DotCanvas canvas(sSide, sSide);
    drawTextLine(canvas, frame, setFont, 0, 0, text);
    return {rowsOf(canvas), canvas.takeExtent()};
}

Texts bare() {
    return Texts(sSide, std::string(sSide, '.'));
}

bool isIn(const Extent& extent, const Area& area) {
    return extent.left >= area.x && extent.top >= area.y && extent.right <= area.x + area.width &&
           extent.bottom <= area.y + area.height;
}

// Each dot as `x` by `y` dots.
Texts magnified(const Texts& rows, std::size_t x, std::size_t y) {
    Texts result;
    for (const std::string& row : rows) {
        std::string wide;
        for (const char dot : row) {
            wide.append(x, dot);
        }
        result.insert(result.end(), y, wide);
    }
    return result;
}

Texts cut(const Texts& rows, std::size_t width, std::size_t height) {
    Texts result(rows.begin(), rows.begin() + static_cast<std::ptrdiff_t>(height));
    for (std::string& row : result) {
        row.resize(width);
    }
    return result;
}

TEST(LineWidth, IsACellForEveryCharacterOfAFixedFont) {
    EXPECT_EQ(lineWidth(font("1"), U"iW. "), 32);
    EXPECT_EQ(lineWidth(font("3"), U"iW. "), 64);
    EXPECT_EQ(lineWidth(font("3", 10), U"iW. "), 640);
    EXPECT_EQ(lineWidth(font("7", 2), U"ä你"), 84);
    EXPECT_EQ(lineWidth(font("3"), U""), 0);
}

TEST(LineWidth, IsHalfACellForLatinLettersOfTheFontsOfEastAsia) {
    EXPECT_EQ(lineWidth(font("TST24.BF2"), U"ab"), 24);
    EXPECT_EQ(lineWidth(font("TST24.BF2"), U"你好"), 48);
    EXPECT_EQ(lineWidth(font("K", 2), U"a가"), 72);
}

TEST(LineWidth, FollowsTheLettersOfAProportionalFont) {
    const SetFont proportional = font("0", 40, 40);
    EXPECT_LT(lineWidth(proportional, U"i"), lineWidth(proportional, U"m"));
    EXPECT_EQ(lineWidth(proportional, U"im"),
              lineWidth(proportional, U"i") + lineWidth(proportional, U"m"));
    EXPECT_EQ(lineWidth(proportional, U"\n"), 0);
}

// Twice as wide letters move on twice as far, but for what is rounded.
TEST(LineWidth, OfAProportionalFontGrowsWithItsWidthAlone) {
    const std::int64_t once = lineWidth(font("0", 50, 50), U"m");
    const std::int64_t twice = lineWidth(font("0", 100, 50), U"m");
    EXPECT_LE(std::abs(twice - 2 * once), 1);
    EXPECT_EQ(lineWidth(font("0", 50, 200), U"m"), once);
}

TEST(LineHeight, IsThatOfTheCellOrTheSize) {
    EXPECT_EQ(lineHeight(font("1")), 12);
    EXPECT_EQ(lineHeight(font("3", 1, 3)), 72);
    EXPECT_EQ(lineHeight(font("0", 10, 28)), 28);
}

TEST(TextLine, KeepsEveryCharacterInItsCell) {
    for (const char* name : {"1", "2", "3", "4", "5", "6", "7", "8"}) {
        const SetFont fixed = font(name);
        const std::int64_t width = advanceOf(fixed, U'A');
        for (const char32_t character : std::u32string(U"AgÅjW@|_█你")) {
            const Drawn one = drawn({50, 60, 0}, fixed, std::u32string(1, character));
            EXPECT_TRUE(isIn(one.extent, {50, 60, width, lineHeight(fixed)})) << name;
            EXPECT_NE(one.rows, bare()) << name << static_cast<unsigned>(character);
        }
    }
}

TEST(TextLine, IsTheSameCharacterByCharacter) {
    const SetFont fixed = font("3");
    DotCanvas canvas(sSide, sSide);
    std::int64_t x = 0;
    for (const char32_t character : std::u32string_view(U"Ab 8")) {
        drawTextLine(canvas, {10, 10, 0}, fixed, x, 0, std::u32string(1, character));
        x += 16;
    }
    EXPECT_EQ(rowsOf(canvas), drawn({10, 10, 0}, fixed, U"Ab 8").rows);
}

TEST(TextLine, MagnifiesEveryDotOfAFixedFont) {
    for (const char* name : {"1", "3", "6", "8"}) {
        const Texts once = drawn({0, 0, 0}, font(name), U"Ag8").rows;
        EXPECT_NE(once, bare());
        const Texts expected = magnified(cut(once, sSide / 3, sSide / 2), 3, 2);
        EXPECT_EQ(drawn({0, 0, 0}, font(name, 3, 2), U"Ag8").rows, expected) << name;
    }
}

// A dot dx to the right of the corner and dy under it comes to lie dx under it and dy + 1 left of
// it, and so on.
TEST(TextLine, TurnsEveryDotAboutItsCorner) {
    constexpr std::size_t middle = sSide / 2;
    for (const SetFont& any : {font("3", 2, 1), font("0", 30, 40)}) {
        const Texts upright = drawn({middle, middle, 0}, any, U"Fg").rows;
        Texts by90 = bare();
        Texts by180 = bare();
        Texts by270 = bare();
        for (std::size_t y = 1; y < sSide; ++y) {
            for (std::size_t x = 1; x < sSide; ++x) {
                const char dot = upright[y][x];
                by90[x][2 * middle - 1 - y] = dot;
                by180[2 * middle - 1 - y][2 * middle - 1 - x] = dot;
                by270[2 * middle - 1 - x][y] = dot;
            }
        }
        EXPECT_EQ(drawn({middle, middle, 90}, any, U"Fg").rows, by90);
        EXPECT_EQ(drawn({middle, middle, 180}, any, U"Fg").rows, by180);
        EXPECT_EQ(drawn({middle, middle, 270}, any, U"Fg").rows, by270);
    }
}

TEST(TextLine, DrawsNothingForBlanksAndCodes) {
    EXPECT_EQ(drawn({10, 10, 0}, font("3"), U" \t\u0001\u007F\u0085\u00A0").rows, bare());
}

TEST(TextLine, ShowsThatACharacterIsMissing) {
    EXPECT_NE(drawn({10, 10, 0}, font("3"), U"\U000F1234").rows, bare());
}

TEST(TextLine, CountsTheDotsThatLieBesideTheCanvas) {
    DotCanvas inside(100, 30);
    drawTextLine(inside, {0, 0, 0}, font("3"), 0, 0, U"Mg M");
    DotCanvas outside(100, 30);
    drawTextLine(outside, {100, 0, 0}, font("3"), 0, 0, U"Mg M");
    EXPECT_EQ(outside.dotsOutside(), inside.burntDots());
    EXPECT_EQ(outside.burntDots(), 0U);
}

// A long line in large letters, of which all but the first lie beside the canvas.
TEST(TextLine, IsNotDrawnInLargeLettersWhereNobodySeesIt) {
    const Drawn text = drawn({0, 0, 0}, font("0", 4096, 4096), std::u32string(65000, U'M'));
    EXPECT_GT(text.extent.right, 65000 * 2000);
}

TEST(StartOfLine, StandsToTheRoomOrToAPoint) {
    EXPECT_EQ(startOfLine(30, 100, Alignment::Left), 0);
    EXPECT_EQ(startOfLine(30, 100, Alignment::Centre), 35);
    EXPECT_EQ(startOfLine(30, 100, Alignment::Right), 70);
    EXPECT_EQ(startOfLine(30, 0, Alignment::Centre), -15);
    EXPECT_EQ(startOfLine(30, 0, Alignment::Right), -30);
}

}  // namespace
}  // namespace tspl
