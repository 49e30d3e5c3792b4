// Numbers of labels as they are typed.
#include "preview/label_range.h"

#include <gtest/gtest.h>

namespace preview {
namespace {

TEST(LabelRange, IsOneNumberOrTwo) {
    for (const auto& [text, first, last] :
         {std::tuple("5", 5ULL, 5ULL), std::tuple("3-7", 3ULL, 7ULL), std::tuple("1-1", 1ULL, 1ULL),
          std::tuple("007", 7ULL, 7ULL),
          std::tuple("1-18446744073709551615", 1ULL, 18446744073709551615ULL)}) {
        const auto range = parseLabelRange(text);
        ASSERT_TRUE(range) << text;
        EXPECT_EQ(range->first, first) << text;
        EXPECT_EQ(range->last, last) << text;
    }
}

TEST(LabelRange, IsNothingElse) {
    for (const char* text : {"", "0", "0-3", "7-3", "-", "3-", "-3", "3-7-9", "+3", " 3", "3 ",
                             "3,4", "three", "3.0", "0x3", "18446744073709551616"}) {
        EXPECT_FALSE(parseLabelRange(text)) << text;
    }
}

TEST(LabelRange, ContainsBothEnds) {
    const LabelRange range = {3, 5};
    EXPECT_FALSE(range.contains(2));
    EXPECT_TRUE(range.contains(3));
    EXPECT_TRUE(range.contains(4));
    EXPECT_TRUE(range.contains(5));
    EXPECT_FALSE(range.contains(6));
}

TEST(LabelRange, IsDescribedAsItIsTyped) {
    EXPECT_EQ(describe(LabelRange{5, 5}), "label 5");
    EXPECT_EQ(describe(LabelRange{3, 7}), "label 3-7");
}

}  // namespace
}  // namespace preview
