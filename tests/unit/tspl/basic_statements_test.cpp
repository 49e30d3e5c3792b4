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
          "LINE$ = A$+B$", "B(3)=4", ":AGAIN", "for i=1 to 3"}) {
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

TEST(BasicStatement, OfAStoredProgramIsStored) {
    EXPECT_EQ(findingsOf("DOWNLOAD \"A.BAS\"\nFOR I=1 TO 3\nNEXT\nEOP\n"), Texts{});
}

}  // namespace
}  // namespace tspl
