// Names of files may hold what terminals obey.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/preview/preview_run.h"

namespace {

// Clears a screen, sets a title, ends a line, and is no UTF-8.
const std::string nastyStem = "\x1b[2J\x1b]0;x\x07 a\nb\\\xff\x9b";
const std::string shownStem = "\\x1b[2J\\x1b]0;x\\x07 a\\x0ab\\x5c\\xff\\x9b";

bool isPlain(const std::string& text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); });
}

TEST(TerminalBytes, OfAFilesNameAreShownAsTheirNumbers) {
    const TemporaryFolder folder;
    folder.write(nastyStem + ".tspl", smallLabel(letterBitmap) + "SPIN\n");
    const FilterResult result = runPreview(folder, {nastyStem + ".tspl"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardOutput,
              shownStem + "-1.png: 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt\n");
    EXPECT_EQ(result.standardError, shownStem + ".tspl: line 5, byte 67: unknown command: SPIN\n" +
                                        shownStem + ".tspl: 1 label, 1 complaint\n");
    EXPECT_EQ(folder.names(), (std::set<std::string>{nastyStem + ".tspl", nastyStem + "-1.png"}));
    EXPECT_EQ(runPreview(folder, {"--check", nastyStem + ".tspl"}).standardOutput,
              result.standardError);
}

TEST(TerminalBytes, OfNamesThatCannotBeOpenedAreShownAsTheirNumbers) {
    const TemporaryFolder folder;
    const FilterResult missing = runPreview(folder, {nastyStem});
    EXPECT_EQ(missing.standardError, "tsplpreview: " + shownStem + ": No such file or directory\n");
    const FilterResult lost =
        runPreview(folder, {"-o", "no/" + nastyStem}, smallLabel(letterBitmap));
    EXPECT_EQ(lost.standardError,
              "tsplpreview: no/" + shownStem + "-1.png: No such file or directory\n");
}

TEST(TerminalBytes, OfAWrongCommandLineAreShownAsTheirNumbers) {
    const TemporaryFolder folder;
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--\x1b[2J"}, {"--dpi", nastyStem}, {"--burn", nastyStem}}) {
        const FilterResult result = runPreview(folder, arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_NE(result.standardError.find("\\x1b[2J"), std::string::npos);
        EXPECT_TRUE(isPlain(result.standardError)) << result.standardError;
    }
}

}  // namespace
