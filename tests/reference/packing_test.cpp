// Checks blank-row counts, packing and dumps against values worked out by hand.
#include <gtest/gtest.h>

#include "tests/reference/blank_rows.h"
#include "tests/reference/bmp.h"
#include "tests/reference/grey_to_mono.h"

namespace reference {
namespace {

TEST(ReferenceBlankRows, TheFrontCountDoesNotSeeTheFirstRow) {
    const BlankArea area{2, 3, 0, 2};
    EXPECT_EQ(blankRowsFromFront({1, 1, 0, 0, 0, 0}, area), 3U);
    EXPECT_EQ(blankRowsFromFront({0, 0, 0, 1, 0, 0}, area), 0U);
    EXPECT_EQ(blankRowsFromFront({0, 0, 0, 0, 0, 1}, area), 1U);
}

TEST(ReferenceBlankRows, TheBackCountIsTheNumberOfRowsUpToTheLastWithContent) {
    const BlankArea area{2, 3, 0, 2};
    EXPECT_EQ(blankRowsFromBack({1, 1, 0, 0, 0, 0}, area), 1U);
    EXPECT_EQ(blankRowsFromBack({0, 0, 0, 0, 0, 1}, area), 3U);
    EXPECT_EQ(blankRowsFromBack({0, 0, 0, 0, 0, 0}, area), 0U);
}

TEST(ReferenceBlankRows, ColumnsToSkipAreIgnoredUnlessTheyExceedTheWidth) {
    const Bytes row = {0, 0, 0, 0, 0, 1, 1, 1};
    EXPECT_EQ(blankRowsFromBack(row, {8, 1, 3, 8}), 0U);
    EXPECT_EQ(blankRowsFromBack(row, {8, 1, 2, 8}), 1U);
    EXPECT_EQ(blankRowsFromBack(row, {8, 1, 8, 8}), 0U);
    EXPECT_EQ(blankRowsFromBack(row, {8, 1, 9, 8}), 1U);
}

TEST(ReferenceGreyToMono, RowsArePackedBackToBackWithClearLowBits) {
    const Bytes grey = {1, 0, 0, 0, 0, 0, 0, 2, 3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 9};
    EXPECT_EQ(greyToMono(grey, 10, 2, 0), (Bytes{0x81, 0x80, 0x00, 0x40}));
    EXPECT_EQ(greyToMono(grey, 10, 2, 3), (Bytes{0x80, 0x00}));
    EXPECT_EQ(greyToMono(grey, 10, 2, 10).size(), 4U);
    EXPECT_EQ(greyToMonoLog(10, 2, 3), "DEBUG:GrayToMono, bpl(10), h(2), skipPixels(3), wb(7)");
}

TEST(ReferenceBmp, AGreyDumpHoldsHeaderRampAndPixelsInMemoryOrder) {
    const Bytes file = greyDump({1, 2, 3, 4, 5, 6, 7, 8}, 4, 2);
    ASSERT_EQ(file.size(), 1086U);
    const Bytes header = {'B', 'M', 0x3E, 4, 0, 0, 0, 0, 0, 0, 0x36, 4, 0, 0, 40, 0, 0, 0,
                          4,   0,   0,    0, 2, 0, 0, 0, 1, 0, 8,    0, 0, 0, 0,  0, 8, 0,
                          0,   0,   0,    0, 0, 0, 0, 0, 0, 0, 0,    1, 0, 0, 0,  1, 0, 0};
    EXPECT_EQ(Bytes(file.begin(), file.begin() + 54), header);
    const auto entry200 = file.begin() + 54 + 800;
    EXPECT_EQ(Bytes(entry200, entry200 + 4), (Bytes{200, 200, 200, 0}));
    EXPECT_EQ(Bytes(file.begin() + 1078, file.end()), (Bytes{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(ReferenceBmp, AGreyDumpOfAnOddWidthDeclaresMorePixelsThanItHolds) {
    const Bytes file = greyDump(filledImage(5, 2, 9).bytes, 5, 2);
    EXPECT_EQ(file.size(), 1078U + 10);
    EXPECT_EQ(file[34], 16);
}

TEST(ReferenceBmp, AMonoDumpPadsItsLastByteWithOnesAndItsRowWithZeros) {
    const Bytes file = monoDump(Bytes(10, 0), 10, 10, 1);
    ASSERT_EQ(file.size(), 62U + 4);
    EXPECT_EQ(file[10], 62);
    EXPECT_EQ(file[28], 1);
    EXPECT_EQ(file[46], 0);
    EXPECT_EQ(Bytes(file.begin() + 54, file.end()),
              (Bytes{0, 0, 0, 0, 255, 255, 255, 0, 0xFF, 0xFF, 0, 0}));
}

TEST(ReferenceBmp, AMonoDumpStartsWithTheLastRow) {
    Bytes rows(16, 1);
    rows[0] = 0;
    const Bytes file = monoDump(rows, 8, 8, 2);
    EXPECT_EQ(Bytes(file.begin() + 62, file.end()), (Bytes{0, 0, 0, 0, 0x80, 0, 0, 0}));
}

TEST(ReferenceBmp, ADumpOfAnotherBitCountHasNoPalette) {
    EXPECT_EQ(monoDump(Bytes(8, 0), 8, 8, 1, 4).size(), 54U + 4);
}

}  // namespace
}  // namespace reference
