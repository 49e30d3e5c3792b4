// The share of the dots of a bitmap that burn.
#include <gtest/gtest.h>

#include "tspl/sink.h"

namespace tspl {
namespace {

TEST(BitmapSummary, KnowsTheShareOfDotsThatBurn) {
    EXPECT_DOUBLE_EQ((BitmapSummary{8, 4, 4, 4, 8}.burntShare()), 0.25);
    EXPECT_DOUBLE_EQ((BitmapSummary{8, 4, 4, 4, 0}.burntShare()), 0);
    EXPECT_DOUBLE_EQ((BitmapSummary{8, 4, 4, 4, 32}.burntShare()), 1);
}

TEST(BitmapSummary, KnowsTheShareAmongTheBytesReceived) {
    EXPECT_DOUBLE_EQ((BitmapSummary{8, 4, 4, 1, 4}.burntShare()), 0.5);
}

TEST(BitmapSummary, HasAShareOfZeroWithoutDots) {
    EXPECT_DOUBLE_EQ((BitmapSummary{8, 4, 4, 0, 0}.burntShare()), 0);
    EXPECT_DOUBLE_EQ((BitmapSummary{}.burntShare()), 0);
}

}  // namespace
}  // namespace tspl
