// Descriptions with sizes of the user's own.
#include "sizes/command/own_description.h"

#include <gtest/gtest.h>

#include "sizes/command/failure.h"

namespace sizes {
namespace {

const std::string sPpd =
    "*PPD-Adobe: \"4.3\"\n"
    "*%%%% A comment: \"\n"
    "*PCFileName: \"KSTL203.PPD\"\n"
    "*NickName: \"Kesto Label 203 dpi, 0.1\"\n"
    "*OpenGroup: Media/Media\n"
    "*OpenUI *PageSize/Media Size: PickOne\n"
    "*DefaultPageSize: 1x1in\n"
    "*PageSize 1x1in/1 x 1 in: \"code\"\n"
    "*PageSize 2x1in/2 x 1 in: \"code\"\n"
    "*CloseUI: *PageSize\n"
    "*CloseGroup: Media\n"
    "*DefaultPageRegion: 1x1in\n"
    "*PageRegion 1x1in/1 x 1 in: \"code\"\n"
    "*PageRegion 2x1in/2 x 1 in: \"code\"\n"
    "*DefaultImageableArea: 1x1in\n"
    "*ImageableArea 1x1in/1 x 1 in: \"0 0 1 1\"\n"
    "*ImageableArea 2x1in/2 x 1 in: \"0 0 2 1\"\n"
    "*DefaultPaperDimension: 1x1in\n"
    "*PaperDimension 1x1in/1 x 1 in: \"1 1\"\n"
    "*PaperDimension 2x1in/2 x 1 in: \"2 1\"\n"
    "*DefaultResolution: 203dpi\n"
    "*de.PageSize 1x1in/1 mal 1 Zoll: \"\"\n"
    "*de.PageSize 2x1in/2 mal 1 Zoll: \"\"\n"
    "*DefaultFont: Courier\n";

OwnSize own(const NominalSize& label) {
    return {label, dotsOf(label, 203)};
}

std::string described(const std::string& ppd, const std::vector<OwnSize>& sizes) {
    return ownDescription(ppd, sizes, 203);
}

std::string without(std::string text, const std::string& part) {
    const auto at = text.find(part);
    EXPECT_NE(at, std::string::npos) << part;
    return text.erase(at, part.size());
}

std::string with(std::string text, const std::string& part, const std::string& other) {
    const auto at = text.find(part);
    EXPECT_NE(at, std::string::npos) << part;
    return text.replace(at, part.size(), other);
}

std::string reasonAgainst(const std::string& ppd) {
    try {
        described(ppd, {own(inMillimetres(60, 30))});
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "none";
}

TEST(OwnDescription, OffersTheSizeFirstAndAsTheDefault) {
    const std::string code = "\"<</PageSize[170.0787 85.0394]/ImagingBBox null>>setpagedevice\"\n";
    EXPECT_EQ(described(sPpd, {own(inMillimetres(60, 30))}),
              sPpd.substr(0, sPpd.find("*NickName")) +
                  "*NickName: \"Kesto Label 203 dpi, 0.1 with 60 x 30 mm\"\n"
                  "*OpenGroup: Media/Media\n"
                  "*OpenUI *PageSize/Media Size: PickOne\n"
                  "*DefaultPageSize: 60x30mm\n"
                  "*PageSize 60x30mm/60 x 30 mm: " +
                  code +
                  "*PageSize 1x1in/1 x 1 in: \"code\"\n"
                  "*PageSize 2x1in/2 x 1 in: \"code\"\n"
                  "*CloseUI: *PageSize\n"
                  "*CloseGroup: Media\n"
                  "*DefaultPageRegion: 60x30mm\n"
                  "*PageRegion 60x30mm/60 x 30 mm: " +
                  code +
                  "*PageRegion 1x1in/1 x 1 in: \"code\"\n"
                  "*PageRegion 2x1in/2 x 1 in: \"code\"\n"
                  "*DefaultImageableArea: 60x30mm\n"
                  "*ImageableArea 60x30mm/60 x 30 mm: \"0 0 170.0787 85.0394\"\n"
                  "*ImageableArea 1x1in/1 x 1 in: \"0 0 1 1\"\n"
                  "*ImageableArea 2x1in/2 x 1 in: \"0 0 2 1\"\n"
                  "*DefaultPaperDimension: 60x30mm\n"
                  "*PaperDimension 60x30mm/60 x 30 mm: \"170.0787 85.0394\"\n"
                  "*PaperDimension 1x1in/1 x 1 in: \"1 1\"\n"
                  "*PaperDimension 2x1in/2 x 1 in: \"2 1\"\n"
                  "*DefaultResolution: 203dpi\n"
                  "*de.PageSize 60x30mm/60 x 30 mm: \"\"\n"
                  "*de.PageSize 1x1in/1 mal 1 Zoll: \"\"\n"
                  "*de.PageSize 2x1in/2 mal 1 Zoll: \"\"\n"
                  "*DefaultFont: Courier\n");
}

TEST(OwnDescription, OffersSeveralSizesInTheirOrder) {
    const std::string text =
        described(sPpd, {own(inMillimetres(60, 30)), own(inMillimetres(61, 31))});
    EXPECT_NE(text.find("*DefaultPageSize: 60x30mm\n*PageSize 60x30mm/"), std::string::npos);
    EXPECT_LT(text.find("*PageSize 60x30mm/"), text.find("*PageSize 61x31mm/"));
    EXPECT_LT(text.find("*PageSize 61x31mm/"), text.find("*PageSize 1x1in/"));
}

TEST(OwnDescription, ReplacesASizeOfTheSameNameButNotItsTranslation) {
    const std::string text = described(sPpd, {own(inInches(2, 1))});
    EXPECT_EQ(text.find("*PageSize 2x1in/2 x 1 in: \"code\""), std::string::npos);
    EXPECT_NE(text.find("*PaperDimension 2x1in/2 x 1 in: \"144 72\"\n"
                        "*PaperDimension 1x1in/"),
              std::string::npos);
    EXPECT_EQ(text.find("\"2 1\""), std::string::npos);
    EXPECT_NE(text.find("*de.PageSize 1x1in/1 mal 1 Zoll: \"\"\n*de.PageSize 2x1in/2 mal 1 Zoll"),
              std::string::npos);
    EXPECT_EQ(text.find("*de.PageSize 2x1in/2 x 1 in"), std::string::npos);
}

// 2 x 1 in are 144 x 72 points here, and 50 x 25 mm 141.7 x 70.9: CUPS would take one for the
// other.
TEST(OwnDescription, DropsASizeThatCupsWouldTakeForTheNewOne) {
    const std::string ppd = with(sPpd, "1 in: \"2 1\"", "1 in: \"144 72\"");
    const std::string text = described(ppd, {own(inMillimetres(50, 25))});
    EXPECT_EQ(text.find("2x1in"), std::string::npos);
    EXPECT_NE(text.find("*PaperDimension 50x25mm/50 x 25 mm: \"141.7323 70.8661\""),
              std::string::npos);
    EXPECT_NE(text.find("*de.PageSize 1x1in/1 mal 1 Zoll"), std::string::npos);
    const std::string other = described(ppd, {own(inMillimetres(49, 25))});
    EXPECT_NE(other.find("*PageSize 2x1in/"), std::string::npos);
}

TEST(OwnDescription, IsTheSameWhenItIsMadeOfItselfAgain) {
    const std::vector sizes{own(inMillimetres(60, 30)), own(inInches(1.25, 3))};
    const std::string once = described(sPpd, sizes);
    std::string again = once;
    for (int i = 0; i < 20; ++i) {
        again = described(again, sizes);
    }
    EXPECT_EQ(again, once);
}

TEST(OwnDescription, HasLineFeedsOnly) {
    std::string returns;
    for (char c : sPpd) {
        returns += c == '\n' ? "\r\n" : std::string(1, c);
    }
    const std::vector sizes{own(inMillimetres(60, 30))};
    EXPECT_EQ(described(returns, sizes), described(sPpd, sizes));
}

TEST(OwnDescription, IsMadeOfADescriptionOfThisDriverOnly) {
    const std::string reason = "the PPD file is not one of this driver for 203 dpi";
    EXPECT_EQ(reasonAgainst(""), reason);
    EXPECT_EQ(reasonAgainst("text"), reason);
    EXPECT_EQ(reasonAgainst(with(sPpd, "KSTL203", "OTHER20")), reason);
    EXPECT_EQ(reasonAgainst(with(sPpd, "KSTL203", "KSTL300")), reason);
    EXPECT_EQ(reasonAgainst(with(sPpd, "203dpi", "300dpi")), reason);
    EXPECT_EQ(reasonAgainst(with(sPpd, "203dpi", "203x300dpi")), reason);
}

TEST(OwnDescription, NeedsEveryKindOfLineToStandBeside) {
    EXPECT_EQ(reasonAgainst(without(sPpd, "*DefaultImageableArea: 1x1in\n")),
              "the PPD file has no DefaultImageableArea");
    EXPECT_EQ(reasonAgainst(without(without(sPpd, "*PageRegion 1x1in/1 x 1 in: \"code\"\n"),
                                    "*PageRegion 2x1in/2 x 1 in: \"code\"\n")),
              "the PPD file has no PageRegion");
    EXPECT_EQ(reasonAgainst(without(sPpd, "*NickName: \"Kesto Label 203 dpi, 0.1\"\n")),
              "the PPD file has no NickName");
}

TEST(OwnDescription, IsNotMadeOfAPartOfADescription) {
    const std::string reason = "the PPD file ends too soon";
    EXPECT_EQ(reasonAgainst(without(sPpd, "*DefaultFont: Courier\n")), reason);
    EXPECT_EQ(reasonAgainst(without(sPpd, "*CloseUI: *PageSize\n")), reason);
    EXPECT_EQ(reasonAgainst(without(sPpd, "*CloseGroup: Media\n")), reason);
    EXPECT_EQ(reasonAgainst(sPpd + "*Text: \"without an end\n"), reason);
}

TEST(OwnDescription, HasNoLineThatIsTooLongForCups) {
    const std::string start = "*Text: ";
    const std::string longest = start + std::string(255 - start.size(), 'x');
    EXPECT_EQ(reasonAgainst(longest + "\n" + sPpd), "none");
    EXPECT_EQ(reasonAgainst(sPpd + longest), "none");
    EXPECT_EQ(reasonAgainst(longest + "x\n" + sPpd),
              "the PPD file has a line of more than 255 characters");
    EXPECT_EQ(reasonAgainst(sPpd + longest + "x"),
              "the PPD file has a line of more than 255 characters");
    // Over several lines a value may be longer.
    EXPECT_EQ(reasonAgainst("*Text: \"" + std::string(240, 'x') + "\n" + std::string(240, 'x') +
                            "\"\n" + sPpd),
              "none");
}

TEST(OwnDescription, HasNoControlCharacters) {
    EXPECT_EQ(reasonAgainst("*% bell \a\n" + sPpd), "the PPD file has control characters");
    EXPECT_EQ(reasonAgainst(std::string("*% nul ") + '\0' + "\n" + sPpd),
              "the PPD file has control characters");
    EXPECT_EQ(reasonAgainst("*% a return \r in a line\n" + sPpd),
              "the PPD file has control characters");
    EXPECT_EQ(reasonAgainst("*% tab \t and \xc3\xa4\n" + sPpd), "none");
}

}  // namespace
}  // namespace sizes
