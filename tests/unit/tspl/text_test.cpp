// Texts and numbers of a stream.
#include "tspl/text.h"

#include <gtest/gtest.h>

namespace tspl {
namespace {

TEST(Trimmed, LosesBlanksAndTabsAtBothEndsOnly) {
    EXPECT_EQ(trimmed(" \t a\t b \t"), "a\t b");
    EXPECT_EQ(trimmed("a"), "a");
    EXPECT_EQ(trimmed(" \t "), "");
    EXPECT_EQ(trimmed(""), "");
}

TEST(Trimmed, KeepsOtherBytesThatAreNotSeen) {
    EXPECT_EQ(trimmed(" \r\n "), "\r\n");
    EXPECT_EQ(trimmed(std::string_view(" \0 ", 3)), std::string_view("\0", 1));
    EXPECT_EQ(trimmed("\xA0"), "\xA0");
}

TEST(UpperCase, ChangesTheLettersOfAsciiOnly) {
    EXPECT_EQ(upperCase("azAZ`{@[09_\xE4\xFF"), "AZAZ`{@[09_\xE4\xFF");
    EXPECT_EQ(upperCase(""), "");
}

TEST(ParseInteger, ReadsEveryNumberOf32Bits) {
    EXPECT_EQ(parseInteger("0"), 0);
    EXPECT_EQ(parseInteger("-1"), -1);
    EXPECT_EQ(parseInteger("007"), 7);
    EXPECT_EQ(parseInteger("2147483647"), INT32_MAX);
    EXPECT_EQ(parseInteger("-2147483648"), INT32_MIN);
}

TEST(ParseInteger, RefusesNumbersBeyond32Bits) {
    EXPECT_EQ(parseInteger("2147483648"), std::nullopt);
    EXPECT_EQ(parseInteger("-2147483649"), std::nullopt);
    EXPECT_EQ(parseInteger(std::string(60000, '9')), std::nullopt);
}

TEST(ParseInteger, RefusesEverythingElse) {
    for (const char* text :
         {"", "-", "x", "1x", " 1", "1 ", "1.0", "1e3", "0x10", "--1", "\"1\""}) {
        EXPECT_EQ(parseInteger(text), std::nullopt) << text;
    }
    EXPECT_EQ(parseInteger(std::string_view("1\0", 2)), std::nullopt);
}

TEST(Printable, KeepsWhatAsciiPrintsButTheBackslash) {
    std::string all;
    for (char c = ' '; c <= '~'; ++c) {
        all += c == '\\' ? '/' : c;
    }
    EXPECT_EQ(printable(all), all);
    EXPECT_EQ(printable("\\"), "\\x5c");
}

TEST(Printable, ShowsOtherBytesAsTheirNumbers) {
    EXPECT_EQ(printable(std::string_view("\0\t\r\n\x1f\x7f\x80\xff", 8)),
              "\\x00\\x09\\x0d\\x0a\\x1f\\x7f\\x80\\xff");
}

TEST(Printable, GivesEveryByteATextOfItsOwn) {
    std::string seen;
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text = printable(std::string(1, static_cast<char>(byte)));
        EXPECT_EQ(text.size(), byte >= ' ' && byte <= '~' && byte != '\\' ? 1U : 4U) << byte;
        EXPECT_EQ(seen.find(" " + text + " "), std::string::npos) << byte;
        seen += " " + text + " ";
    }
}

}  // namespace
}  // namespace tspl
