// How much a decoder may do of the scaling.
#include "intake/picture/label_drawing.h"

#include <gtest/gtest.h>

namespace intake::picture {
namespace {

unsigned reduction(unsigned width, unsigned height, const LabelDots& label = {808, 1218, 203}) {
    PictureOutline outline;
    outline.width = width;
    outline.height = height;
    return reductionFor(outline, placePicture(outline.seen(), {}, label));
}

TEST(ReductionFor, LeavesOneAndAHalfTimesTheDots) {
    EXPECT_EQ(reduction(808, 1218), 1U);
    EXPECT_EQ(reduction(1000, 1500, {400, 600, 203}), 1U) << "1.25 times after halving";
    EXPECT_EQ(reduction(2430, 3660), 1U) << "a third is a whole part";
    EXPECT_EQ(reduction(2700, 4068), 2U) << "1.67 times";
    EXPECT_EQ(reduction(90, 120, {16, 24, 203}), 2U);
}

TEST(ReductionFor, LeavesWholeSamplesForEachDot) {
    EXPECT_EQ(reduction(1616, 2436), 1U) << "two samples a dot";
    EXPECT_EQ(reduction(3232, 4872), 2U) << "four";
    EXPECT_EQ(reduction(4040, 6090), 1U) << "five";
    EXPECT_EQ(reduction(4848, 7308), 2U) << "six";
    EXPECT_EQ(reduction(6464, 9744), 4U) << "eight";
}

TEST(ReductionFor, LeavesAtLeastTheDotsOfALargePicture) {
    // 50 million samples for 1200 x 1800 dots: 4.81 for each dot.
    EXPECT_EQ(reduction(5773, 8660, {1200, 1800, 300}), 4U);
    EXPECT_EQ(reduction(65000, 65000), 8U);
}

}  // namespace
}  // namespace intake::picture
