#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tests/preview/preview_run.h"
#include "tests/preview/terminal_run.h"

namespace {

using Names = std::set<std::string>;

// letterRows, two rows to a line.
const std::string letterText = " ▄▄▄▄▄▄▄▄\n ██\n ██▀▀▀\n ▀▀\n";
const std::string letterTitle = "label 1: 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt\n";

// A black label of 800 × 400 dots.
const std::string blackLabel = "SIZE 800 dot,400 dot\nCLS\nBAR 0,0,800,400\nPRINT 1\n";

// Characters of each line that begins with a block.
std::vector<std::size_t> lineLengths(const std::string& text) {
    std::vector<std::size_t> lengths;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("█")) {
            // Each character of UTF-8 has one byte that begins it; a terminal adds a return.
            lengths.push_back(
                static_cast<std::size_t>(std::count_if(line.begin(), line.end(), [](char c) {
                    return c != '\r' && (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
                })));
        }
    }
    return lengths;
}

TEST(TerminalOption, ShowsEachLabelBelowItsTitleAndWritesNoFile) {
    const TemporaryFolder folder;
    const FilterResult result =
        runPreview(folder, {"--terminal"}, smallLabel(letterBitmap) + "PRINT 2\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardError, "");
    EXPECT_EQ(
        result.standardOutput,
        letterTitle + letterText +
            "label 2: 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt, printed 2 times\n" +
            letterText);
    EXPECT_EQ(folder.names(), Names{});
}

TEST(TerminalOption, WritesFilesTooWhenAPrefixIsGiven) {
    const TemporaryFolder folder;
    const FilterResult result =
        runPreview(folder, {"--terminal", "-o", "x"}, smallLabel(letterBitmap));
    EXPECT_EQ(result.standardOutput,
              letterTitle + letterText +
                  "x-1.png: 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt\n");
    EXPECT_EQ(folder.names(), Names{"x-1.png"});
}

TEST(TerminalOption, ShowsLabelsAmongTheirCommands) {
    const TemporaryFolder folder;
    const std::string list =
        runPreview(folder, {"--terminal", "--list"}, smallLabel(letterBitmap)).standardOutput;
    EXPECT_TRUE(list.ends_with("burnt)\n" + letterTitle + letterText + "        56  PRINT 1,1\n"))
        << list;
}

TEST(TerminalOption, NamesTheFilesOfSeveral) {
    const TemporaryFolder folder;
    folder.write("a\x1b", smallLabel(letterBitmap));
    folder.write("b", smallLabel(letterBitmap));
    EXPECT_EQ(runPreview(folder, {"--terminal", "a\x1b", "b"}).standardOutput,
              "a\\x1b: " + letterTitle + letterText + "b: " + letterTitle + letterText);
}

TEST(TerminalOption, FitsTheWindow) {
    const TemporaryFolder folder;
    folder.write("label", blackLabel);
    const auto shown = [&](const Window& window) {
        const TerminalRun run = runOnTerminal(folder, "\"$PREVIEW\" --terminal label", window);
        EXPECT_EQ(run.status, 0);
        return lineLengths(run.shown);
    };
    EXPECT_EQ(shown({100, 40}), std::vector<std::size_t>(25, 100));
    // Two lines are left for the title and the prompt.
    EXPECT_EQ(shown({100, 22}), std::vector<std::size_t>(20, 80));
    EXPECT_EQ(shown({0, 0}), std::vector<std::size_t>(20, 80));
}

TEST(TerminalOption, TakesTheColumnsOfTheEnvironmentIntoAPipe) {
    const TemporaryFolder folder;
    FilterCall call = previewCall(folder, {"--terminal"}, blackLabel);
    call.environment = {{"COLUMNS", "40"}};
    EXPECT_EQ(lineLengths(runFilter(call).standardOutput), std::vector<std::size_t>(10, 40));
    call.environment = {{"COLUMNS", ""}};
    EXPECT_EQ(lineLengths(runFilter(call).standardOutput), std::vector<std::size_t>(20, 80));
}

TEST(TerminalOption, HasStatusOneForALabelThatCannotBeShown) {
    const TemporaryFolder folder;
    EXPECT_EQ(runPreview(folder, {"--terminal"}, "PRINT 1\n").status, 1);
}

}  // namespace
