#include "filter/page_geometry.h"

#include <gtest/gtest.h>

namespace {

cups_page_header2_t page(unsigned width, unsigned bytesPerLine, unsigned height) {
    cups_page_header2_t header = {};
    header.cupsWidth = width;
    header.cupsBytesPerLine = bytesPerLine;
    header.cupsHeight = height;
    return header;
}

TEST(PageBytes, AreBytesPerLineTimesLines) {
    EXPECT_EQ(pageBytes(page(10, 12, 7)), 84U);
    EXPECT_EQ(pageBytes(page(1, 65535, 65537)), 0xFFFFFFFFU);
}

TEST(PrintableGeometry, HasAByteForEveryDotOfARow) {
    EXPECT_TRUE(hasPrintableGeometry(page(800, 800, 1200)));
    EXPECT_TRUE(hasPrintableGeometry(page(800, 804, 1200)));
    EXPECT_FALSE(hasPrintableGeometry(page(800, 799, 1200)));
    EXPECT_FALSE(hasPrintableGeometry(page(800, 100, 1200)));
}

TEST(PrintableGeometry, HasNoMoreThan32BitsOfBytes) {
    EXPECT_TRUE(hasPrintableGeometry(page(1, 65535, 65537)));
    EXPECT_FALSE(hasPrintableGeometry(page(1, 65536, 65536)));
    EXPECT_FALSE(hasPrintableGeometry(page(1, 0xFFFFFFFF, 0xFFFFFFFF)));
}

}  // namespace
