// What --check says of codes.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

Texts complaint(const std::string& text) {
    return {"complaint 0 " + text};
}

std::string barcode(const std::string& type, const std::string& content) {
    return "BARCODE 1,2,\"" + type + "\",9,0,0,2,5,\"" + content + "\"";
}

TEST(CodeComplaint, IsMadeOfATypeThatTsplDoesNotHave) {
    EXPECT_EQ(findingsOf(barcode("ABC", "1")), complaint("BARCODE: there is no type \"ABC\""));
    EXPECT_EQ(findingsOf(barcode("", "1")), complaint("BARCODE: there is no type \"\""));
}

TEST(CodeComplaint, IsMadeOfAnAngleThatIsNone) {
    const std::string text = ": the rotation is 0, 90, 180 or 270, not \"45\"";
    EXPECT_EQ(findingsOf("BARCODE 1,2,\"39\",9,0,45,2,5,\"A\""), complaint("BARCODE" + text));
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,4,A,45,\"A\""), complaint("QRCODE" + text));
    EXPECT_EQ(findingsOf("DMATRIX 1,2,9,9,x2,r45,\"A\""), complaint("DMATRIX" + text));
}

TEST(CodeComplaint, IsMadeOfNumbersThatNoBarcodeTakes) {
    const auto with = [](const std::string& arguments) {
        return findingsOf("BARCODE 1,2,\"39\"," + arguments + ",\"A\"");
    };
    EXPECT_EQ(with("0,0,0,2,5"), complaint("BARCODE: the height is 1 to 99999, not \"0\""));
    EXPECT_EQ(with("9,4,0,2,5"),
              complaint("BARCODE: the place of the text line is 0 to 3, not \"4\""));
    EXPECT_EQ(with("9,0,0,0,5"), complaint("BARCODE: a narrow element is 1 to 999, not \"0\""));
    EXPECT_EQ(with("9,0,0,2,x"), complaint("BARCODE: a wide element is 1 to 999, not \"x\""));
    EXPECT_EQ(with("9,0,0,2,5,4"), complaint("BARCODE: the alignment is 0 to 3, not \"4\""));
    EXPECT_EQ(findingsOf("BARCODE x,2,\"39\",9,0,0,2,5,\"A\"").size(), 1U);
}

TEST(CodeComplaint, IsMadeOfWideElementsThatAreNoWider) {
    const std::string text =
        "BARCODE: wide elements that are no wider than narrow ones cannot be read";
    EXPECT_EQ(findingsOf("BARCODE 1,2,\"39\",9,0,0,2,2,\"A\""), complaint(text));
    EXPECT_EQ(findingsOf("BARCODE 1,2,\"39\",9,0,0,3,2,\"A\""), complaint(text));
    EXPECT_EQ(findingsOf("BARCODE 1,2,\"128\",9,0,0,2,2,\"A\""), Texts{});
}

TEST(CodeComplaint, IsMadeOfContentThatTheCodeCannotHold) {
    EXPECT_EQ(findingsOf(barcode("25", "12a")),
              complaint("BARCODE: Invalid character in data (digits only)"));
    EXPECT_EQ(findingsOf(barcode("EAN13", "123")),
              complaint("BARCODE: EAN13 takes 12 to 13 digits, not \"123\""));
    EXPECT_EQ(findingsOf(barcode("EAN13+2", "590123412345")),
              complaint("BARCODE: EAN13+2 takes 12 to 13 digits and 2 more, not \"590123412345\""));
    EXPECT_EQ(findingsOf(barcode("EAN13", "59012341234x")),
              complaint("BARCODE: EAN13 takes 12 to 13 digits, not \"59012341234x\""));
    EXPECT_EQ(findingsOf(barcode("ITF14", "12345678901230")),
              complaint("BARCODE: the check digit is 1, not 0"));
    EXPECT_EQ(findingsOf(barcode("EAN128", "AB")),
              complaint("BARCODE: the content begins with an application identifier, not \"AB\""));
    EXPECT_EQ(findingsOf(barcode("39", std::string(20000, 'A'))),
              complaint("BARCODE: no code holds 20000 bytes"));
    EXPECT_EQ(findingsOf("QRCODE 1,2,H,1,A,0,\"" + std::string(5000, 'a') + "\"").size(), 1U);
}

TEST(CodeComplaint, IsMadeOfACheckDigitThatIsWrong) {
    EXPECT_EQ(findingsOf(barcode("EAN13", "5901234123450")),
              complaint("BARCODE: the check digit is 7, not 0"));
    EXPECT_EQ(findingsOf(barcode("EAN8", "12345671")),
              complaint("BARCODE: the check digit is 0, not 1"));
    EXPECT_EQ(findingsOf(barcode("UPCA", "012345678906")),
              complaint("BARCODE: the check digit is 5, not 6"));
    EXPECT_EQ(findingsOf(barcode("UPCE", "01234566")),
              complaint("BARCODE: Invalid check digit '6', expecting '5'"));
}

TEST(CodeComplaint, IsMadeOfTextBehindTheClosingMark) {
    EXPECT_EQ(findingsOf(barcode("39", "A") + "B"),
              complaint("BARCODE: there is text behind the closing quotation mark: \"B\""));
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,4,A,0,\"A\" \xff"),
              complaint("QRCODE: there is text behind the closing quotation mark: \"\\xff\""));
}

TEST(CodeComplaint, IsMadeOfContentWithoutMarksAndOfNone) {
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,4,A,0,12"),
              complaint("QRCODE: the content is not within quotation marks: \"12\""));
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,4,A,0,\"\""),
              complaint("QRCODE: there is nothing to encode"));
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,4,A,0,\"A\","),
              complaint("QRCODE: it does not take \"\"A\"\""));
}

TEST(CodeComplaint, IsMadeOfAQrCodeThatThereIsNot) {
    EXPECT_EQ(findingsOf("QRCODE 1,2,X,4,A,0,\"A\""),
              complaint("QRCODE: the level is L, M, Q or H, not \"X\""));
    EXPECT_EQ(findingsOf("QRCODE 1,2,LM,4,A,0,\"A\""),
              complaint("QRCODE: the level is L, M, Q or H, not \"LM\""));
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,0,A,0,\"A\""),
              complaint("QRCODE: the cell width is 1 to 10, not \"0\""));
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,11,A,0,\"A\""),
              complaint("QRCODE: the cell width is 1 to 10, not \"11\""));
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,4,B,0,\"A\""),
              complaint("QRCODE: the mode is A or M, not \"B\""));
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,4,A,0,M3,\"A\""),
              complaint("QRCODE: the model behind M is 1 to 2, not \"3\""));
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,4,A,0,S9,\"A\""),
              complaint("QRCODE: the mask behind S is 0 to 8, not \"9\""));
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,4,A,0,J0,\"A\""),
              complaint("QRCODE: the justification behind J is 1 to 9, not \"0\""));
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,4,A,0,Z1,\"A\""),
              complaint("QRCODE: it does not take \"Z1\""));
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,4,A,0,,\"A\""), complaint("QRCODE: it does not take \"\""));
}

TEST(CodeComplaint, IsMadeOfPartsThatManualModeDoesNotHave) {
    const auto manual = [](const std::string& content) {
        return findingsOf("QRCODE 1,2,L,4,M,0,\"" + content + "\"");
    };
    const Texts noPart =
        complaint("QRCODE: a part of the content in mode M begins with N, A, B or K");
    EXPECT_EQ(manual("hello"), noPart);
    EXPECT_EQ(manual("N12!"), noPart);
    EXPECT_EQ(manual("N1A"), complaint("QRCODE: a part of the content does not have \"A\""));
    EXPECT_EQ(manual("Aab"), complaint("QRCODE: a part of the content does not have \"a\""));
    const Texts noBytes =
        complaint("QRCODE: a part B has a length of four digits and as many bytes");
    EXPECT_EQ(manual("B0003ab"), noBytes);
    EXPECT_EQ(manual("Bxab"), noBytes);
    EXPECT_EQ(manual("B"), noBytes);
    EXPECT_EQ(manual("B-001a"), noBytes);
    EXPECT_EQ(manual("N"), complaint("QRCODE: there is nothing to encode"));
}

TEST(CodeComplaint, IsMadeOfADataMatrixThatThereIsNot) {
    const auto with = [](const std::string& options) {
        return findingsOf("DMATRIX 1,2,9,9," + options + ",\"A~1\"");
    };
    EXPECT_EQ(with("x0"), complaint("DMATRIX: the module behind x is 1 to 999, not \"0\""));
    EXPECT_EQ(with("c256"), complaint("DMATRIX: the escape behind c is 0 to 255, not \"256\""));
    EXPECT_EQ(with("a2"), complaint("DMATRIX: the shape behind a is 0 to 1, not \"2\""));
    EXPECT_EQ(with("z1"), complaint("DMATRIX: it does not take \"z1\""));
    EXPECT_EQ(with("18"), complaint("DMATRIX: a size has rows and columns"));
    EXPECT_EQ(with("18,18,18"), complaint("DMATRIX: a size has rows and columns"));
    EXPECT_EQ(with("18,19"), complaint("DMATRIX: there is no size of 18 rows and 19 columns"));
    EXPECT_EQ(with("c126"), complaint("DMATRIX: the escape character stands before \"1\""));
    EXPECT_EQ(findingsOf("DMATRIX 1,2,-1,9,x2,\"A\""),
              complaint("DMATRIX: the width is 0 to 99999, not \"-1\""));
}

TEST(CodeComplaint, IsMadeOfEscapesThatStandForNothing) {
    const auto escaped = [](const std::string& content) {
        return findingsOf("DMATRIX 1,2,9,9,x2,c126,\"" + content + "\"");
    };
    EXPECT_EQ(escaped("~d25"), complaint("DMATRIX: a byte is 000 to 255, not \"25\""));
    EXPECT_EQ(escaped("~d256"), complaint("DMATRIX: a byte is 000 to 255, not \"256\""));
    EXPECT_EQ(escaped("~1AB"),
              complaint("DMATRIX: an application identifier stands behind FNC1, not \"AB\""));
    EXPECT_EQ(escaped("A~"), complaint("DMATRIX: the escape character stands before \"\\x00\""));
}

TEST(CodeRemark, IsMadeOfContentThatOnlyThePrinterKnows) {
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,4,A,0,@1"),
              Texts{"remark 0 QRCODE is not drawn: the value of @1 is not known"});
    EXPECT_EQ(findingsOf("BARCODE 1,2,\"39\",9,0,0,2,5,A$"),
              Texts{"remark 0 BARCODE is not drawn: the value of A$ is not known"});
    EXPECT_EQ(findingsOf("DMATRIX 1,2,9,9,x2,\"A\"+@1"),
              Texts{"remark 0 DMATRIX is not drawn: the value of @1 is not known"});
    EXPECT_EQ(findingsOf("DMATRIX 1,2,9,9,x2,\"A\" + A$"),
              Texts{"remark 0 DMATRIX is not drawn: the value of A$ is not known"});
    EXPECT_EQ(findingsOf("QRCODE 1,2,L,4,A,0,(A$)"),
              Texts{"remark 0 QRCODE is not drawn: the value of (A$) is not known"});
}

TEST(CodeRemark, IsMadeOfTheTextLineOfABarcode) {
    for (const char* line : {"1", "2", "3"}) {
        EXPECT_EQ(findingsOf("BARCODE 1,2,\"39\",9," + std::string(line) + ",0,2,5,\"A\""),
                  Texts{"remark 0 the text line of BARCODE is in a font that is only alike"});
    }
    EXPECT_EQ(findingsOf(barcode("39", "A")), Texts{});
}

TEST(CodeBeyondTheLabel, IsCutOffAndCounted) {
    // Three characters of three narrow bars and two wide ones, two rows high; the command is at
    // byte 17.
    EXPECT_EQ(findingsOf("SIZE 8 dot,8 dot\nBARCODE 8,0,\"39\",2,0,0,1,3,\"A\"\nPRINT 1\n"),
              Texts{"complaint 17 54 dots lie outside the label and are cut off"});
}

}  // namespace
}  // namespace tspl
