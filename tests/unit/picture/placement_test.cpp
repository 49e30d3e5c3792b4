// Where a picture comes to lie. The label is one of 4 x 6 inches at 203 dpi, 808 x 1218 dots,
// unless a test says otherwise.
#include "intake/picture/placement.h"

#include <gtest/gtest.h>

#include <ostream>
#include <tuple>

namespace intake::picture {

static bool operator==(const AxisPart& one, const AxisPart& other) {
    return std::tie(one.first, one.count, one.offset) ==
           std::tie(other.first, other.count, other.offset);
}

static std::ostream& operator<<(std::ostream& out, const AxisPart& part) {
    return out << "from " << part.first << " " << part.count << " at " << part.offset;
}

namespace {

constexpr LabelDots sLabel{808, 1218, 203};

struct Picture : PictureSize {
    Picture(unsigned across, unsigned down, double ppi = 0) : PictureSize{across, down, ppi, ppi} {}
};

PlacementWish sized(Sizing sizing, double percent = 100) {
    PlacementWish wish;
    wish.sizing = sizing;
    wish.percent = percent;
    return wish;
}

using Size = std::pair<unsigned, unsigned>;

Size scaledSize(const Placement& placement) {
    return {placement.across.scaled, placement.down.scaled};
}

Size sizeOf(const PictureSize& picture, const PlacementWish& wish = {},
            const LabelDots& label = sLabel) {
    return scaledSize(placePicture(picture, wish, label));
}

void expectKept(const PictureSize& picture, const PlacementWish& wish, const LabelDots& label) {
    const Placement placement = placePicture(picture, wish, label);
    EXPECT_EQ(scaledSize(placement), Size(picture.width, picture.height));
    EXPECT_EQ(placement.across.source, picture.width);
    EXPECT_EQ(placement.down.source, picture.height);
    EXPECT_EQ(placement.labels(), 1U);
}

TEST(Placement, KeepsAPictureOfTheLabelsDots) {
    expectKept(Picture(808, 1218), {}, sLabel);
    expectKept(Picture(808, 1218, 72), {}, sLabel);
    expectKept(Picture(808, 1218, 203), sized(Sizing::Natural), sLabel);
    expectKept(Picture(1218, 808), {}, sLabel);
    EXPECT_EQ(placePicture(Picture(1218, 808), {}, sLabel).turn, quarterLeft);
}

TEST(Placement, KeepsThemWhateverTheFileSaysOfTheShapeOfItsSamples) {
    PictureSize picture = Picture(808, 1218);
    picture.ppiAcross = 204;
    picture.ppiDown = 98;
    expectKept(picture, {}, sLabel);
}

TEST(Placement, KeepsThemAtTheResolutionThatIsAskedFor) {
    PlacementWish wish = sized(Sizing::Natural);
    wish.ppiAcross = wish.ppiDown = 203;
    expectKept(Picture(808, 1218), wish, sLabel);
    // Four inches are 812 dots, of which the label has 808.
    expectKept(Picture(812, 1218), wish, sLabel);
}

TEST(Placement, CutsALittleOffRatherThanScalingDots) {
    const Placement placement = placePicture(Picture(812, 1218), {}, sLabel);
    EXPECT_EQ(scaledSize(placement), Size(812, 1218));
    EXPECT_EQ(partOn(placement.across, 0), (AxisPart{2, 808, 0}));
    EXPECT_EQ(partOn(placement.down, 0), (AxisPart{0, 1218, 0}));
    EXPECT_EQ(sizeOf(Picture(816, 1218)), Size(816, 1218)) << "a hundredth";
    EXPECT_EQ(sizeOf(Picture(820, 1218)), Size(808, 1200)) << "more than a hundredth";
}

TEST(Placement, LeavesALittleWhiteRatherThanScalingDots) {
    const Placement placement = placePicture(Picture(800, 1206), {}, sLabel);
    EXPECT_EQ(scaledSize(placement), Size(800, 1206));
    EXPECT_EQ(partOn(placement.across, 0), (AxisPart{0, 800, 4}));
}

TEST(Placement, TakesWholePartsOfAFinerPicture) {
    EXPECT_EQ(sizeOf(Picture(1624, 2436, 406)), Size(812, 1218));
    EXPECT_EQ(sizeOf(Picture(2400, 3600, 600), {}, {1200, 1800, 300}), Size(1200, 1800));
    // Half of 1625 samples are 812 dots of two samples each, and one sample is left.
    const Placement odd = placePicture(Picture(1625, 2436), {}, sLabel);
    EXPECT_EQ(odd.across.scaled, 812U);
    EXPECT_EQ(odd.across.source, 1624U);
}

TEST(Placement, TakesWholeMultiplesOfACoarserPicture) {
    EXPECT_EQ(sizeOf(Picture(600, 900, 150), {}, {1200, 1800, 300}), Size(1200, 1800));
    EXPECT_EQ(sizeOf(Picture(406, 609)), Size(812, 1218));
}

TEST(Placement, FitsPicturesOfAnyOtherSize) {
    EXPECT_EQ(sizeOf(Picture(3000, 4500)), Size(808, 1212));
    EXPECT_EQ(sizeOf(Picture(100, 100)), Size(808, 808)) << "eight times would leave just too much";
    EXPECT_EQ(sizeOf(Picture(90, 90)), Size(808, 808));
    EXPECT_EQ(sizeOf(Picture(1, 10000)), Size(1, 1218));
}

TEST(Placement, TurnsAPictureThatLiesAcross) {
    const Placement placement = placePicture(Picture(4500, 3000), {}, sLabel);
    EXPECT_EQ(placement.turn, quarterLeft);
    EXPECT_EQ(scaledSize(placement), Size(1212, 808));
    EXPECT_EQ(placement.across.room, 1218U);
    EXPECT_EQ(placement.down.room, 808U);
}

TEST(Placement, TurnsNothingOnASquareLabelNorASquarePicture) {
    EXPECT_EQ(placePicture(Picture(4500, 3000), {}, {808, 812, 203}).turn, upright);
    EXPECT_EQ(placePicture(Picture(3000, 4500), {}, {800, 800, 203}).turn, upright);
    EXPECT_EQ(placePicture(Picture(3000, 3000), {}, {1600, 800, 203}).turn, upright);
    EXPECT_EQ(placePicture(Picture(3000, 4500), {}, {808, 800, 203}).turn, quarterLeft);
}

TEST(Placement, TurnsAsTheJobSaysAndNotOtherwise) {
    PlacementWish wish;
    wish.turn = upright;
    EXPECT_EQ(placePicture(Picture(4500, 3000), wish, sLabel).turn, upright);
    EXPECT_EQ(sizeOf(Picture(4500, 3000), wish), Size(808, 539));
    wish.turn = quarterRight;
    EXPECT_EQ(placePicture(Picture(3000, 4500), wish, sLabel).turn, quarterRight);
    EXPECT_EQ(sizeOf(Picture(3000, 4500), wish), Size(539, 808));
    wish.turn = half;
    EXPECT_EQ(sizeOf(Picture(3000, 4500), wish), Size(808, 1212));
}

TEST(Placement, MirrorsTheLabelAndNotThePicture) {
    PlacementWish wish;
    wish.isMirrored = true;
    EXPECT_EQ(placePicture(Picture(3000, 4500), wish, sLabel).turn, mirrored);
    EXPECT_EQ(placePicture(Picture(4500, 3000), wish, sLabel).turn,
              combined(quarterLeft, mirrored));
}

TEST(Placement, FillsTheLabelAndCutsTheRestOff) {
    PlacementWish wish = sized(Sizing::Fill);
    const auto placed = [&] { return placePicture(Picture(1000, 3000), wish, sLabel); };
    EXPECT_EQ(scaledSize(placed()), Size(808, 2424));
    EXPECT_EQ(partOn(placed().down, 0), (AxisPart{603, 1218, 0}));
    wish.down = -1;
    EXPECT_EQ(partOn(placed().down, 0), (AxisPart{0, 1218, 0}));
    wish.down = 1;
    EXPECT_EQ(partOn(placed().down, 0), (AxisPart{1206, 1218, 0}));
    EXPECT_EQ(sizeOf(Picture(800, 1206), sized(Sizing::Fill)), Size(808, 1218))
        << "a little white is not filled";
}

TEST(Placement, LeavesAPictureAsLargeAsItIs) {
    const Placement placement =
        placePicture(Picture(150, 300, 150), sized(Sizing::Cropped), sLabel);
    EXPECT_EQ(scaledSize(placement), Size(203, 406));
    EXPECT_EQ(partOn(placement.across, 0), (AxisPart{0, 203, 302}));
    EXPECT_EQ(sizeOf(Picture(150, 300), sized(Sizing::Cropped)), Size(150, 300))
        << "a picture that does not say is in the printer's dots";
}

TEST(Placement, CutsALargePictureThatIsNotToBeScaled) {
    const Placement placement =
        placePicture(Picture(3000, 4500, 203), sized(Sizing::Cropped), sLabel);
    EXPECT_EQ(partOn(placement.across, 0), (AxisPart{1096, 808, 0}));
    EXPECT_EQ(placement.labels(), 1U);
}

TEST(Placement, FillsOrFitsOnlyLargerPicturesOfItself) {
    EXPECT_EQ(sizeOf(Picture(1000, 3000, 203), sized(Sizing::Auto)), Size(808, 2424));
    EXPECT_EQ(sizeOf(Picture(1000, 3000, 203), sized(Sizing::AutoFit)), Size(406, 1218));
    EXPECT_EQ(sizeOf(Picture(100, 300, 203), sized(Sizing::Auto)), Size(100, 300));
    EXPECT_EQ(sizeOf(Picture(100, 300, 203), sized(Sizing::AutoFit)), Size(100, 300));
    EXPECT_EQ(sizeOf(Picture(812, 1218, 203), sized(Sizing::Auto)), Size(812, 1218))
        << "four dots are not larger";
    PlacementWish faithful = sized(Sizing::AutoFit);
    faithful.isFaithful = true;
    EXPECT_EQ(sizeOf(Picture(90, 300, 203), faithful), Size(365, 1218));
}

TEST(Placement, HeedsTheShapeOfSamples) {
    PictureSize fax = Picture(1728, 1100);
    fax.ppiAcross = 204;
    fax.ppiDown = 98;
    // 8.47 x 11.22 inches
    EXPECT_EQ(sizeOf(fax, {}), Size(808, 1071));
    PlacementWish wish = sized(Sizing::Natural);
    wish.ppiAcross = 204;
    wish.ppiDown = 102;
    EXPECT_EQ(sizeOf(Picture(204, 102), wish), Size(203, 203));
    fax.ppiDown = 1;
    EXPECT_EQ(sizeOf(fax, sized(Sizing::Fit), {1728, 1728, 203}), Size(1728, 1100))
        << "more than eightfold is a mistake";
}

TEST(Placement, TakesRoundedResolutionsForWhatTheyMean) {
    // 7992 dots per metre
    expectKept(Picture(808, 1218, 7992 * 0.0254), sized(Sizing::Natural), sLabel);
    EXPECT_EQ(
        sizeOf(Picture(2400, 3600, 23622 * 0.0254), sized(Sizing::Natural), {1200, 1800, 300}),
        Size(1200, 1800));
}

TEST(Placement, SharesALargePictureOutEvenly) {
    PlacementWish wish = sized(Sizing::Share, 150);
    const Placement placement = placePicture(Picture(3000, 4500), wish, sLabel);
    EXPECT_EQ(scaledSize(placement), Size(1212, 1818));
    EXPECT_EQ(placement.across.labels, 2U);
    EXPECT_EQ(placement.down.labels, 2U);
    EXPECT_EQ(placement.labels(), 4U);
    EXPECT_EQ(partOn(placement.across, 0), (AxisPart{0, 606, 101}));
    EXPECT_EQ(partOn(placement.across, 1), (AxisPart{606, 606, 101}));
    EXPECT_EQ(sizeOf(Picture(3000, 4500), sized(Sizing::Share, 50)), Size(404, 606));
    EXPECT_EQ(placePicture(Picture(812, 1218, 203), sized(Sizing::Natural), sLabel).labels(), 1U);
    EXPECT_EQ(placePicture(Picture(900, 1218, 203), sized(Sizing::Natural), sLabel).labels(), 2U);
}

TEST(Placement, TurnsANaturalPictureOnlyWhenItFitsThen) {
    const auto turnOf = [](const Picture& picture) {
        return placePicture(picture, sized(Sizing::Natural), sLabel).turn;
    };
    EXPECT_EQ(turnOf(Picture(1200, 800, 203)), quarterLeft);
    EXPECT_EQ(turnOf(Picture(700, 300, 203)), upright);
    EXPECT_EQ(turnOf(Picture(3000, 800, 203)), upright);
}

TEST(Placement, CountsMoreLabelsThanAnyoneWants) {
    PlacementWish wish = sized(Sizing::Natural, 1e30);
    wish.ppiAcross = wish.ppiDown = 1e-30;
    EXPECT_GT(placePicture(Picture(60000, 60000), wish, sLabel).labels(), 1000000U);
    EXPECT_EQ(sizeOf(Picture(60000, 60000), sized(Sizing::Natural, 1e-30)), Size(1, 1));
}

}  // namespace
}  // namespace intake::picture
