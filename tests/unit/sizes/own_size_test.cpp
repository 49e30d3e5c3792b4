// The sizes on the command line of kesto-tspl-size, and their listings.
#include "sizes/command/own_size.h"

#include <gtest/gtest.h>

#include "sizes/command/failure.h"
#include "sizes/command/size_listing.h"

namespace sizes {
namespace {

std::string reasonAgainst(const std::string& name) {
    try {
        ownSizes({name}, 203);
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "none";
}

TEST(OwnSizes, HaveTheirPages) {
    const auto sizes = ownSizes({"60x30mm", "2x1in"}, 203);
    ASSERT_EQ(sizes.size(), 2U);
    EXPECT_EQ(sizes[0].dots, (DotSize{480, 240}));
    EXPECT_EQ(sizeText(sizes[1].label), "2 x 1 in");
}

TEST(OwnSizes, AreEachThereOnce) {
    EXPECT_EQ(ownSizes({"60x30mm", "60.0x030mm", "61x30mm", "60x30.00mm"}, 300).size(), 2U);
}

TEST(OwnSizes, AreThoseThatPrintersTake) {
    EXPECT_EQ(reasonAgainst("8.6x100in"), "none");
    EXPECT_EQ(reasonAgainst("8.61x1in"), "no printer takes this width: 8.61x1in");
    EXPECT_EQ(reasonAgainst("1x100.1in"), "no printer takes this height: 1x100.1in");
    EXPECT_EQ(reasonAgainst("0.5x30mm"), "too small: 0.5x30mm");
    EXPECT_EQ(reasonAgainst("30x0.5mm"), "too small: 30x0.5mm");
    EXPECT_EQ(reasonAgainst("0x0mm"), "too small: 0x0mm");
    EXPECT_EQ(reasonAgainst("1e2x30mm"), "not a size: '1e2x30mm'");
}

// A name has 40 characters at most in a PPD file.
TEST(OwnSizes, HaveNamesOfAFewDecimalsHoweverManyAreWritten) {
    const auto sizes = ownSizes({"60.000000000000000000000000000000000000000000001x30mm"}, 203);
    EXPECT_EQ(sizeName(sizes.at(0).label), "60x30mm");
    EXPECT_EQ(sizeName(ownSizes({"0060.12346x030.00mm"}, 203).at(0).label), "60.1235x30mm");
}

TEST(SizeListing, TellsNameDotsAndMillimetres) {
    EXPECT_EQ(sizeListing(ownSizes({"60x30mm", "2.25x1.25in", "100.125x1000.125mm"}, 203), 203),
              "60x30mm        60 x 30 mm: 480 x 240 dots at 203 dpi, 60.1 x 30.0 mm\n"
              "2.25x1.25in    2.25 x 1.25 in: 456 x 254 dots at 203 dpi, 57.1 x 31.8 mm\n"
              "100.125x1000.125mm 100.125 x 1000.125 mm: 800 x 7993 dots at 203 dpi, "
              "100.1 x 1000.1 mm\n");
}

TEST(MediaLines, AreThoseOfTheCompilersSource) {
    const std::string code = " \"<</PageSize[144 72]/ImagingBBox null>>setpagedevice\"";
    EXPECT_EQ(mediaLines(ownSizes({"2x1in"}, 203)),
              "  CustomMedia \"2x1in/2 x 1 in\" 144 72 0 0 0 0" + code + code + "\n");
}

}  // namespace
}  // namespace sizes
