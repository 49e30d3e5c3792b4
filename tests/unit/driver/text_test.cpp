#include "driver/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

struct PathName {
    const char* path;
    const char* name;
};

class Basename : public testing::TestWithParam<PathName> {};

TEST_P(Basename, IsWhatStandsBehindTheLastSeparator) {
    EXPECT_STREQ(kestoPathGetBasename(GetParam().path), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, Basename,
    testing::Values(PathName{"/usr/lib/filter/name", "name"}, PathName{"dir/sub\\name", "name"},
                    PathName{"dir\\sub/name", "name"}, PathName{"name", "name"},
                    PathName{"dir\\name", "name"}, PathName{"/name", "name"}, PathName{"dir/", ""},
                    PathName{"dir\\", ""}, PathName{"/", ""}, PathName{"", ""}));

TEST(Basename, OfNoPathIsNone) {
    EXPECT_EQ(kestoPathGetBasename(nullptr), nullptr);
}

TEST(Basename, PointsIntoThePath) {
    const char path[] = "dir/name";
    EXPECT_EQ(kestoPathGetBasename(path), path + 4);
    const char plain[] = "name";
    EXPECT_EQ(kestoPathGetBasename(plain), plain);
}

class StrCpy : public testing::Test {
protected:
    char field[60];

    StrCpy() { std::fill(std::begin(field), std::end(field), '#'); }
    std::string raw(std::size_t size) const { return {field, size}; }
};

TEST_F(StrCpy, KeepsTheFirst40CharactersInAFieldOf41) {
    const std::string source(50, 'a');
    kestoStrCpy(field, source.c_str(), 41);
    EXPECT_EQ(raw(42), std::string(40, 'a') + '\0' + '#');
}

TEST_F(StrCpy, KeepsATextThatJustFits) {
    const std::string source(40, 'b');
    kestoStrCpy(field, source.c_str(), 41);
    EXPECT_EQ(raw(42), std::string(40, 'b') + '\0' + '#');
}

TEST_F(StrCpy, FillsTheRestOfTheFieldWithZeros) {
    kestoStrCpy(field, "abc", 10);
    EXPECT_EQ(raw(11), std::string("abc") + std::string(7, '\0') + '#');
}

TEST_F(StrCpy, EmptiesTheFieldForAnEmptyText) {
    kestoStrCpy(field, "", 5);
    EXPECT_EQ(raw(6), std::string(5, '\0') + '#');
}

TEST_F(StrCpy, LeavesOnlyTheTerminatorInAFieldOfOne) {
    kestoStrCpy(field, "abc", 1);
    EXPECT_EQ(raw(2), std::string(1, '\0') + '#');
}

TEST_F(StrCpy, ReturnsTheField) {
    EXPECT_EQ(kestoStrCpy(field, "abc", 10), field);
}

}  // namespace
