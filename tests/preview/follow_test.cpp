#include <gtest/gtest.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "tests/preview/dot_picture.h"
#include "tests/preview/preview_run.h"
#include "tests/preview/running_preview.h"

namespace {

namespace fs = std::filesystem;

const std::string blankBitmap(16, '\xff');
const std::string letterLine = " 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt\n";
const std::string blankLine = " 16 x 8 dots at 203 dpi (by its bitmaps), 0.0 % burnt\n";

class Follow : public testing::Test {
protected:
    void append(const std::string& bytes) const {
        std::ofstream(file, std::ios::binary | std::ios::app) << bytes;
    }

    void expectLetter(const std::string& name) const {
        EXPECT_EQ(differenceOf(drawnPicture(letterRows), readPng(folder.path(name)).picture), "")
            << name;
    }

    TemporaryFolder folder;
    const std::string file = folder.write("rec.bin", "");
};

TEST_F(Follow, DrawsEachLabelWhenItIsThere) {
    const std::string label = smallLabel(letterBitmap);
    append(label + label.substr(0, 45));
    RunningPreview preview(folder, {"--follow", "rec.bin"});
    EXPECT_EQ(preview.output("\n"), "rec-1.png:" + letterLine);
    append(label.substr(45));
    EXPECT_EQ(preview.output("\n"), "rec-2.png:" + letterLine);
    append(smallLabel(blankBitmap));
    EXPECT_EQ(preview.output("\n"), "rec-3.png:" + blankLine);
    preview.sendSignal(SIGINT);
    EXPECT_EQ(preview.status(), -SIGINT);
    EXPECT_EQ(preview.errors("\n"), "rec.bin: line 12, byte 190: the label is blank\n");
    EXPECT_EQ(preview.errors("\n"), "");
    expectLetter("rec-1.png");
    expectLetter("rec-2.png");
    EXPECT_EQ(folder.names(),
              (std::set<std::string>{"rec.bin", "rec-1.png", "rec-2.png", "rec-3.png"}));
}

TEST_F(Follow, EndsWithEachOfItsSignalsAndComplainsOfNothingThatIsUnderWay) {
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
        fs::resize_file(file, 0);
        append("CLS\nBITMAP 0,0,4,4,0,abc");
        RunningPreview preview(folder, {"--follow", "--list", "rec.bin"});
        EXPECT_EQ(preview.output("\n"), "         0  CLS\n");
        preview.sendSignal(signal);
        EXPECT_EQ(preview.status(), -signal);
        EXPECT_EQ(preview.output("\n"), "");
        EXPECT_EQ(preview.errors("\n"), "");
    }
}

TEST_F(Follow, StartsAgainWhereAFileHasBecomeShorter) {
    append(smallLabel(blankBitmap) + "CLS\n");
    RunningPreview preview(folder, {"--follow", "rec.bin"});
    EXPECT_EQ(preview.output("\n"), "rec-1.png:" + blankLine);
    fs::resize_file(file, 0);
    EXPECT_EQ(preview.errors("\n"), "rec.bin: line 4, byte 56: the label is blank\n");
    EXPECT_EQ(preview.errors("\n"), "rec.bin: 1 label, 1 complaint\n");
    EXPECT_EQ(preview.errors("\n"),
              "tsplpreview: rec.bin: the file has become shorter and is read from its start\n");
    append(smallLabel(letterBitmap));
    EXPECT_EQ(preview.output("\n"), "rec-1.png:" + letterLine);
    expectLetter("rec-1.png");
    preview.sendSignal(SIGTERM);
    EXPECT_EQ(preview.status(), -SIGTERM);
}

// What was written to the old file comes before the new one.
TEST_F(Follow, GoesOnWithTheFileThatTakesTheName) {
    append(smallLabel(blankBitmap) + "BITMAP 0,0,4,4,0,abc");
    RunningPreview preview(folder, {"--follow", "rec.bin"});
    EXPECT_EQ(preview.output("\n"), "rec-1.png:" + blankLine);
    folder.write("new", smallLabel(letterBitmap));
    fs::rename(folder.path("new"), file);
    EXPECT_EQ(preview.output("\n"), "rec-1.png:" + letterLine);
    EXPECT_EQ(preview.errors("\n"), "rec.bin: line 4, byte 56: the label is blank\n");
    EXPECT_EQ(preview.errors("\n"),
              "rec.bin: line 5, byte 67: BITMAP is cut short: 3 of 16 bytes are there\n");
    EXPECT_EQ(preview.errors("\n"), "rec.bin: 1 label, 2 complaints\n");
    EXPECT_EQ(preview.errors("\n"),
              "tsplpreview: rec.bin: another file has this name now, which "
              "is read from its start\n");
    expectLetter("rec-1.png");
    preview.sendSignal(SIGTERM);
    EXPECT_EQ(preview.status(), -SIGTERM);
}

TEST_F(Follow, StaysWithAFileThatLosesItsName) {
    RunningPreview preview(folder, {"--follow", "--list", "rec.bin"});
    append("CLS\n");
    EXPECT_EQ(preview.output("\n"), "         0  CLS\n");
    std::ofstream still(file, std::ios::binary | std::ios::app);
    fs::remove(file);
    still << "HOME\n" << std::flush;
    EXPECT_EQ(preview.output("\n"), "         4  HOME\n");
    preview.sendSignal(SIGTERM);
    EXPECT_EQ(preview.status(), -SIGTERM);
    EXPECT_EQ(preview.errors("\n"), "");
}

TEST_F(Follow, OfAPipeEndsWhereItsWriterEnds) {
    RunningPreview preview(folder, {"--follow", "--list"});
    preview.write("CLS\n");
    EXPECT_EQ(preview.output("\n"), "         0  CLS\n");
    preview.write("HOME");
    preview.endInput();
    EXPECT_EQ(preview.output("\n"), "         4  HOME\n");
    EXPECT_EQ(preview.status(), 0);
    EXPECT_EQ(preview.errors("\n"), "");
}

TEST_F(Follow, OfAPipeReadsItOnceAndSumsItUpOnce) {
    RunningPreview preview(folder, {"--follow", "--check", "--label", "1"});
    preview.write("SIZE 1,1\nBAR 0,0,9,9\nPRINT 1\n");
    preview.endInput();
    EXPECT_EQ(preview.output("\n"), "standard input: 1 label, no complaints\n");
    EXPECT_EQ(preview.status(), 0);
    EXPECT_EQ(preview.output("\n"), "");
    EXPECT_EQ(preview.errors("\n"), "");
}

TEST_F(Follow, OfASilentPipeEndsWithASignal) {
    RunningPreview preview(folder, {"--follow", "--list"});
    preview.write("CLS\n");
    EXPECT_EQ(preview.output("\n"), "         0  CLS\n");
    preview.sendSignal(SIGTERM);
    EXPECT_EQ(preview.status(), -SIGTERM);
}

TEST_F(Follow, EndsWhereStandardOutputCannotBeWritten) {
    append("CLS\n");
    const FilterResult result =
        runFilter(shellCall(folder, "\"$PREVIEW\" --follow --list rec.bin >/dev/full"));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardError, "tsplpreview: standard output: No space left on device\n");
}

TEST_F(Follow, OfWhatCannotBeReadEnds) {
    const FilterResult result = runPreview(folder, {"--follow", "."});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardError, "tsplpreview: .: Is a directory\n");
}

// The picture goes to a pipe under its unfinished name, which the test does not empty.
TEST_F(Follow, IsEndedByASecondSignalWhereTheFirstOneHasToWait) {
    append(noiseLabel(2000, 2000));
    ASSERT_EQ(mkfifo(folder.path("rec-1.png.part").c_str(), 0600), 0);
    RunningPreview preview(folder, {"--follow", "rec.bin"});
    const std::ifstream pipe(folder.path("rec-1.png.part"));
    preview.sendSignal(SIGINT);
    // Two signals of a kind become one when the first one has not been taken yet.
    preview.sendSignal(SIGTERM);
    const int status = preview.status();
    EXPECT_TRUE(status == -SIGTERM || status == -SIGINT) << status;
    EXPECT_EQ(folder.names(), std::set<std::string>{"rec.bin"});
}

}  // namespace
