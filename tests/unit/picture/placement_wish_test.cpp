// What a job's options say of the place of its pictures.
#include "intake/picture/placement_wish.h"

#include <gtest/gtest.h>

namespace intake::picture {
namespace {

PlacementWish wishOf(std::initializer_list<Option> options) {
    OptionList list;
    for (const Option& option : options) {
        list.set(option.name, option.value);
    }
    return placementWish(list);
}

Sizing sizingOf(std::initializer_list<Option> options) {
    return wishOf(options).sizing;
}

TEST(PlacementWish, IsToFitWithoutOptions) {
    const PlacementWish wish = wishOf({});
    EXPECT_EQ(wish.sizing, Sizing::Fit);
    EXPECT_FALSE(wish.turn.has_value());
    EXPECT_FALSE(wish.isMirrored);
    EXPECT_EQ(wish.across, 0);
    EXPECT_EQ(wish.down, 0);
}

TEST(PlacementWish, HasTheFivePrintScalings) {
    EXPECT_EQ(sizingOf({{"print-scaling", "auto"}}), Sizing::Auto);
    EXPECT_EQ(sizingOf({{"print-scaling", "auto-fit"}}), Sizing::AutoFit);
    EXPECT_EQ(sizingOf({{"print-scaling", "fill"}}), Sizing::Fill);
    EXPECT_EQ(sizingOf({{"print-scaling", "Fit"}}), Sizing::Fit);
    EXPECT_EQ(sizingOf({{"print-scaling", "none"}}), Sizing::Cropped);
    EXPECT_EQ(sizingOf({{"print-scaling", "large"}}), Sizing::Fit);
}

TEST(PlacementWish, HeedsPrintScalingBeforeAnythingOlder) {
    EXPECT_EQ(sizingOf({{"print-scaling", "fill"}, {"scaling", "50"}, {"fitplot", "true"}}),
              Sizing::Fill);
    EXPECT_EQ(sizingOf({{"print-scaling", "none"}, {"ppi", "100"}}), Sizing::Cropped);
    EXPECT_EQ(sizingOf({{"print-scaling", "large"}, {"fill", "true"}}), Sizing::Fill);
}

TEST(PlacementWish, HasTheOlderOptions) {
    EXPECT_EQ(sizingOf({{"fit-to-page", "true"}}), Sizing::Fit);
    EXPECT_EQ(sizingOf({{"fitplot", "yes"}}), Sizing::Fit);
    EXPECT_EQ(sizingOf({{"fit-to-page", "false"}}), Sizing::Natural);
    EXPECT_EQ(sizingOf({{"fill", "true"}}), Sizing::Fill);
    EXPECT_EQ(sizingOf({{"fill", "false"}}), Sizing::Fit);
    EXPECT_EQ(sizingOf({{"crop-to-fit", "true"}}), Sizing::Cropped);
    EXPECT_EQ(sizingOf({{"scaling", "50"}}), Sizing::Share);
    EXPECT_EQ(wishOf({{"scaling", "50"}}).percent, 50);
    EXPECT_EQ(sizingOf({{"natural-scaling", "75"}}), Sizing::Natural);
    EXPECT_EQ(wishOf({{"natural-scaling", "75"}}).percent, 75);
    EXPECT_EQ(sizingOf({{"ppi", "203"}}), Sizing::Natural);
    EXPECT_EQ(wishOf({{"ppi", "203"}}).percent, 100);
}

TEST(PlacementWish, ReadsResolutionsOfOneOrTwoNumbers) {
    const PlacementWish one = wishOf({{"ppi", "203"}});
    EXPECT_EQ(one.ppiAcross, 203);
    EXPECT_EQ(one.ppiDown, 203);
    const PlacementWish two = wishOf({{"ppi", "204x98"}});
    EXPECT_EQ(two.ppiAcross, 204);
    EXPECT_EQ(two.ppiDown, 98);
}

TEST(PlacementWish, TakesNumbersThatMeanNothingForNone) {
    for (const char* number : {"", "x", "0", "-3", "nan", "inf", "1e999", "0x", "x98"}) {
        const PlacementWish wish =
            wishOf({{"ppi", number}, {"scaling", number}, {"natural-scaling", number}});
        EXPECT_EQ(wish.sizing, Sizing::Fit) << number;
        EXPECT_EQ(wish.ppiAcross, 0) << number;
    }
}

TEST(PlacementWish, TurnsAsTheJobSays) {
    const auto turnOf = [](const char* name, const char* value) {
        return wishOf({{name, value}}).turn;
    };
    EXPECT_EQ(turnOf("orientation-requested", "3"), upright);
    EXPECT_EQ(turnOf("orientation-requested", "4"), quarterLeft);
    EXPECT_EQ(turnOf("orientation-requested", "5"), quarterRight);
    EXPECT_EQ(turnOf("orientation-requested", "6"), half);
    EXPECT_EQ(turnOf("orientation-requested", "7"), std::nullopt);
    EXPECT_EQ(turnOf("landscape", "true"), quarterLeft);
    EXPECT_EQ(turnOf("landscape", "false"), upright);
    EXPECT_EQ(wishOf({{"landscape", "true"}, {"orientation-requested", "6"}}).turn, half);
}

TEST(PlacementWish, HasTheNinePositions) {
    struct Expected {
        const char* name;
        int across;
        int down;
    };
    for (const Expected& expected :
         {Expected{"center", 0, 0}, Expected{"top", 0, -1}, Expected{"bottom", 0, 1},
          Expected{"left", -1, 0}, Expected{"right", 1, 0}, Expected{"top-left", -1, -1},
          Expected{"Top-Right", 1, -1}, Expected{"bottom-left", -1, 1},
          Expected{"bottom-right", 1, 1}, Expected{"middle", 0, 0}}) {
        const PlacementWish wish = wishOf({{"position", expected.name}});
        EXPECT_EQ(wish.across, expected.across) << expected.name;
        EXPECT_EQ(wish.down, expected.down) << expected.name;
    }
}

TEST(PlacementWish, MirrorsAndIsFaithful) {
    EXPECT_TRUE(wishOf({{"mirror", "True"}}).isMirrored);
    EXPECT_FALSE(wishOf({{"mirror", "false"}}).isMirrored);
    EXPECT_TRUE(wishOf({{"ipp-attribute-fidelity", "true"}}).isFaithful);
}

}  // namespace
}  // namespace intake::picture
