// TEXT and BLOCK on labels of 200 x 100 dots.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

Texts drawn(const std::string& commands) {
    return pictureOf("SIZE 200 dot,100 dot\nCLS\n" + commands + "\nPRINT 1\n");
}

// By hand: characters of font 3 are 16 x 24 dots, of font 1 8 x 12.

TEST(Text, BurnsNothingOutsideOfItsCells) {
    const Texts text = drawn(R"(TEXT 20,30,"3",0,1,1,"MgM")");
    EXPECT_NE(text, drawn(""));
    EXPECT_EQ(drawn("TEXT 20,30,\"3\",0,1,1,\"MgM\"\nERASE 20,30,48,24"), drawn(""));
}

TEST(Text, IsMovedByReference) {
    EXPECT_EQ(drawn("REFERENCE 20,30\nTEXT 0,0,\"3\",0,1,1,\"MgM\""),
              drawn(R"(TEXT 20,30,"3",0,1,1,"MgM")"));
}

TEST(Text, IsAddedToWhatIsThere) {
    EXPECT_EQ(drawn("BAR 0,0,200,100\nTEXT 20,30,\"3\",0,1,1,\"MgM\""), drawn("BAR 0,0,200,100"));
}

TEST(Text, StandsLeftCentredOrRight) {
    const Texts left = drawn(R"(TEXT 52,30,"3",0,1,1,"MgM")");
    EXPECT_EQ(drawn(R"(TEXT 52,30,"3",0,1,1,0,"MgM")"), left);
    EXPECT_EQ(drawn(R"(TEXT 52,30,"3",0,1,1,1,"MgM")"), left);
    EXPECT_EQ(drawn(R"(TEXT 76,30,"3",0,1,1,2,"MgM")"), left);
    EXPECT_EQ(drawn(R"(TEXT 100,30,"3",0,1,1,3,"MgM")"), left);
}

TEST(Text, IsAlignedAlongItsLineWhenItIsTurned) {
    EXPECT_EQ(drawn(R"(TEXT 100,72,"3",90,1,1,3,"MgM")"), drawn(R"(TEXT 100,24,"3",90,1,1,"MgM")"));
    EXPECT_EQ(drawn(R"(TEXT 100,50,"3",180,1,1,3,"MgM")"),
              drawn(R"(TEXT 148,50,"3",180,1,1,"MgM")"));
}

TEST(Text, TurnsAboutItsPlace) {
    const std::string text = R"("3",)";
    const auto erased = [&](const std::string& rotation, const std::string& area) {
        return drawn("TEXT 100,50,\"3\"," + rotation + ",1,1,\"MgM\"\nERASE " + area);
    };
    EXPECT_EQ(erased("0", "100,50,48,24"), drawn(""));
    EXPECT_EQ(erased("90", "76,50,24,48"), drawn(""));
    EXPECT_EQ(erased("180", "52,26,48,24"), drawn(""));
    EXPECT_EQ(erased("270", "100,2,24,48"), drawn(""));
}

TEST(Text, GoesOnInTheNextLineAtALineEnd) {
    const Texts lines = drawn("TEXT 20,30,\"3\",0,1,1,\"ab\"\nTEXT 20,54,\"3\",0,1,1,\"c\"");
    EXPECT_EQ(drawn(R"(TEXT 20,30,"3",0,1,1,"ab\[L]c")"), lines);
    EXPECT_EQ(drawn(R"(TEXT 20,30,"3",0,1,1,"ab\[R]\[L]c")"), lines);
}

TEST(Text, HasQuotationMarksOfItsOwn) {
    EXPECT_EQ(drawn(R"(TEXT 20,30,"3",0,1,1,"5\["]")"),
              drawn("CODEPAGE 1252\nTEXT 20,30,\"3\",0,1,1,\"5\\[\"]\""));
    EXPECT_NE(drawn(R"(TEXT 20,30,"3",0,1,1,"5\["]")"), drawn(R"(TEXT 20,30,"3",0,1,1,"5")"));
}

// 72 points are an inch: a full line is 203 dots high at 203 dpi, so that two lines lie 203 dots
// apart.
TEST(Text, OfAScalableFontHasItsSizeInPoints) {
    const auto twoLines = [](int dpi, const std::string& commands) {
        PrinterOptions options;
        options.dpi = dpi;
        return pictureOf("SIZE 2,3\n" + commands + "\nPRINT 1\n", options);
    };
    EXPECT_EQ(twoLines(203, R"(TEXT 0,0,"0",0,72,72,"a\[L]b")"),
              twoLines(203, "TEXT 0,0,\"0\",0,72,72,\"a\"\nTEXT 0,203,\"0\",0,72,72,\"b\""));
    EXPECT_EQ(twoLines(300, R"(TEXT 0,0,"0",0,36,36,"a\[L]b")"),
              twoLines(300, "TEXT 0,0,\"0\",0,36,36,\"a\"\nTEXT 0,150,\"0\",0,36,36,\"b\""));
}

TEST(Text, InAFontOfEastAsiaIsReadInItsCodePage) {
    const std::string utf8 = "CODEPAGE UTF-8\n";
    EXPECT_EQ(drawn("TEXT 9,9,\"TSS24.BF2\",0,1,1,\"\xC4\xE3\""),
              drawn(utf8 + "TEXT 9,9,\"TSS24.BF2\",0,1,1,\"你\""));
    EXPECT_EQ(drawn("CODEPAGE 850\nTEXT 9,9,\"TST24.BF2\",0,1,1,\"\xA7\x41\""),
              drawn(utf8 + "TEXT 9,9,\"TST24.BF2\",0,1,1,\"你\""));
    EXPECT_EQ(drawn("TEXT 9,9,\"K\",0,1,1,\"\xB0\xA1\""),
              drawn(utf8 + "TEXT 9,9,\"K\",0,1,1,\"가\""));
}

// 40 dots hold 5 characters of font 1.
TEST(Block, WrapsItsTextAndSpacesItsLines) {
    EXPECT_EQ(drawn(R"(BLOCK 20,30,40,60,"1",0,1,1,"aa bb cc")"),
              drawn("TEXT 20,30,\"1\",0,1,1,\"aa bb\"\nTEXT 20,42,\"1\",0,1,1,\"cc\""));
    EXPECT_EQ(drawn(R"(BLOCK 20,30,40,60,"1",0,1,1,5,"aa bb cc")"),
              drawn("TEXT 20,30,\"1\",0,1,1,\"aa bb\"\nTEXT 20,47,\"1\",0,1,1,\"cc\""));
    EXPECT_EQ(drawn(R"(BLOCK 20,30,40,60,"1",0,1,1,-2,"aa bb cc")"),
              drawn("TEXT 20,30,\"1\",0,1,1,\"aa bb\"\nTEXT 20,40,\"1\",0,1,1,\"cc\""));
}

TEST(Block, AlignsItsLinesInItsWidth) {
    EXPECT_EQ(drawn(R"(BLOCK 20,30,40,60,"1",0,1,1,0,2,"aa bb cc")"),
              drawn("TEXT 20,30,\"1\",0,1,1,\"aa bb\"\nTEXT 32,42,\"1\",0,1,1,\"cc\""));
    EXPECT_EQ(drawn(R"(BLOCK 20,30,40,60,"1",0,1,1,0,3,"aa bb cc")"),
              drawn("TEXT 20,30,\"1\",0,1,1,\"aa bb\"\nTEXT 44,42,\"1\",0,1,1,\"cc\""));
}

TEST(Block, TurnsAboutItsPlace) {
    EXPECT_EQ(drawn(R"(BLOCK 120,30,40,60,"1",90,1,1,"aa bb cc")"),
              drawn("TEXT 120,30,\"1\",90,1,1,\"aa bb\"\nTEXT 108,30,\"1\",90,1,1,\"cc\""));
}

TEST(Block, DrawsTheLinesThatItHasRoomFor) {
    EXPECT_EQ(drawn(R"(BLOCK 20,30,16,24,"1",0,1,1,"aa bb cc")"),
              drawn("TEXT 20,30,\"1\",0,1,1,\"aa\"\nTEXT 20,42,\"1\",0,1,1,\"bb\""));
    EXPECT_EQ(drawn(R"(BLOCK 20,30,16,11,"1",0,1,1,"aa")"), drawn(""));
}

// Twice as large, the words would need three lines of 24 dots; the block is 36 dots high.
TEST(Block, MakesItsLettersSmallerOnRequest) {
    EXPECT_EQ(drawn(R"(BLOCK 20,30,32,36,"1",0,2,2,0,0,1,"aa bb cc")"),
              drawn(R"(BLOCK 20,30,32,36,"1",0,1,1,"aa bb cc")"));
    EXPECT_EQ(drawn(R"(BLOCK 20,20,32,72,"1",0,2,2,0,0,1,"aa bb cc")"),
              drawn(R"(BLOCK 20,20,32,72,"1",0,2,2,"aa bb cc")"));
    EXPECT_EQ(findingsOf("SIZE 2,2\nBLOCK 0,0,32,36,\"1\",0,2,2,0,0,1,\"aa bb cc\"\n").size(), 1U);
}

}  // namespace
}  // namespace tspl
