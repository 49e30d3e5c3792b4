// What the bytes of texts mean: the characters are those of the code pages' tables.
#include "tspl/code_page.h"

#include <gtest/gtest.h>

#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

std::string utf8In(const char* name, const std::string& bytes) {
    const auto codePage = CodePage::named(name);
    return codePage ? codePage->toUtf8(bytes).utf8 : "no code page";
}

TEST(CodePage, Is437FromTheStart) {
    const CodePage codePage;
    EXPECT_EQ(codePage.name(), "437");
    EXPECT_FALSE(codePage.isUtf8());
    EXPECT_EQ(codePage.toUtf8("\x84\xE1\xDB").utf8, "äß█");
}

TEST(CodePage, HasTheCharactersOfItsTable) {
    EXPECT_EQ(utf8In("850", "\x84\x9B\xB5"), "äøÁ");
    EXPECT_EQ(utf8In("852", "\xA5"), "ą");
    EXPECT_EQ(utf8In("857", "\xA7"), "ğ");
    EXPECT_EQ(utf8In("860", "\x84"), "ã");
    EXPECT_EQ(utf8In("863", "\x84"), "Â");
    EXPECT_EQ(utf8In("865", "\x9B"), "ø");
    EXPECT_EQ(utf8In("866", "\x80"), "А");
    EXPECT_EQ(utf8In("1250", "\xB9"), "ą");
    EXPECT_EQ(utf8In("1251", "\xC0"), "А");
    EXPECT_EQ(utf8In("1252", "\x80\xE4"), "€ä");
    EXPECT_EQ(utf8In("1253", "\xE1"), "α");
    EXPECT_EQ(utf8In("1254", "\xF0"), "ğ");
    EXPECT_EQ(utf8In("8859-1", "\xE4"), "ä");
    EXPECT_EQ(utf8In("8859-15", "\xA4"), "€");
    EXPECT_EQ(utf8In("GER", "\x5B\x7B"), "Ää");
}

TEST(CodePage, OfTwoBytesJoinsThem) {
    EXPECT_EQ(utf8In("936", "\xC4\xE3"), "你");
    EXPECT_EQ(utf8In("GB18030", "\xC4\xE3"), "你");
    EXPECT_EQ(utf8In("950", "\xA7\x41"), "你");
    EXPECT_EQ(utf8In("BIG5", "\xA7\x41"), "你");
    EXPECT_EQ(utf8In("932", "\x82\xA0"), "あ");
    EXPECT_EQ(utf8In("Shift-JIS", "\x82\xA0"), "あ");
    EXPECT_EQ(utf8In("949", "\xB0\xA1"), "가");
}

TEST(CodePage, LeavesUtf8AsItIs) {
    EXPECT_EQ(utf8In("UTF-8", "Größe 你 €"), "Größe 你 €");
    EXPECT_TRUE(CodePage::named("utf-8")->isUtf8());
}

TEST(CodePage, ReplacesEveryByteThatIsNoCharacters) {
    const auto converted = CodePage::named("UTF-8")->toUtf8("a\xFF\x84z\xC3");
    EXPECT_EQ(converted.utf8, "a\uFFFD\uFFFDz\uFFFD");
    EXPECT_EQ(converted.unknownBytes, 3U);
    EXPECT_EQ(CodePage::named("1252")->toUtf8("\x81").unknownBytes, 1U);
    EXPECT_EQ(CodePage::named("936")->toUtf8("\xC4").unknownBytes, 1U);
}

TEST(CodePage, TakesTextsOfAnyLength) {
    const std::string bytes(10000, '\xDB');
    const std::string utf8 = CodePage().toUtf8(bytes).utf8;
    EXPECT_EQ(utf8.size(), 30000U);
    EXPECT_EQ(utf8.find_first_not_of("\xE2\x96\x88"), std::string::npos);
    EXPECT_EQ(CodePage().toUtf8("").utf8, "");
}

// A table that the system does not have leaves ASCII only.
TEST(CodePage, HasATableForEveryNameThatPrintersKnow) {
    for (const char* name :
         {"437",  "737",  "775",  "850",  "851",  "852",  "855",    "857",    "858",    "860",
          "861",  "862",  "863",  "864",  "865",  "866",  "869",    "874",    "1250",   "1251",
          "1252", "1253", "1254", "1255", "1256", "1257", "1258",   "8859-1", "8859-2", "8859-16",
          "932",  "936",  "949",  "950",  "BIG5", "USA",  "BRI",    "GBR",    "GER",    "FRE",
          "DAN",  "ITA",  "SPA",  "SWE",  "SWI",  "GBK",  "GB2312", "EUC-KR", "UTF8",   "65001"}) {
        const auto codePage = CodePage::named(name);
        ASSERT_TRUE(codePage) << name;
        EXPECT_EQ(codePage->name(), name);
        EXPECT_EQ(codePage->toUtf8("A").utf8, "A") << name;
    }
}

TEST(CodePage, IsNoneForANameThatNoPrinterKnows) {
    for (const char* name :
         {"", "999", "8859-12", "8859-17", "8859-0", "8859-", "8859-1x", "43", "4370"}) {
        EXPECT_FALSE(CodePage::named(name)) << name;
    }
}

TEST(CodePageCommand, IsComplainedAboutWhenItIsUnknown) {
    EXPECT_EQ(findingsOf("CODEPAGE 999\nCODEPAGE 850\nCODEPAGE utf-8\n"),
              Texts{"complaint 0 CODEPAGE does not take \"999\""});
}

// 0x84 is ä on page 437 and a quotation mark that stands low on page 1252.
TEST(CodePageCommand, ChangesWhatTextsAfterItShow) {
    const auto drawn = [](const std::string& before, const std::string& text) {
        return pictureOf("SIZE 16 dot,24 dot\n" + before + "TEXT 0,0,\"3\",0,1,1,\"" + text +
                         "\"\nPRINT 1\n");
    };
    EXPECT_EQ(drawn("", "\x84"), drawn("CODEPAGE UTF-8\n", "ä"));
    EXPECT_EQ(drawn("CODEPAGE 1252\n", "\x84"), drawn("CODEPAGE UTF-8\n", "„"));
    EXPECT_NE(drawn("", "\x84"), drawn("CODEPAGE 1252\n", "\x84"));
    EXPECT_EQ(drawn("CODEPAGE 1252\nCODEPAGE 999\n", "\x84"), drawn("CODEPAGE 1252\n", "\x84"));
}

}  // namespace
}  // namespace tspl
