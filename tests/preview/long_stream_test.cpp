#include <gtest/gtest.h>

#include "tests/preview/preview_run.h"
#include "tests/support/sanitizers.h"

namespace {

#ifndef KESTO_ADDRESS_SANITIZER

// Eight bitmaps to the label, as drawing takes less time than looking at each label's dots.
std::string megabyteOfLabels() {
    const std::string bitmap =
        "BITMAP 0,0,101,1218,0," + std::string(std::size_t{101} * 1218, '\x5a') + "\r\n";
    std::string stream = "SIZE 101.1 mm,152.4 mm\r\nCLS\r\n";
    for (int i = 0; i < 8; ++i) {
        stream += bitmap;
    }
    return stream + "PRINT 1,1\r\n";
}

// The shell counts its limit in KiB.
TEST(LongStream, OfTwoHundredMegabytesIsCheckedInSixtyFourMebibytes) {
    const TemporaryFolder folder;
    const std::string part = megabyteOfLabels();
    ASSERT_GT(part.size() * 204, 200000000U);
    folder.write("part", part);
    const FilterResult result = runFilter(shellCall(
        folder,
        "for i in $(seq 204); do cat part; done | { ulimit -v 65536; \"$PREVIEW\" --check; }"));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardOutput, "standard input: 204 labels, no complaints\n");
    EXPECT_EQ(result.standardError, "");
}

TEST(LongStream, OfManyLabelsIsDrawnInSixtyFourMebibytes) {
    const TemporaryFolder folder;
    folder.write("part", megabyteOfLabels());
    const FilterResult result = runFilter(shellCall(
        folder, "for i in $(seq 30); do cat part; done | { ulimit -v 65536; \"$PREVIEW\"; }"));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardError, "");
    // Besides the part itself.
    EXPECT_EQ(folder.names().size(), 31U);
    EXPECT_EQ(folder.names().count("label-30.png"), 1U);
}

#endif

TEST(LongStream, OfOneEndlessLineIsSkipped) {
    const TemporaryFolder folder;
    const FilterResult result = runFilter(
        shellCall(folder,
                  "{ head -c 20000000 /dev/zero | tr '\\0' ','; printf '\\r\\nSPIN\\r\\n'; } | "
                  "\"$PREVIEW\" --check"));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardOutput,
              "standard input: line 1, byte 0: a line that is longer than any command is skipped\n"
              "standard input: line 2, byte 20000002: unknown command: SPIN\n"
              "standard input: no label: nothing is printed without PRINT; 2 complaints\n");
}

}  // namespace
