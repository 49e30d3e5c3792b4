#include "intake/sheet/label_fit.h"

#include <gtest/gtest.h>

namespace intake::sheet {
namespace {

using sizes::PointSize;

const PointSize sLabel{288, 432};
const PointSize sPage{612, 792};

LabelFit fit(double width, double height) {
    return fitOf({width, height}, sLabel, sPage);
}

TEST(LabelFit, TakesShapesWithinEightPercent) {
    EXPECT_TRUE(fit(288, 432).isLabel);
    EXPECT_TRUE(fit(288 * 1.079, 432).isLabel);
    EXPECT_FALSE(fit(288 * 1.081, 432).isLabel);
    EXPECT_TRUE(fit(288 * 0.921, 432).isLabel);
    EXPECT_FALSE(fit(288 * 0.919, 432).isLabel);
}

TEST(LabelFit, TakesEitherOrientation) {
    EXPECT_FALSE(fit(288, 432).isAcross);
    EXPECT_TRUE(fit(432, 288).isLabel);
    EXPECT_TRUE(fit(432, 288).isAcross);
    EXPECT_FALSE(fit(432, 288 * 1.09).isLabel);
}

TEST(LabelFit, TakesSizesWithinAQuarter) {
    EXPECT_TRUE(fit(288 * 0.751, 432 * 0.751).isLabel);
    EXPECT_FALSE(fit(288 * 0.749, 432 * 0.749).isLabel);
    EXPECT_TRUE(fit(288 * 1.249, 432 * 1.249).isOwnSize);
    EXPECT_FALSE(fit(288 * 1.251, 432 * 1.251).isOwnSize);
}

TEST(LabelFit, TakesWhatFillsHalfOfThePageWithItsMargins) {
    // Of 612 x 792 points, with 76.5 and 99 points of margins: half are 242352.
    const LabelFit half = fit(560, 373.4);
    EXPECT_TRUE(half.isLabel);
    EXPECT_FALSE(half.isOwnSize);
    EXPECT_TRUE(fitOf({560, 373.4}, {200, 300}, sPage).isLabel);
    EXPECT_FALSE(fitOf({420, 280}, {200, 300}, sPage).isLabel) << "496.5 by 379 points";
    EXPECT_TRUE(fitOf({500, 333}, {200, 300}, sPage).isLabel) << "576.5 by 432 points";
}

TEST(LabelFit, KnowsWhatTheLabelTakesAlmostAtItsSize) {
    EXPECT_TRUE(fit(288 * 1.04, 432 * 1.04).isWithin);
    EXPECT_FALSE(fit(288 * 1.06, 432 * 1.06).isWithin);
}

TEST(LabelFit, MeasuresShapesAlikeInBothDirections) {
    EXPECT_DOUBLE_EQ(fit(288, 432).shapeError, 0);
    EXPECT_NEAR(fit(288 * 1.05, 432).shapeError, fit(288, 432 * 1.05).shapeError, 1e-12);
}

TEST(LabelFit, KnowsPagesOfTheLabelsSizeWithinFivePoints) {
    EXPECT_TRUE(isLabelPage({293, 427}, sLabel));
    EXPECT_TRUE(isLabelPage({432, 288}, sLabel));
    EXPECT_FALSE(isLabelPage({294, 432}, sLabel));
    EXPECT_FALSE(isLabelPage({576, 864}, sLabel));
}

}  // namespace
}  // namespace intake::sheet
