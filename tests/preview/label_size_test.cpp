#include <gtest/gtest.h>

#include "tests/preview/dot_picture.h"
#include "tests/preview/preview_run.h"
#include "tests/support/sanitizers.h"

namespace {

TEST(LabelSize, ALabelOfTenThousandRowsIsDrawnDotForDot) {
    std::string bitmap;
    DotPicture expected{160, 10000, {}};
    for (unsigned y = 0; y < 10000; ++y) {
        for (unsigned byte = 0; byte < 20; ++byte) {
            const unsigned bits = (y * 7 + byte * byte * 31) % 256;
            bitmap += static_cast<char>(bits);
            for (unsigned bit = 0; bit < 8; ++bit) {
                expected.dots.push_back((bits & (0x80U >> bit)) == 0 ? 1 : 0);
            }
        }
    }
    const TemporaryFolder folder;
    const FilterResult result = runPreview(
        folder, {},
        "SIZE 20.0 mm,1251.2 mm\r\nCLS\r\nBITMAP 0,0,20,10000,0," + bitmap + "\r\nPRINT 1,1\r\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardError, "");
    EXPECT_EQ(differenceOf(expected, readPng(folder.path("label-1.png")).picture), "");
}

TEST(LabelSize, ALabelOfMoreThanAMillionRowsIsDrawn) {
    const TemporaryFolder folder;
    const FilterResult result = runPreview(
        folder, {}, "SIZE 8 dot,1000001 dot\r\nCLS\r\nBAR 0,1000000,8,1\r\nPRINT 1,1\r\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardError, "");
    const DotPicture picture = readPng(folder.path("label-1.png")).picture;
    EXPECT_EQ(picture.width, 8U);
    ASSERT_EQ(picture.height, 1000001U);
    EXPECT_EQ(picture.dots[8000000 - 1], 0);
    EXPECT_EQ(picture.dots[8000000], 1);
}

// 5000 mm are up to 118110 dots: the label would take 1.7 gigabytes.
TEST(LabelSize, AHugeLabelIsRefusedAndTheNextOneIsDrawn) {
    const TemporaryFolder folder;
    FilterCall call =
        previewCall(folder, {},
                    "SIZE 5000 mm,5000 mm\r\nCLS\r\nBAR 0,0,9,9\r\nBITMAP 0,0,2,8,0," +
                        letterBitmap + "\r\nPRINT 1\r\n" + smallLabel(letterBitmap));
#ifndef KESTO_ADDRESS_SANITIZER
    call.addressSpace = std::size_t{64} << 20;
#endif
    const FilterResult result = runFilter(call);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardOutput,
              "label-2.png: 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt\n");
    EXPECT_EQ(result.standardError,
              "standard input: line 1, byte 0: a label of this size is too large to draw: "
              "SIZE 5000 mm,5000 mm\n"
              "standard input: line 5, byte 75: the label has no size that can be drawn\n"
              "standard input: 2 labels, 2 complaints\n");
    EXPECT_EQ(folder.names(), std::set<std::string>{"label-2.png"});
    EXPECT_EQ(differenceOf(drawnPicture(letterRows), readPng(folder.path("label-2.png")).picture),
              "");
}

TEST(LabelSize, SizesBeyondAllNumbersAreRefused) {
    const std::string digits(400, '9');
    for (const std::string& size :
         {digits + " mm,1 mm", "1 mm," + digits, std::string("1e999,1"), std::string("inf,nan"),
          std::string("-1 mm,5 mm"), std::string("0 mm,0 mm"), std::string("0x10,0x10")}) {
        const FilterResult result = runCheck("SIZE " + size + "\r\nCLS\r\nPRINT 1\r\n");
        EXPECT_EQ(result.status, 1) << size;
        EXPECT_NE(result.standardOutput, "") << size;
        EXPECT_EQ(result.standardError, "") << size;
    }
}

TEST(LabelSize, BitmapsOfAbsurdSizesAndPlacesAreComplainedOf) {
    for (const std::string head :
         {"0,0,2147483647,2147483647,0,", "2147483647,2147483647,1,1,0,",
          "-2147483648,-2147483648,2147483647,2147483647,2,", "0,0,99999999999,1,0,"}) {
        const FilterResult result =
            runCheck("SIZE 2 mm,1 mm\r\nBITMAP " + head + "\r\nPRINT 1\r\n");
        EXPECT_EQ(result.status, 1) << head;
        EXPECT_NE(result.standardOutput, "") << head;
        EXPECT_EQ(result.standardError, "") << head;
    }
}

#ifndef KESTO_ADDRESS_SANITIZER

// 32768 × 32768 dots are the largest label, 128 MiB.
TEST(LabelSize, ALabelThatFindsNoMemoryEndsWithAMessage) {
    const TemporaryFolder folder;
    FilterCall call =
        previewCall(folder, {}, "SIZE 32760 dot,32760 dot\r\nBAR 0,32759,1,1\r\nPRINT 1\r\n");
    call.addressSpace = std::size_t{64} << 20;
    const FilterResult result = runFilter(call);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardError, "tsplpreview: not enough memory\n");
    EXPECT_EQ(folder.names(), std::set<std::string>{});
}

#endif

}  // namespace
