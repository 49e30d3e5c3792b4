// Lines of a text and where they break; characters of font 1 are 8 dots wide.
#include "tspl/text_lines.h"

#include <gtest/gtest.h>

#include "tspl/utf8.h"

namespace tspl {
namespace {

using Lines = std::vector<std::u32string>;

SetFont font(const char* name, std::int32_t x = 1) {
    return {fontOf(name).value(), x, 1};
}

TEST(LinesOf, EndAtCarriageReturnsLineFeedsAndPairsOfThem) {
    EXPECT_EQ(linesOf(U""), Lines{U""});
    EXPECT_EQ(linesOf(U"a\rb\nc\r\nd\n\re"), (Lines{U"a", U"b", U"c", U"d", U"e"}));
    EXPECT_EQ(linesOf(U"a\n\nb\n"), (Lines{U"a", U"", U"b", U""}));
}

TEST(Wrapped, BreaksAtTheLastBlankThatFits) {
    EXPECT_EQ(wrapped(font("1"), U"aa bb cc", 40), (Lines{U"aa bb", U"cc"}));
    EXPECT_EQ(wrapped(font("1"), U"aa bb cc", 39), (Lines{U"aa", U"bb", U"cc"}));
    EXPECT_EQ(wrapped(font("1"), U"aa bb cc", 64), Lines{U"aa bb cc"});
    EXPECT_EQ(wrapped(font("1", 2), U"aa bb cc", 80), (Lines{U"aa bb", U"cc"}));
}

TEST(Wrapped, LetsBlanksAtTheEndOfALineHang) {
    EXPECT_EQ(wrapped(font("1"), U"aa   bb", 16), (Lines{U"aa", U"bb"}));
    EXPECT_EQ(wrapped(font("1"), U"aa  ", 16), Lines{U"aa"});
}

TEST(Wrapped, KeepsBlanksAtTheBeginningOfAText) {
    EXPECT_EQ(wrapped(font("1"), U" ab", 24), Lines{U" ab"});
}

TEST(Wrapped, BreaksAWordThatIsTooLong) {
    EXPECT_EQ(wrapped(font("1"), U"abcdefg", 24), (Lines{U"abc", U"def", U"g"}));
    EXPECT_EQ(wrapped(font("1"), U"a bcdef", 24), (Lines{U"a", U"bcd", U"ef"}));
    EXPECT_EQ(wrapped(font("1"), U" abcd", 24), (Lines{U" ab", U"cd"}));
}

TEST(Wrapped, PutsACharacterIntoALineThatIsNarrowerThanIt) {
    EXPECT_EQ(wrapped(font("1"), U"abc", 7), (Lines{U"a", U"b", U"c"}));
    EXPECT_EQ(wrapped(font("1"), U"", 7), Lines{U""});
}

TEST(Wrapped, BreaksAtLineEnds) {
    EXPECT_EQ(wrapped(font("1"), U"aa\n\nbb cc", 16), (Lines{U"aa", U"", U"bb", U"cc"}));
}

TEST(Wrapped, BreaksBesideCharactersOfEastAsia) {
    EXPECT_EQ(wrapped(font("TSS24.BF2"), U"ab你好吗", 60), (Lines{U"ab你", U"好吗"}));
}

// Words of a proportional font break by the widths of their letters.
TEST(Wrapped, MeasuresProportionalLetters) {
    const SetFont proportional{fontOf("0").value(), 40, 40};
    const std::int64_t width = lineWidth(proportional, U"iiii WW");
    EXPECT_EQ(wrapped(proportional, U"iiii WW", width), Lines{U"iiii WW"});
    EXPECT_EQ(wrapped(proportional, U"iiii WW", width - 1), (Lines{U"iiii", U"WW"}));
}

}  // namespace
}  // namespace tspl
