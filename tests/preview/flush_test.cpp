// What is known of a label is told when it is printed, however long the stream goes on.
#include <gtest/gtest.h>

#include "tests/preview/preview_run.h"
#include "tests/preview/running_preview.h"

namespace {

// What is said of a label, up to these words, before standard input ends.
std::string saidOfALabel(const std::vector<std::string>& arguments, const std::string& lastWords) {
    const TemporaryFolder folder;
    RunningPreview preview(folder, arguments);
    preview.write(smallLabel(letterBitmap));
    const std::string said = preview.output(lastWords);
    preview.endInput();
    EXPECT_EQ(preview.status(), 0);
    return said;
}

TEST(StandardOutput, IsSentOnWithEveryLabel) {
    EXPECT_EQ(saidOfALabel({}, "\n"),
              "label-1.png: 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt\n");
    EXPECT_TRUE(saidOfALabel({"--list"}, "PRINT 1,1\n").ends_with("56  PRINT 1,1\n"));
    EXPECT_NE(saidOfALabel({"--json"}, "PRINT").find("\"type\":\"label\""), std::string::npos);
}

}  // namespace
