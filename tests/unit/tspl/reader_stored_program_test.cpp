// DOWNLOAD of a program, up to EOP: its lines are stored, not obeyed.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

RecordingSink& read(RecordingSink& sink, std::string_view stream) {
    obeyStream(stream, sink);
    return sink;
}

Texts remarksOf(std::string_view stream) {
    RecordingSink sink;
    Texts remarks;
    for (const Entry& entry : read(sink, stream).entries) {
        remarks.push_back(entry.remark);
    }
    return remarks;
}

constexpr auto sStored = "stored in the printer";

TEST(StoredProgram, EndsAtEop) {
    EXPECT_EQ(remarksOf("DOWNLOAD \"A.BAS\"\nCLS\nWHAT 7\nPRINT x\nEOP\nCLS\n"),
              (Texts{"", sStored, sStored, sStored, "", ""}));
}

TEST(StoredProgram, MayStandInANamedMemory) {
    EXPECT_EQ(remarksOf("download F,\"A.BAS\"\nCLS\neop\nCLS\n"), (Texts{"", sStored, "", ""}));
}

TEST(StoredProgram, IsNeitherComplainedOfNorRemarkedOn) {
    EXPECT_EQ(findingsOf("DOWNLOAD \"A.BAS\"\nWHAT 7\nTEXT 1\nPRINT 0\nSET X\nSIZE x\n"
                         "BITMAP 0,0,1,1,7,a\nEOP\n"),
              Texts{});
}

TEST(StoredProgram, DrawsAndPrintsNothing) {
    RecordingSink sink;
    read(sink,
         "SIZE 8 dot,1 dot\nDOWNLOAD \"A.BAS\"\nBAR 0,0,1,1\nDIRECTION 1\nREFERENCE 3,0\n"
         "PRINT 1\nEOP\nBAR 6,0,1,1\nPRINT 1\n");
    ASSERT_EQ(sink.labels.size(), 1U);
    EXPECT_EQ(sink.labels.front().rows, Texts{"......#."});
}

TEST(StoredProgram, KeepsItsBitmapsToItself) {
    RecordingSink sink;
    read(sink,
         "SIZE 8 dot,1 dot\nDOWNLOAD \"A.BAS\"\nBITMAP 0,0,2,9,0,EOP\nEOP\nEOP\nEOP\nxx\n"
         "EOP\nBAR 6,0,1,1\nPRINT 1\n");
    ASSERT_EQ(sink.labels.size(), 1U);
    EXPECT_EQ(sink.labels.front().rows, Texts{"......#."});
    EXPECT_EQ(sink.findings, Texts{});
    EXPECT_EQ(sink.entries[2].remark, sStored);
    EXPECT_EQ(sink.entries[2].bitmap->receivedBytes, 18U);
}

TEST(StoredProgram, IsNoneForAFile) {
    EXPECT_EQ(remarksOf("DOWNLOAD \"A.BMP\",3,abc\nCLS\n"), (Texts{"", ""}));
    EXPECT_EQ(remarksOf("DOWNLOAD F,\"A.BMP\",0,\nCLS\n"), (Texts{"", ""}));
}

TEST(StoredProgram, MayHoldFiles) {
    EXPECT_EQ(remarksOf("DOWNLOAD \"A.BAS\"\nDOWNLOAD \"B\",4,EOP\n\nCLS\nEOP\nCLS\n"),
              (Texts{"", sStored, sStored, "", ""}));
}

TEST(StoredProgram, LeavesLinesToThePrinterItselfAlone) {
    EXPECT_EQ(remarksOf("DOWNLOAD \"A.BAS\"\n~!T\nEOP\n"),
              (Texts{"", "not part of the picture", ""}));
}

TEST(StoredProgram, EndsWithoutAStartByDoingNothing) {
    EXPECT_EQ(remarksOf("EOP\nCLS\n"), (Texts{"", ""}));
    EXPECT_EQ(findingsOf("EOP\nCLS\n"), Texts{});
}

TEST(StoredProgram, DoesNotStartAtADownloadWithoutArguments) {
    EXPECT_EQ(remarksOf("DOWNLOAD\nCLS\n"), (Texts{"not understood", ""}));
}

// A size that cannot be read makes no program of a file.
TEST(StoredProgram, IsNoneForAFileWhoseSizeCannotBeRead) {
    EXPECT_EQ(remarksOf("DOWNLOAD \"A.BMP\",99999999999,abc\nCLS\n").back(), "");
}

}  // namespace
}  // namespace tspl
