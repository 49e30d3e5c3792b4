// The names of descriptions with sizes of their own.
#include "sizes/command/nick_name.h"

#include <gtest/gtest.h>

#include <vector>

#include "sizes/command/failure.h"

namespace sizes {
namespace {

const std::string sModel = "Kesto Label 203 dpi, 0.1";

std::string named(const std::string& nickName, const std::vector<std::string>& texts) {
    return nickNameWith(nickName, texts);
}

// "10 x 10 mm", "11 x 10 mm" and so on, ten characters each.
std::vector<std::string> manySizes(int count) {
    std::vector<std::string> texts(static_cast<std::size_t>(count));
    int width = 10;
    for (std::string& text : texts) {
        text = std::to_string(width++) + " x 10 mm";
    }
    return texts;
}

TEST(NickName, TellsTheSizesOfItsDescription) {
    EXPECT_EQ(named(sModel, {"66 x 33 mm"}), sModel + " with 66 x 33 mm");
    EXPECT_EQ(named(sModel, {"66 x 33 mm", "1.25 x 3 in"}),
              sModel + " with 66 x 33 mm, 1.25 x 3 in");
}

TEST(NickName, GetsNoSizeTwice) {
    const std::string once = named(sModel, {"66 x 33 mm", "61 x 31 mm"});
    EXPECT_EQ(named(once, {"66 x 33 mm", "61 x 31 mm"}), once);
    EXPECT_EQ(named(once, {"66 x 33 mm"}), once);
    EXPECT_EQ(named(sModel, {"66 x 33 mm", "66 x 33 mm"}), sModel + " with 66 x 33 mm");
}

TEST(NickName, NamesNewSizesBeforeFormerOnes) {
    EXPECT_EQ(named(sModel + " with 66 x 33 mm, 1 x 1 in", {"61 x 31 mm", "1 x 1 in"}),
              sModel + " with 61 x 31 mm, 1 x 1 in, 66 x 33 mm");
}

// 24 characters of the model, 6 of " with ", 10 for each size and 2 between: 8 of them make 124.
TEST(NickName, HoldsAsManySizesAsThereIsRoomFor) {
    const std::string eight = named(sModel, manySizes(8));
    EXPECT_EQ(eight.size(), 124U);
    EXPECT_TRUE(eight.ends_with(", 17 x 10 mm"));
}

TEST(NickName, TellsWhenThereAreMoreSizesThanItHolds) {
    const std::string nine = named(sModel, manySizes(9));
    EXPECT_EQ(nine.size(), 117U);
    EXPECT_TRUE(nine.ends_with(", 16 x 10 mm, ...")) << nine;
    EXPECT_EQ(named(sModel, manySizes(40)), nine);
}

TEST(NickName, DoesNotForgetThatThereWereMore) {
    const std::string nine = named(sModel, manySizes(9));
    EXPECT_EQ(named(nine, {"10 x 10 mm"}), nine);
    EXPECT_TRUE(named(nine, {"99 x 99 mm"}).ends_with(", 15 x 10 mm, ..."));
    EXPECT_EQ(named(sModel + " with 66 x 33 mm, ...", {"1 x 1 in"}),
              sModel + " with 1 x 1 in, 66 x 33 mm, ...");
}

TEST(NickName, IsNoLongerThanAnAttributeHolds) {
    for (int count = 1; count < 30; ++count) {
        for (std::size_t length = 1; length <= 100; ++length) {
            EXPECT_LE(named(std::string(length, 'K'), manySizes(count)).size(), longestNickName);
        }
    }
}

// 127 - 16 characters leave room for " with " and one size.
TEST(NickName, NeedsRoomForOneSize) {
    EXPECT_EQ(named(std::string(111, 'K'), {"66 x 33 mm"}).size(), 127U);
    EXPECT_THROW(named(std::string(112, 'K'), {"66 x 33 mm"}), Failure);
    EXPECT_THROW(named(std::string(111, 'K'), manySizes(2)), Failure);
    EXPECT_EQ(named(std::string(106, 'K'), manySizes(2)).size(), 127U);
}

TEST(NickName, MayHaveBeenEmpty) {
    EXPECT_EQ(named("", {"1 x 1 in"}), " with 1 x 1 in");
}

}  // namespace
}  // namespace sizes
