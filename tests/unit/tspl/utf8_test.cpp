#include "tspl/utf8.h"

#include <gtest/gtest.h>

namespace tspl {
namespace {

TEST(CharactersOf, ReadsCharactersOfOneToFourBytes) {
    EXPECT_EQ(charactersOf("Aä你\U0001F600"), U"Aä你\U0001F600");
    EXPECT_EQ(charactersOf(""), U"");
    EXPECT_EQ(charactersOf("\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80"),
              U"\u007F\u0080\u07FF\u0800\uFFFF\U00010000");
}

TEST(CharactersOf, ReplacesEveryByteThatIsPartOfNone) {
    EXPECT_EQ(charactersOf("a\x80z"), U"a\uFFFDz");
    EXPECT_EQ(charactersOf("\xC3"), U"\uFFFD");
    EXPECT_EQ(charactersOf("\xE4\xBDz"), U"\uFFFD\uFFFDz");
    EXPECT_EQ(charactersOf("\xC0\x80\xC1\xBF"), U"\uFFFD\uFFFD\uFFFD\uFFFD");  // too long
    EXPECT_EQ(charactersOf("\xE0\x9F\xBF"), U"\uFFFD\uFFFD\uFFFD");            // too long
    EXPECT_EQ(charactersOf("\xED\xA0\x80"), U"\uFFFD\uFFFD\uFFFD");            // half of a pair
    EXPECT_EQ(charactersOf("\xF4\x90\x80\x80"), U"\uFFFD\uFFFD\uFFFD\uFFFD");  // past the last
    EXPECT_EQ(charactersOf("\xF8\xFF"), U"\uFFFD\uFFFD");
}

TEST(Utf8Of, WritesWhatCharactersOfReads) {
    EXPECT_EQ(utf8Of(U'A'), "A");
    EXPECT_EQ(utf8Of(U'ä'), "\xC3\xA4");
    EXPECT_EQ(utf8Of(U'你'), "\xE4\xBD\xA0");
    EXPECT_EQ(utf8Of(U'\U0001F600'), "\xF0\x9F\x98\x80");
    for (const char32_t edge : {0x7FU, 0x80U, 0x7FFU, 0x800U, 0xFFFFU, 0x10000U, 0x10FFFFU}) {
        EXPECT_EQ(charactersOf(utf8Of(edge)), std::u32string(1, edge));
    }
}

}  // namespace
}  // namespace tspl
