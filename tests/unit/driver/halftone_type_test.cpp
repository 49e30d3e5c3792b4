#include "driver/halftone_type.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

struct NamedType {
    std::int32_t value;
    DitherType type;
    const char* name;
};

class HalftoneName : public testing::TestWithParam<NamedType> {};

TEST_P(HalftoneName, StandsForItsNumber) {
    EXPECT_EQ(static_cast<std::int32_t>(GetParam().type), GetParam().value);
}

TEST_P(HalftoneName, IsGivenForItsType) {
    EXPECT_STREQ(kestoHalftoneTypeToStr(GetParam().type), GetParam().name);
}

TEST_P(HalftoneName, IsReadAsItsType) {
    EXPECT_EQ(kestoHalftoneTypeFromStr(GetParam().name), GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(AllTypes, HalftoneName,
                         testing::Values(NamedType{0, DitherType::None, "None"},
                                         NamedType{1, DitherType::FloydSteinberg, "FloydSteinberg"},
                                         NamedType{2, DitherType::Ordered, "Ordered"},
                                         NamedType{3, DitherType::Burkes, "Burkes"},
                                         NamedType{4, DitherType::Stucki, "Stucki"},
                                         NamedType{5, DitherType::JarvisJudiceNinke,
                                                   "JarvisJudiceNinke"},
                                         NamedType{6, DitherType::Sierra, "Sierra"},
                                         NamedType{7, DitherType::StevensonArce, "StevensonArce"},
                                         NamedType{8, DitherType::Tattoo, "Tattoo"},
                                         NamedType{9, DitherType::Tattoo_X8, "Tattoo_X8"}),
                         [](const auto& row) { return std::string(row.param.name); });

class UnnamedHalftone : public testing::TestWithParam<std::int32_t> {};

TEST_P(UnnamedHalftone, IsCalledNone) {
    EXPECT_STREQ(kestoHalftoneTypeToStr(static_cast<DitherType>(GetParam())), "None");
}

INSTANTIATE_TEST_SUITE_P(OutsideTheTable, UnnamedHalftone,
                         testing::Values(10, 11, std::numeric_limits<std::int32_t>::max(), -1,
                                         std::numeric_limits<std::int32_t>::min()));

class UnknownHalftoneName : public testing::TestWithParam<const char*> {};

TEST_P(UnknownHalftoneName, IsReadAsNone) {
    EXPECT_EQ(kestoHalftoneTypeFromStr(GetParam()), DitherType::None);
}

INSTANTIATE_TEST_SUITE_P(InexactNames, UnknownHalftoneName,
                         testing::Values("", "floydsteinberg", "FLOYDSTEINBERG", "Floyd",
                                         "FloydSteinberg ", " Ordered", "Tattoo_X", "Tattoo_x8",
                                         "Tattoo_X80", "9", "JarvisJudiceNink"));

}  // namespace
