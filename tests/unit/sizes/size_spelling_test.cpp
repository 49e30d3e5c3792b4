// Sizes as CUPS, its clients and people spell them.
#include "sizes/size_spelling.h"

#include <gtest/gtest.h>

#include <string>

namespace sizes {
namespace {

struct Spelling {
    const char* name;
    double width;  // mm
    double height;
};

// gtest prints values by this.
void PrintTo(const Spelling& spelling, std::ostream* out) {
    *out << spelling.name;
}

class SizeSpelling : public testing::TestWithParam<Spelling> {};

TEST_P(SizeSpelling, IsReadAsItsMillimetres) {
    const Spelling& expected = GetParam();
    const auto size = parseSizeSpelling(expected.name);
    ASSERT_TRUE(size);
    EXPECT_DOUBLE_EQ(size->width, expected.width);
    EXPECT_DOUBLE_EQ(size->height, expected.height);
}

INSTANTIATE_TEST_SUITE_P(
    WithAUnit, SizeSpelling,
    testing::Values(Spelling{"60x30mm", 60, 30}, Spelling{"2.25x1.25in", 57.15, 31.75},
                    Spelling{"4x6in", 101.6, 152.4}, Spelling{"7.3x4.1cm", 73, 41},
                    Spelling{"73x41cm", 730, 410}, Spelling{"0.1x0.05m", 100, 50},
                    Spelling{"1x2ft", 304.8, 609.6}, Spelling{"144x72pt", 50.8, 25.4},
                    Spelling{"60x30MM", 60, 30}, Spelling{"4x6In", 101.6, 152.4},
                    Spelling{"060.50x30.0mm", 60.5, 30}));

INSTANTIATE_TEST_SUITE_P(WithoutAUnitInInches, SizeSpelling,
                         testing::Values(Spelling{"4x6", 101.6, 152.4}, Spelling{"2x1", 50.8, 25.4},
                                         Spelling{"2.25x1.25", 57.15, 31.75},
                                         Spelling{"20x20", 508, 508}));

INSTANTIATE_TEST_SUITE_P(InPoints, SizeSpelling,
                         testing::Values(Spelling{"w288h432", 101.6, 152.4},
                                         Spelling{"w144h72", 50.8, 25.4},
                                         Spelling{"w162h90", 57.15, 31.75},
                                         // 283.5 and 425.25 points are 100.0125 and 150.01875 mm.
                                         Spelling{"w283.5h425.25", 100.01, 150.02},
                                         Spelling{"w283h425", 99.84, 149.93}));

INSTANTIATE_TEST_SUITE_P(
    Custom, SizeSpelling,
    testing::Values(Spelling{"Custom.73x41mm", 73, 41}, Spelling{"Custom.288x432", 101.6, 152.4},
                    Spelling{"Custom.288x432pt", 101.6, 152.4},
                    Spelling{"Custom.4x6in", 101.6, 152.4}, Spelling{"Custom.7.3x4.1cm", 73, 41},
                    Spelling{"Custom.0.073x0.041m", 73, 41}, Spelling{"Custom.1x2ft", 304.8, 609.6},
                    Spelling{"custom.73x41mm", 73, 41},
                    Spelling{"Custom.101.11x152.4mm", 101.11, 152.4}));

INSTANTIATE_TEST_SUITE_P(
    SelfDescribing, SizeSpelling,
    testing::Values(
        Spelling{"custom_73x41mm", 73, 41}, Spelling{"custom_73x41mm_73x41mm", 73, 41},
        Spelling{"custom_101.11x152.4mm_101.11x152.4mm", 101.11, 152.4},
        Spelling{"custom_my-label_2x1in", 50.8, 25.4}, Spelling{"custom_min_25x10mm", 25, 10},
        Spelling{"custom_max_8.6x100in", 218.44, 2540},
        Spelling{"custom_min_25x10mm_25x10mm", 25, 10}, Spelling{"oe_w288h432_4x6in", 101.6, 152.4},
        Spelling{"oe_4x6-label_4x6in", 101.6, 152.4},
        Spelling{"oe_2.25x1.25in_2.25x1.25in", 57.15, 31.75},
        Spelling{"na_index-4x6_4x6in", 101.6, 152.4}, Spelling{"na_letter_8.5x11in", 215.9, 279.4},
        Spelling{"iso_a6_105x148mm", 105, 148}, Spelling{"jpn_hagaki_100x148mm", 100, 148},
        Spelling{"om_small-photo_100x150mm", 100, 150}, Spelling{"disc_standard_40x118mm", 40, 118},
        Spelling{"na_letter_8.5x11in_rotated", 215.9, 279.4},
        // What stands last counts, as in CUPS.
        Spelling{"custom_60x30mm_61x31mm", 61, 31}));

INSTANTIATE_TEST_SUITE_P(WithASuffix, SizeSpelling,
                         testing::Values(Spelling{"101.11x152.4mm.Fullbleed", 101.11, 152.4},
                                         Spelling{"4x6.FullBleed", 101.6, 152.4},
                                         Spelling{"4x6in.Borderless", 101.6, 152.4},
                                         Spelling{"4x6in.BORDERLESS", 101.6, 152.4},
                                         Spelling{"w288h432.Fullbleed", 101.6, 152.4},
                                         Spelling{"Custom.73x41mm.Borderless", 73, 41},
                                         Spelling{"Custom.288x432.Borderless", 101.6, 152.4},
                                         Spelling{"iso_a6_105x148mm.Borderless", 105, 148},
                                         Spelling{"60x30mm.Transverse", 30, 60},
                                         Spelling{"60x30mm.transverse", 30, 60},
                                         Spelling{"60x30mm.Transverse.FullBleed", 30, 60},
                                         Spelling{"60x30mm.FullBleed.Transverse", 30, 60},
                                         Spelling{"60x30mm.Transverse.Transverse", 60, 30},
                                         Spelling{"iso_a6_105x148mm.Transverse", 148, 105}));

INSTANTIATE_TEST_SUITE_P(AtTheLimits, SizeSpelling,
                         testing::Values(Spelling{"10x10m", 10000, 10000},
                                         Spelling{"0.01x10000mm", 0.01, 10000}));

class NoSize : public testing::TestWithParam<const char*> {};

TEST_P(NoSize, IsReadFromIt) {
    EXPECT_FALSE(parseSizeSpelling(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(NamesWithoutDimensions, NoSize,
                         testing::Values("", "A4", "Letter", "EnvDL", "Postcard", "Tattoo_A5",
                                         "Custom", "Custom.", "custom_", "_", "__", "nonsense",
                                         ".Borderless", "Tattoo_A5.Transverse", "iso_a6", "iso_a6_",
                                         "na_letter", "iso_a6_105", "w288", "h432", "wh", "w288h",
                                         "wxh"));

INSTANTIATE_TEST_SUITE_P(OtherThingsBesidesTheSize, NoSize,
                         testing::Values("60x30mm ", " 60x30mm", "60x30mm\n", "60x30mm;",
                                         "60x30 mm", "60x30mmm", "60x30mm2", "60x30x10mm",
                                         "60 x 30mm", "x60x30mm", "w288h432-div2", "w288h432mm",
                                         "60x30mm.Fullbleed.Extra", "Custom.60x30mm!",
                                         "Custom.Custom.60x30mm", "iso_a6_105x148mm!",
                                         "iso_a6_105x148pt", "iso_a6_105x148", "iso_a6_105x148MM",
                                         "60x30mm.", "60X30mm", "60x30in-mm"));

INSTANTIATE_TEST_SUITE_P(NumbersThatAreNone, NoSize,
                         testing::Values("nanxnanmm", "infxinfmm", "60xinfmm", "60xnanmm",
                                         "-60x30mm", "60x-30mm", "+60x30mm", "6e1x30mm",
                                         "0x3Cx30mm", "60,5x30mm", "60.x30mm", ".5x1in",
                                         "60.5.5x30mm", "x30mm", "60xmm", "xmm", "x", "wnanhnan",
                                         "w-288h432", "Custom.-1x-1", "Custom.x",
                                         "custom_nanxnanmm"));

INSTANTIATE_TEST_SUITE_P(LengthsThatNoLabelHas, NoSize,
                         testing::Values("0x0mm", "0x30mm", "60x0mm", "0.001x30mm", "60x0.009mm",
                                         "10.001x1m", "1x10.001m", "60x10001mm", "w0h0",
                                         "Custom.0x432", "custom_0x0mm_0x0mm", "100x150", "21x4",
                                         "4x20.5", "99999999999999999999x1mm"));

TEST(SizeSpelling, IsNotReadFromANumberBeyondAllNumbers) {
    const std::string endless(400, '9');
    EXPECT_FALSE(parseSizeSpelling(endless + "x30mm"));
    EXPECT_FALSE(parseSizeSpelling("w288h" + endless));
    EXPECT_FALSE(parseSizeSpelling("60x30mm" + std::string(100000, '_')));
}

TEST(SizeSpelling, EndsWithTheNameThatItIsGiven) {
    EXPECT_FALSE(parseSizeSpelling(std::string_view("60x30mm").substr(0, 4)));
    EXPECT_FALSE(parseSizeSpelling(std::string_view("60x30mm\0", 8)));
}

TEST(SizeSpelling, KeepsTheUnitForPeople) {
    EXPECT_EQ(sizeText(*parseSizeSpelling("4x6")), "4 x 6 in");
    EXPECT_EQ(sizeText(*parseSizeSpelling("w288h432")), "4 x 6 in");
    EXPECT_EQ(sizeText(*parseSizeSpelling("w283h425")), "99.84 x 149.93 mm");
    EXPECT_EQ(sizeText(*parseSizeSpelling("1x2ft")), "12 x 24 in");
    EXPECT_EQ(sizeText(*parseSizeSpelling("7.3x4.1cm")), "73 x 41 mm");
    EXPECT_EQ(sizeText(*parseSizeSpelling("iso_a6_105x148mm.Transverse")), "148 x 105 mm");
}

TEST(BareName, LosesWhatCupsPutsBehindNames) {
    const BareName plain = bareName("A6");
    EXPECT_EQ(plain.name, "A6");
    EXPECT_FALSE(plain.transverse);
    EXPECT_FALSE(plain.borderless);

    const BareName decorated = bareName("A6.Transverse.FullBleed");
    EXPECT_EQ(decorated.name, "A6");
    EXPECT_TRUE(decorated.transverse);
    EXPECT_TRUE(decorated.borderless);

    EXPECT_EQ(bareName("A4.Small").name, "A4.Small");
    EXPECT_EQ(bareName("101.11x152.4mm").name, "101.11x152.4mm");
    EXPECT_EQ(bareName(".Borderless").name, "");
}

TEST(PlainSize, IsMillimetresOrInchesAndNothingElse) {
    EXPECT_DOUBLE_EQ(parsePlainSize("60x30mm")->width, 60);
    EXPECT_DOUBLE_EQ(parsePlainSize("2.25x1.25in")->height, 31.75);
    for (const char* text : {"60x30", "60x30cm", "60x30MM", "60x30mm\n", "4x6in.Borderless", "w1h1",
                             "Custom.60x30mm", "custom_60x30mm", "", "60x30pt"}) {
        EXPECT_FALSE(parsePlainSize(text)) << text;
    }
}

// kesto-tspl-size says of these that no printer takes them.
TEST(PlainSize, IsReadWhateverItsLengths) {
    EXPECT_DOUBLE_EQ(parsePlainSize("0x0mm")->width, 0);
    EXPECT_DOUBLE_EQ(parsePlainSize("100000x30mm")->width, 100000);
}

}  // namespace
}  // namespace sizes
