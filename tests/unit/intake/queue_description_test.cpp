// What a queue's description says of its labels.
#include "intake/queue_description.h"

#include <gtest/gtest.h>

#include "test_queue.h"

namespace intake {
namespace {

QueueDescription read(const std::string& ppd, const OptionList& options = {}) {
    return readDescription(ppd, options, someMedia);
}

TEST(QueueDescription, HasEverySizeOnce) {
    const auto queue = read(sLabelPpd);
    ASSERT_EQ(queue.sizes.size(), 5U);
    EXPECT_EQ(queue.sizes[0].name, "4x6in");
    EXPECT_EQ(queue.sizes[4].name, "50x30mm");
    EXPECT_EQ(queue.defaultSize, "4x6in");
    EXPECT_DOUBLE_EQ(queue.sizes[0].nominal.width, 101.6);
    EXPECT_DOUBLE_EQ(queue.sizes[3].nominal.height, 40);
}

TEST(QueueDescription, KnowsThePageOfTheDotsOfALabelInItsOwnPoints) {
    // 808 x 1218 dots.
    const auto queue = read(sLabelPpd);
    EXPECT_NEAR(queue.sizes[0].offered.page.width, 101.1, 0.0005);
    EXPECT_NEAR(queue.sizes[0].offered.page.height, 152.4, 0.0005);
}

TEST(QueueDescription, TakesTheSizeOfAPlainNameFromItsPoints) {
    const auto queue = read(
        "*PaperDimension A4/A4: \"595.25 841.6875\"\n*PaperDimension Tattoo_A6/x: \"297.625 "
        "419.5625\"\n*DefaultResolution: 300dpi\n");
    ASSERT_EQ(queue.sizes.size(), 2U);
    EXPECT_NEAR(queue.sizes[0].nominal.width, 209.99, 0.001);
    EXPECT_NEAR(queue.sizes[0].nominal.height, 296.93, 0.001);
    // But people call it by what it is known as.
    EXPECT_DOUBLE_EQ(queue.sizes[0].offered.label.height, 297);
    EXPECT_NEAR(queue.sizes[1].nominal.width, 105, 0.01);
}

TEST(QueueDescription, HasTheDefaultResolutionOrTheChosenOne) {
    EXPECT_EQ(read(sLabelPpd).dpi, 203);
    const std::string two =
        sLabelPpd + "*Resolution 300dpi/300: \"x\"\n*Resolution 203dpi/x: \"\"\n";
    EXPECT_EQ(read(two).dpi, 203);
    EXPECT_EQ(read(two, optionsOf({{"Resolution", "300dpi"}})).dpi, 300);
    EXPECT_EQ(read(two, optionsOf({{"Resolution", "600dpi"}})).dpi, 203);
    EXPECT_EQ(read(two, optionsOf({{"Resolution", ""}})).dpi, 203);
    EXPECT_EQ(read("*DefaultResolution: 203x203dpi\n").dpi, 203);
    EXPECT_EQ(read("").dpi, 0);
    EXPECT_EQ(read("*DefaultResolution: -5dpi\n").dpi, 0);
}

TEST(QueueDescription, HasTheLimitsOfCustomSizes) {
    const auto limits = read(sLabelPpd + sCustomLines).limits;
    EXPECT_NEAR(limits.least.width, 7.0556, 0.0001);
    EXPECT_NEAR(limits.most.width, 110.0667, 0.0001);
    EXPECT_NEAR(limits.most.height, 2540, 0.0001);
}

TEST(QueueDescription, HasTheLargestMediaWithoutLimitsOfCustomSizes) {
    const auto limits =
        read(sLabelPpd + "*MaxMediaWidth: \"300\"\n*MaxMediaHeight: \"720\"\n").limits;
    EXPECT_NEAR(limits.most.width, 105.8333, 0.0001);
    EXPECT_NEAR(limits.most.height, 254, 0.0001);
    EXPECT_DOUBLE_EQ(limits.least.width, 0);
}

TEST(QueueDescription, HasTheModelsReachElse) {
    const auto limits = read(sLabelPpd).limits;
    EXPECT_NEAR(limits.most.width, 4.65 * 25.4, 1e-9);
    EXPECT_NEAR(limits.most.height, 2540, 1e-9);
    // A queue that offers more takes more.
    const auto wide = read(sLabelPpd + "*PaperDimension 150x50mm/x: \"425.197 141.732\"\n");
    EXPECT_DOUBLE_EQ(wide.limits.most.width, 150);
}

TEST(QueueDescription, OfAnUnknownModelReachesAsFarAsItsSizes) {
    const auto limits =
        read(
            "*PCFileName: \"OTHER.PPD\"\n*PaperDimension 60x40mm/x: \"170.0787 113.3858\"\n"
            "*PaperDimension 40x80mm/x: \"113.3858 226.7717\"\n")
            .limits;
    EXPECT_DOUBLE_EQ(limits.most.width, 60);
    EXPECT_DOUBLE_EQ(limits.most.height, 80);
}

TEST(QueueDescription, OfNonsenseHasNothing) {
    const auto queue = read("*PaperDimension: \n*ParamCustomPageSize Width: x\nnonsense");
    EXPECT_TRUE(queue.sizes.empty());
    EXPECT_EQ(queue.defaultSize, "");
}

}  // namespace
}  // namespace intake
