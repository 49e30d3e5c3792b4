#include <gtest/gtest.h>

#include <sstream>

#include "tests/preview/preview_run.h"

namespace {

using Names = std::set<std::string>;

std::string labels(int count) {
    std::string stream;
    for (int i = 0; i < count; ++i) {
        stream += smallLabel(letterBitmap);
    }
    return stream;
}

TEST(LabelOption, DrawsOneLabelUnderItsNumberInTheStream) {
    const TemporaryFolder folder;
    const FilterResult result = runPreview(folder, {"--label", "2"}, labels(3));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardOutput,
              "label-2.png: 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt\n");
    EXPECT_EQ(folder.names(), Names{"label-2.png"});
}

TEST(LabelOption, DrawsARangeAsFarAsItGoes) {
    const TemporaryFolder folder;
    const FilterResult result = runPreview(folder, {"--label", "3-7"}, labels(5));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardError, "");
    EXPECT_EQ(folder.names(), (Names{"label-3.png", "label-4.png", "label-5.png"}));
}

TEST(LabelOption, ListsEveryCommandAndTheChosenLabelsOnly) {
    const TemporaryFolder folder;
    const FilterResult result = runPreview(folder, {"--json", "--label", "2-3"}, labels(4));
    EXPECT_EQ(result.status, 0);
    std::istringstream lines(result.standardOutput);
    std::string numbers;
    int prints = 0;
    for (std::string line; std::getline(lines, line);) {
        prints += line.find("\"command\":\"PRINT\"") != std::string::npos ? 1 : 0;
        const std::string label = "{\"type\":\"label\",\"number\":";
        if (line.starts_with(label)) {
            numbers += line[label.size()];
        }
    }
    EXPECT_EQ(numbers, "23");
    EXPECT_EQ(prints, 4);
}

TEST(LabelOption, SaysWhenThereIsNoSuchLabel) {
    const TemporaryFolder folder;
    folder.write("a\x1b", labels(2));
    const FilterResult result = runPreview(folder, {"--label", "3-7", "a\x1b"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardError,
              "tsplpreview: a\\x1b: there is no label 3-7, the last one is 2\n");
    EXPECT_EQ(folder.names(), Names{"a\x1b"});
}

TEST(LabelOption, OfAnotherFormIsAWrongCommandLine) {
    const TemporaryFolder folder;
    for (const char* range : {"0", "7-3", "x", "", "1-", "1,2"}) {
        const FilterResult result =
            runPreview(folder, {std::string("--label=") + range}, labels(1));
        EXPECT_EQ(result.status, 2) << range;
        EXPECT_EQ(folder.names(), Names{});
    }
}

}  // namespace
