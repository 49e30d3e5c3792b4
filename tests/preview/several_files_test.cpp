#include <gtest/gtest.h>

#include <filesystem>

#include "tests/preview/dot_picture.h"
#include "tests/preview/preview_run.h"

namespace {

using Names = std::set<std::string>;

const std::string blankBitmap(16, '\xff');

// One file prints a letter and the other one a blank label and a letter.
class SeveralFiles : public testing::Test {
protected:
    SeveralFiles() {
        streams.write("one.tspl", smallLabel(letterBitmap));
        streams.write("two.tspl", smallLabel(blankBitmap) + smallLabel(letterBitmap));
    }

    static void expectPicture(const TemporaryFolder& in, const std::string& name, bool isLetter) {
        const std::vector<std::string> blank(8, std::string(16, '.'));
        EXPECT_EQ(differenceOf(drawnPicture(isLetter ? letterRows : blank),
                               readPng(in.path(name)).picture),
                  "")
            << name;
    }

    TemporaryFolder streams;
    TemporaryFolder folder;
    const std::string one = streams.path("one.tspl");
    const std::string two = streams.path("two.tspl");
};

TEST_F(SeveralFiles, AreStreamsOfTheirOwn) {
    const FilterResult result = runPreview(folder, {one, two});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardError,
              two + ": line 4, byte 56: the label is blank\n" + two + ": 2 labels, 1 complaint\n");
    EXPECT_EQ(result.standardOutput,
              "one-1.png: 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt\n"
              "two-1.png: 16 x 8 dots at 203 dpi (by its bitmaps), 0.0 % burnt\n"
              "two-2.png: 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt\n");
    EXPECT_EQ(folder.names(), (Names{"one-1.png", "two-1.png", "two-2.png"}));
    expectPicture(folder, "one-1.png", true);
    expectPicture(folder, "two-1.png", false);
    expectPicture(folder, "two-2.png", true);
}

// Size, direction and what is drawn would carry over within a stream.
TEST_F(SeveralFiles, ShareNothingThatTheyDraw) {
    streams.write("bare.tspl", "PRINT 1\n");
    const FilterResult result = runPreview(folder, {"--check", one, streams.path("bare.tspl")});
    EXPECT_EQ(result.status, 1);
    const std::string bare = streams.path("bare.tspl");
    EXPECT_EQ(result.standardOutput, one + ": 1 label, no complaints\n" + bare +
                                         ": line 1, byte 0: the label has no size that can be "
                                         "drawn\n" +
                                         bare + ": 1 label, 1 complaint\n");
}

TEST_F(SeveralFiles, AreNamedBehindThePrefix) {
    EXPECT_EQ(runPreview(folder, {"-o", "p", one, two}).status, 0);
    EXPECT_EQ(folder.names(), (Names{"p-one-1.png", "p-two-1.png", "p-two-2.png"}));
}

TEST_F(SeveralFiles, OfTheSameNameKeepTheirPicturesApart) {
    const TemporaryFolder others;
    const std::string other = others.write("one.bin", smallLabel(blankBitmap));
    EXPECT_EQ(runPreview(folder, {one, other}).status, 0);
    EXPECT_EQ(folder.names(), (Names{"one-1.png", "one_2-1.png"}));
    expectPicture(folder, "one-1.png", true);
    expectPicture(folder, "one_2-1.png", false);
}

TEST_F(SeveralFiles, AreReadWhenOneOfThemCannotBe) {
    const FilterResult result = runPreview(folder, {one, "missing", two});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardError, "tsplpreview: missing: No such file or directory\n" + two +
                                        ": line 4, byte 56: the label is blank\n" + two +
                                        ": 2 labels, 1 complaint\n");
    EXPECT_EQ(folder.names(), (Names{"one-1.png", "two-1.png", "two-2.png"}));
}

TEST_F(SeveralFiles, MayHaveStandardInputAmongThem) {
    const FilterResult result = runPreview(folder, {one, "-"}, smallLabel(blankBitmap) + "SPIN\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardError,
              "standard input: line 4, byte 56: the label is blank\n"
              "standard input: line 5, byte 67: unknown command: SPIN\n"
              "standard input: 1 label, 2 complaints\n");
    expectPicture(folder, "one-1.png", true);
    expectPicture(folder, "label-1.png", false);
}

TEST_F(SeveralFiles, AreNamedInLists) {
    const TemporaryFolder here;
    here.write("a", "CLS\n");
    here.write("b\x1b", "CLS\n");
    EXPECT_EQ(runPreview(here, {"--list", "a", "b\x1b"}).standardOutput,
              "a:\n         0  CLS\nb\\x1b:\n         0  CLS\n");
    const std::string command =
        "{\"type\":\"command\",\"offset\":0,\"command\":\"CLS\",\"arguments\":[],\"text\":\"CLS\"}"
        "\n";
    const std::string summary =
        "{\"type\":\"summary\",\"labels\":0,\"complaints\":0,\"remarks\":0}\n";
    const std::string listed = runPreview(here, {"--json", "a", "b\x1b"}).standardOutput;
    EXPECT_TRUE(listed.starts_with("{\"type\":\"schema\",\"version\":1,")) << listed;
    EXPECT_EQ(listed.substr(listed.find('\n') + 1),
              "{\"type\":\"stream\",\"name\":\"a\"}\n" + command + summary +
                  "{\"type\":\"stream\",\"name\":\"b\\\\x1b\"}\n" + command + summary);
}

TEST_F(SeveralFiles, AreAllCheckedWhateverTheFirstOneSays) {
    const TemporaryFolder here;
    here.write("a", "SPIN\n");
    here.write("b", "CLS\n");
    here.write("c", "SPUN\n");
    const FilterResult result = runPreview(here, {"--check", "a", "b", "c"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardOutput,
              "a: line 1, byte 0: unknown command: SPIN\n"
              "a: no label: nothing is printed without PRINT; 1 complaint\n"
              "b: no label: nothing is printed without PRINT\n"
              "c: line 1, byte 0: unknown command: SPUN\n"
              "c: no label: nothing is printed without PRINT; 1 complaint\n");
}

}  // namespace
