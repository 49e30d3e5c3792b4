// What is said of TEXT and BLOCK.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

const std::string sAlike = "remark 0 TEXT is drawn in a font that is only alike";

Texts complaint(const std::string& text) {
    return {"complaint 0 " + text};
}

TEST(TextFindings, SayOncePerLabelThatTheFontIsOnlyAlike) {
    const std::string text = "TEXT 0,0,\"1\",0,1,1,\"a\"\n";  // 23 bytes
    const std::string remark = " TEXT is drawn in a font that is only alike";
    EXPECT_EQ(findingsOf("SIZE 2,2\n" + text + text + "PRINT 1\n" + text + text + "PRINT 1\n"),
              (Texts{"remark 9" + remark, "remark 63" + remark}));
    EXPECT_EQ(findingsOf("BLOCK 0,0,90,90,\"1\",0,1,1,\"a\"\n"),
              Texts{"remark 0 BLOCK is drawn in a font that is only alike"});
}

TEST(TextFindings, HoldNoComplaintOfEveryFontAndSizeThatPrintersTake) {
    for (const std::string start :
         {R"("1",0,1,1)", R"("8",90,10,10)", R"("0",180,1,999)", R"("ROMAN.TTF",270,12,8)",
          R"("TST24.BF2",0,1,1)", R"("k",0,1,1)", R"("3",0,1,1,0)", R"("3",0,1,1,3)"}) {
        EXPECT_EQ(findingsOf("TEXT 0,0," + start + ",\"a\""), Texts{sAlike}) << start;
    }
}

TEST(TextFindings, ComplainOfAnAngleThatPrintersDoNotHave) {
    for (const std::string angle : {"45", "-90", "360", "1"}) {
        EXPECT_EQ(findingsOf("TEXT 0,0,\"1\"," + angle + ",1,1,\"a\""),
                  complaint("TEXT does not take the rotation " + angle));
    }
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"1",x-1,1,1,"a")").size(), 1U);
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"1",0.5,1,1,"a")"), complaint("TEXT does not take \"0.5\""));
}

TEST(TextFindings, ComplainOfAFontThatPrintersDoNotHave) {
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"9",0,1,1,"a")"),
              complaint("TEXT does not take the font \"9\""));
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,3,0,1,1,"a")"),
              complaint("TEXT does not take \"3\" without quotation marks"));
    EXPECT_EQ(findingsOf("BLOCK 0,0,90,90,\"\xFF\",0,1,1,\"a\""),
              complaint("BLOCK does not take the font \"\\xff\""));
}

TEST(TextFindings, ComplainOfAFontFileThatIsNotInTheStream) {
    const std::string end = " of TEXT is not in the stream; the printer needs it in its memory";
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"ARIAL.TTF",0,9,9,"a")"),
              (Texts{"complaint 0 the font \"ARIAL.TTF\"" + end, sAlike}));
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"a.fnt",0,1,1,"a")"),
              (Texts{"complaint 0 the font \"a.fnt\"" + end, sAlike}));
    EXPECT_EQ(findingsOf("DOWNLOAD \"A.FNT\",3,abc\nTEXT 0,0,\"A.FNT\",0,9,9,\"a\""),
              Texts{"remark 23 TEXT is drawn in a font that is only alike"});
}

TEST(TextFindings, ComplainOfAMultiplicationOutOfRange) {
    for (const std::string value : {"0", "-1", "11"}) {
        const auto text = complaint("TEXT does not take the multiplication " + value);
        EXPECT_EQ(findingsOf("TEXT 0,0,\"1\",0," + value + ",1,\"a\""), text);
        EXPECT_EQ(findingsOf("TEXT 0,0,\"1\",0,1," + value + ",\"a\""), text);
    }
}

// 4096 dots at 203 dpi are 1452.8 points.
TEST(TextFindings, ComplainOfASizeThatIsTooLarge) {
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"0",0,0,9,"a")"),
              complaint("TEXT does not take a size of 0 points"));
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"0",0,9,1453,"a")"),
              complaint("TEXT does not take a size of 1453 points"));
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"0",0,9,2147483647,"a")"),
              complaint("TEXT does not take a size of 2147483647 points"));
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"0",0,9,1452,"a")"), Texts{sAlike});
}

TEST(TextFindings, ComplainOfAnAlignmentThatPrintersDoNotHave) {
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"1",0,1,1,4,"a")"),
              complaint("TEXT does not take the alignment 4"));
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"1",0,1,1,-1,"a")"),
              complaint("TEXT does not take the alignment -1"));
}

TEST(TextFindings, ComplainOfWhatStandsBehindTheClosingQuotationMark) {
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"1",0,1,1,"a" bc)"),
              complaint("TEXT does not take \"bc\" behind the closing quotation mark"));
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"1"x,0,1,1,"a")"),
              complaint("TEXT does not take \"x\" behind the closing quotation mark"));
}

TEST(TextFindings, ComplainOfAPlaceThatIsNoNumber) {
    EXPECT_EQ(findingsOf(R"(TEXT ,0,"1",0,1,1,"a")"), complaint("TEXT does not take \"\""));
    EXPECT_EQ(findingsOf(R"(TEXT 0,1.5,"1",0,1,1,"a")"), complaint("TEXT does not take \"1.5\""));
}

TEST(TextFindings, RemarkThatWhatThePrinterWorksOutIsNotDrawn) {
    const Texts remark{"remark 0 TEXT of a variable, a counter or a sum of texts is not drawn"};
    EXPECT_EQ(findingsOf("TEXT 0,0,\"1\",0,1,1,@1"), remark);
    EXPECT_EQ(findingsOf("TEXT 0,0,\"1\",0,1,1,A$"), remark);
    EXPECT_EQ(findingsOf(R"(TEXT 0,0,"1",0,1,1,"No. "+STR$(N))"), remark);
    EXPECT_EQ(findingsOf(R"(TEXT X,0,"1",0,1,1,"a")"), remark);
}

TEST(TextFindings, RemarkBytesThatAreNoCharacters) {
    EXPECT_EQ(findingsOf("CODEPAGE UTF-8\nTEXT 0,0,\"1\",0,1,1,\"\xFF\"\n").back(),
              "remark 15 TEXT holds bytes that are no characters in code page UTF-8");
    EXPECT_EQ(findingsOf("CODEPAGE UTF-8\nTEXT 0,0,\"1\",0,1,1,\"ä\"\n").size(), 1U);
}

TEST(TextFindings, RemarkUtf8InAnotherCodePage) {
    EXPECT_EQ(findingsOf("TEXT 0,0,\"1\",0,1,1,\"ä\"\n").back(),
              "remark 0 TEXT may be meant in UTF-8, and is read in code page 437");
    EXPECT_EQ(findingsOf("TEXT 0,0,\"1\",0,1,1,\"\x84\"\n"), Texts{sAlike});
}

TEST(TextFindings, ComplainOfABlockWithoutAnExtent) {
    EXPECT_EQ(findingsOf(R"(BLOCK 0,0,0,9,"1",0,1,1,"a")").back(),
              R"(complaint 0 BLOCK without an extent: BLOCK 0,0,0,9,"1",0,1,1,"a")");
    EXPECT_EQ(findingsOf(R"(BLOCK 0,0,9,-1,"1",0,1,1,"a")").size(), 2U);
}

TEST(TextFindings, ComplainOfAFitThatIsNeitherOnNorOff) {
    const auto with = [](const std::string& fit) {
        return findingsOf("BLOCK 0,0,90,90,\"1\",0,1,1,0,0," + fit + ",\"a\"");
    };
    EXPECT_EQ(with("2").back(), "complaint 0 BLOCK does not take the fit 2");
    EXPECT_EQ(with("-1").back(), "complaint 0 BLOCK does not take the fit -1");
    EXPECT_EQ(with("0").size(), 1U);
    EXPECT_EQ(with("1").size(), 1U);
}

TEST(TextFindings, ComplainOfABlockThatIsTooSmallForItsText) {
    EXPECT_EQ(findingsOf(R"(BLOCK 0,0,16,24,"1",0,1,1,"aa bb cc")").back(),
              "complaint 0 BLOCK has room for 2 of the 3 lines of its text");
    EXPECT_EQ(findingsOf(R"(BLOCK 0,0,16,36,"1",0,1,1,"aa bb cc")").size(), 1U);
}

TEST(TextFindings, ComplainOfATextThatReachesBeyondTheLabelWhereItStands) {
    const auto findings = [](const std::string& text) {
        return findingsOf("SIZE 96 dot,48 dot\nBAR 0,0,9,9\n" + text + "\nPRINT 1\n");
    };
    for (const std::string text : {R"(TEXT 80,4,"3",0,1,1,"MM ")", R"(TEXT 4,36,"3",0,1,1,"MM")",
                                   R"(TEXT 4,30,"3",180,1,1,"M")", R"(TEXT 30,-9,"3",0,1,1,"M")"}) {
        const Texts found = findings(text);
        ASSERT_EQ(found.size(), 2U) << text;
        EXPECT_TRUE(found[1].starts_with("complaint 31 ")) << found[1];
        EXPECT_TRUE(found[1].ends_with(" dots lie outside the label and are cut off")) << found[1];
    }
    EXPECT_EQ(findings(R"(TEXT 80,4,"3",0,1,1,"M   ")").size(), 1U);
}

TEST(TextFindings, ForgetTextsThatAreCleared) {
    EXPECT_EQ(
        findingsOf("SIZE 96 dot,48 dot\nTEXT 80,4,\"3\",0,1,1,\"MM\"\nCLS\nBAR 0,0,1,1\nPRINT 1\n")
            .size(),
        1U);
}

// U+100000 is nobody's character.
TEST(TextFindings, TellOfCharactersThatNoFontHas) {
    const std::string box =
        "remark 15 TEXT holds characters that no font of this system has; boxes "
        "stand for them";
    const std::string alike = "remark 15 TEXT is drawn in a font that is only alike";
    EXPECT_EQ(findingsOf("CODEPAGE UTF-8\nTEXT 0,0,\"3\",0,1,1,\"a\xF4\x80\x80\x80\"\n"),
              (Texts{alike, box}));
    EXPECT_EQ(findingsOf("CODEPAGE UTF-8\nTEXT 0,0,\"3\",0,1,1,\"a\xC3\xA4 b\"\n"), Texts{alike});
}

}  // namespace
}  // namespace tspl
