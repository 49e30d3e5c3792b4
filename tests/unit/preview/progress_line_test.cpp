// The line that tells how far a stream has been read.
#include "preview/progress_line.h"

#include <gtest/gtest.h>

#include <sstream>
#include <thread>

namespace preview {
namespace {

// Long enough for the line to be shown at the next call.
void waitForTheLine() {
    std::this_thread::sleep_for(std::chrono::milliseconds(550));
}

TEST(ProgressLine, NamesTheLengthOfAFile) {
    std::ostringstream out;
    ProgressLine line(out, true, 1'100'000);
    waitForTheLine();
    line.show(500'000);
    EXPECT_EQ(out.str(), "\rtsplpreview: 0.5 of 1.1 MB, 0 labels\x1b[K");
}

TEST(ProgressLine, NamesNoLengthThatIsNotKnownAndMakesWay) {
    std::ostringstream out;
    ProgressLine line(out, true, 0);
    waitForTheLine();
    line.show(2'000'000);
    line.hide();
    EXPECT_EQ(out.str(), "\rtsplpreview: 2.0 MB, 0 labels\x1b[K\r\x1b[K");
}

TEST(ProgressLine, IsNotShownForShortStreamsOrWhereItIsNotWanted) {
    std::ostringstream out;
    ProgressLine early(out, true, 100);
    early.show(50);
    ProgressLine unwanted(out, false, 100);
    waitForTheLine();
    unwanted.show(50);
    EXPECT_EQ(out.str(), "");
}

}  // namespace
}  // namespace preview
