// Which labels of a job are printed.
#include "intake/picture/label_selection.h"

#include <gtest/gtest.h>

#include <string>

namespace intake::picture {
namespace {

std::string chosen(std::initializer_list<Option> options) {
    OptionList list;
    for (const Option& option : options) {
        list.set(option.name, option.value);
    }
    const LabelSelection selection(list);
    std::string labels;
    for (unsigned label = 1; label <= 9; ++label) {
        labels += selection.has(label) ? std::to_string(label) : "";
    }
    return labels;
}

std::string ofRanges(const std::string& ranges) {
    return chosen({{"page-ranges", ranges}});
}

TEST(LabelSelection, IsAllWithoutAWish) {
    EXPECT_EQ(chosen({}), "123456789");
}

TEST(LabelSelection, IsOfThePagesThatAreNamed) {
    EXPECT_EQ(ofRanges("3"), "3");
    EXPECT_EQ(ofRanges("1,3-5,8-"), "134589");
    EXPECT_EQ(ofRanges("-2"), "12");
    EXPECT_EQ(ofRanges("5-3"), "");
    EXPECT_EQ(ofRanges("20"), "");
}

TEST(LabelSelection, TakesRangesThatMeanNothingForNone) {
    for (const char* ranges : {"", ",", "x", "1x", "a-b", "99999999999", "- 2"}) {
        EXPECT_EQ(ofRanges(ranges), "123456789") << ranges;
    }
    EXPECT_EQ(ofRanges("x,2"), "2");
}

TEST(LabelSelection, LeavesOutOddOrEvenOnes) {
    EXPECT_EQ(chosen({{"page-set", "odd"}}), "13579");
    EXPECT_EQ(chosen({{"page-set", "EVEN"}}), "2468");
    EXPECT_EQ(chosen({{"page-set", "all"}}), "123456789");
    EXPECT_EQ(chosen({{"page-set", "even"}, {"page-ranges", "3-6"}}), "46");
}

TEST(LabelSelection, CollatesWhenTheJobAsksForIt) {
    const auto collated = [](const char* name, const char* value) {
        OptionList options;
        options.set(name, value);
        return isCollated(options);
    };
    EXPECT_FALSE(isCollated({}));
    EXPECT_TRUE(collated("Collate", "True"));
    EXPECT_FALSE(collated("Collate", "False"));
    EXPECT_TRUE(collated("multiple-document-handling", "separate-documents-collated-copies"));
    EXPECT_FALSE(collated("multiple-document-handling", "separate-documents-uncollated-copies"));
    EXPECT_FALSE(collated("multiple-document-handling", ""));
}

}  // namespace
}  // namespace intake::picture
