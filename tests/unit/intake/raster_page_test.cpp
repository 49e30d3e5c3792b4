// What is done to pages that are raster already.
#include "intake/raster_page.h"

#include <gtest/gtest.h>

namespace intake {
namespace {

RasterPage page(unsigned width, unsigned space) {
    return {width, 100, width, 8, 8, 0, space, 203, 203};
}

void expectRefusal(const RasterPage& page, const char* reason) {
    EXPECT_EQ(treatmentOf(page, 203).refusal, reason);
}

TEST(RasterPage, OfBlackIsTakenAsItIs) {
    const auto treatment = treatmentOf(page(808, 3), 203);
    EXPECT_EQ(treatment.refusal, "");
    EXPECT_EQ(treatment.width, 808U);
    EXPECT_FALSE(treatment.isInverted);
}

TEST(RasterPage, OfWhiteOrStandardGreyIsInverted) {
    EXPECT_TRUE(treatmentOf(page(808, 0), 203).isInverted);
    EXPECT_TRUE(treatmentOf(page(808, 18), 203).isInverted);
}

TEST(RasterPage, BecomesAWholeNumberOfBytesWide) {
    // A page of 799 dots is one of a label of 100 mm, which has 800 within its tolerance.
    EXPECT_EQ(treatmentOf(page(799, 3), 203).width, 800U);
    EXPECT_EQ(treatmentOf(page(812, 3), 203).width, 808U);
    EXPECT_EQ(treatmentOf(page(798, 3), 203).width, 792U);
    EXPECT_EQ(treatmentOf(page(1, 3), 203).width, 8U);
}

TEST(RasterPage, OfAnotherKindIsRefusedWithTheReason) {
    expectRefusal(page(808, 1), "its pages are not grey (colour space 1)");
    expectRefusal({808, 100, 1616, 16, 16, 0, 3, 203, 203},
                  "its pages have 16 bits per dot, and not 8");
    expectRefusal({808, 100, 808, 8, 8, 1, 3, 203, 203},
                  "its pages have 8 bits per dot, and not 8");
    expectRefusal({808, 100, 808, 8, 8, 0, 3, 300, 300},
                  "its pages have 300 dpi, and the printer 203");
    expectRefusal({808, 100, 808, 8, 8, 0, 3, 203, 101},
                  "its pages have 203 x 101 dpi, and the printer 203");
    expectRefusal({808, 100, 807, 8, 8, 0, 3, 203, 203},
                  "its pages have 808 x 100 dots in 807 bytes per line");
    expectRefusal({808, 0, 808, 8, 8, 0, 3, 203, 203},
                  "its pages have 808 x 0 dots in 808 bytes per line");
}

}  // namespace
}  // namespace intake
