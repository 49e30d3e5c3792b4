// Statements of the BASIC that printers run.
#include "tspl/basic_statements.h"

#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

bool isBasic(const char* line) {
    return isBasicStatement(parseCommand({}, line));
}

TEST(BasicStatement, IsALoopAConditionAJumpALabelOrAnAssignment) {
    for (const char* line :
         {"FOR I=1 TO 10", "NEXT", "IF A$=\"x\" THEN", "ELSE", "ENDIF", "WHILE A<3", "WEND",
          "GOTO AGAIN", "GOSUB SUB", "RETURN", "LET A=1", "INPUT \"name\",A$", "A=1", "A$=\"1\"",
          "LINE$ = A$+B$", "B(3)=4", ":AGAIN", "for i=1 to 3", "EXITDO"}) {
        EXPECT_TRUE(isBasic(line)) << line;
    }
    for (const char* line :
         {"SIZE 4,6", "SIZZ 4", "", ":", "=", "A", "A(3", "what is this", "CLS ="}) {
        EXPECT_EQ(isBasic(line), std::string_view(line) == "CLS =") << line;
    }
}

TEST(BasicStatement, IsRemarkedOnOnceAndNotComplainedOf) {
    EXPECT_EQ(findingsOf("CLS\nFOR I=1 TO 3\nA$=STR$(I)\nNEXT\nGOTO X\n"),
              Texts{"remark 4 BASIC statements are not run"});
}

TEST(BasicStatement, IsListedAsNotRun) {
    RecordingSink sink;
    obeyStream("NEXT\n", sink);
    EXPECT_EQ(sink.entries.at(0).remark, "not run");
}

TEST(BasicStatement, LetsCommandsTakeItsVariablesWithoutComplaints) {
    EXPECT_EQ(findingsOf("SIZE 1,1\nCLS\nX=10\nINPUT \"at\",Y$\nFOR I=1 TO 3\nBAR X,10,20,20\n"
                         "BARCODE x+4,50,\"128\",40,1,0,2,2,\"A\"\nBOX 1,Y,40,40,2\nNEXT\n"
                         "PRINT I,1\n"),
              Texts{"remark 13 BASIC statements are not run"});
}

TEST(BasicStatement, GivesNoOtherNameAValue) {
    EXPECT_EQ(
        findingsOf("SIZE 1,1\nX=10\nINPUT \"Y\",Z\nBAR Y,10,20,20\n"),
        (Texts{"remark 9 BASIC statements are not run", "complaint 26 BAR does not take \"Y\""}));
    EXPECT_EQ(findingsOf("IF X=1 THEN\nBAR X,10,20,20\n").size(), 2U);
    EXPECT_EQ(findingsOf("IF X=1 THEN Y=2 ELSE Z=3\nBAR Y,Z,20,20\n").size(), 1U);
    EXPECT_EQ(findingsOf("IF (X=1) THEN Y=2\nBAR Y,1,20,20\n").size(), 1U);
}

TEST(BasicStatement, ChangesNoUnitNoWordAndNoLetterOfACode) {
    const std::string variables = "MM=8\nON=1\nF=1\nL=1\nA=1\n";  // 22 bytes
    EXPECT_EQ(findingsOf(variables + "SIZE 40 mm,20 mm\nCLS\nBAR 10,10,400,5\nSET TEAR ON\n"
                                     "SET CUTTER ON\nPRINT 1\n"),
              (Texts{"remark 0 BASIC statements are not run",
                     "complaint 85 more than one of SET TEAR, SET PEEL and SET CUTTER is on",
                     "complaint 43 450 dots lie outside the label and are cut off"}));
    RecordingSink sink;
    obeyStream(
        variables + "SIZE 1,1\nQRCODE 0,0,L,2,A,0,\"A\"\nDOWNLOAD F,\"A.BAS\"\nPRINT 1\nEOP\n",
        sink);
    EXPECT_EQ(sink.findings, Texts{"remark 0 BASIC statements are not run"});
    EXPECT_EQ(sink.entries.at(6).remark, "");
    EXPECT_TRUE(sink.labels.empty());
}

TEST(BasicStatement, HidesNoOtherFaultOfACommand) {
    const std::string start = "X=10\nSIZE 2,2\n";  // 14 bytes
    for (const char* line : {"TEXT X,10,\"3\",0,1,1,\"abc", "BARCODE X,10,\"12", "BAR X,1",
                             "BAR 1,Z,9,X", "BOX X,1,2,3,4,5,6,7,8"}) {
        EXPECT_EQ(findingsOf(start + line + "\n").size(), 2U) << line;
    }
    EXPECT_EQ(findingsOf(start + "BARCODE 1,1,\"128\",X,1,0,2,2,\"A\"\nQRCODE 1,1,L,x,A,0,\"a\"\n"),
              Texts{"remark 0 BASIC statements are not run"});
}

TEST(BasicStatement, OfASizeLeavesTheLabelWithout) {
    EXPECT_EQ(findingsOf("W=3\nSIZE 1,1\nSIZE W,2\nBAR 0,0,500,9\nPRINT 1\n"),
              Texts{"remark 0 BASIC statements are not run"});
}

TEST(BasicStatement, PrintsALabelOnceWhereAVariableSaysHowOften) {
    RecordingSink sink;
    obeyStream("SIZE 1,1\nN=3\nBAR 1,1,9,9\nPRINT N\n", sink);
    ASSERT_EQ(sink.labels.size(), 1U);
    EXPECT_EQ(sink.entries.back().remark, "drawn once");
}

TEST(BasicStatement, OfAStoredProgramIsStored) {
    EXPECT_EQ(findingsOf("DOWNLOAD \"A.BAS\"\nFOR I=1 TO 3\nNEXT\nEOP\n"), Texts{});
}

}  // namespace
}  // namespace tspl
