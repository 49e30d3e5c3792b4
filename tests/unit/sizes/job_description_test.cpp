// The descriptions that give one job a page of exactly its dots. That CUPS's converters make these
// dots of them is tried in tests/ppd.
#include "sizes/job_description.h"

#include <gtest/gtest.h>

namespace sizes {
namespace {

constexpr const char* sQueue =
    "*PPD-Adobe: \"4.3\"\n"
    "*OpenUI *PageSize/Media Size: PickOne\n"
    "*DefaultPageSize: A4\n"
    "*PageSize A4/A4: \"<</PageSize[595 842]>>setpagedevice\"\n"
    "*PageSize A5/A5: \"<</PageSize[420\n595]>>setpagedevice\"\n"
    "*CloseUI: *PageSize\n"
    "*DefaultPageRegion: A4\n"
    "*PageRegion A4/A4: \"a\"\n"
    "*PageRegion A5/A5: \"b\"\n"
    "*DefaultImageableArea: A4\n"
    "*ImageableArea A4/A4: \"0 0 595 842\"\n"
    "*ImageableArea A5/A5: \"0 0 420 595\"\n"
    "*DefaultPaperDimension: A4\n"
    "*PaperDimension A4/A4: \"595 842\"\n"
    "*PaperDimension A5/A5: \"420 595\"\n"
    "*MaxMediaWidth: \"600\"\n"
    "*MaxMediaHeight: \"7200\"\n"
    "*CustomPageSize True: \"pop\"\n"
    "*ParamCustomPageSize Width: 1 points 4 600\n"
    "*VariablePaperSize: True\n"
    "*NonUIOrderDependency: 10 AnySetup *CustomPageSize True\n"
    "*NonUIOrderDependency: 10 AnySetup *Other\n"
    "*de.CustomPageSize True/Eigene: \"\"\n"
    "*DefaultDarkness: 8\n"
    "*de.PageSize A4/A4: \"\"\n"
    "*de.PageSize A5/A5: \"\"\n";

std::string queueWith(const std::string& paper, const std::string& area) {
    const std::string code = "\"<</PageSize[" + paper + "]/ImagingBBox null>>setpagedevice\"\n";
    return "*PPD-Adobe: \"4.3\"\n"
           "*OpenUI *PageSize/Media Size: PickOne\n"
           "*DefaultPageSize: label\n"
           "*PageSize label/label: " +
           code +
           "*CloseUI: *PageSize\n"
           "*DefaultPageRegion: label\n"
           "*PageRegion label/label: " +
           code +
           "*DefaultImageableArea: label\n"
           "*ImageableArea label/label: \"" +
           area +
           "\"\n"
           "*DefaultPaperDimension: label\n"
           "*PaperDimension label/label: \"" +
           paper +
           "\"\n"
           "*NonUIOrderDependency: 10 AnySetup *Other\n"
           "*DefaultDarkness: 8\n"
           "*de.PageSize label/label: \"\"\n";
}

// 136 x 301 dots at 300 dpi.
constexpr LabelPage sLabel{{136, 301}, {32.64, 72.24}};

TEST(JobDescription, OffersTheExactPageAloneForTheLayout) {
    EXPECT_EQ(jobDescription(sQueue, sLabel, "label", JobStep::Layout),
              queueWith("32.64 72.24", "0 0 32.64 72.24"));
}

TEST(JobDescription, HasPaperOfWholePointsForPoppler) {
    EXPECT_EQ(jobDescription(sQueue, sLabel, "label", JobStep::Poppler),
              queueWith("32 72", "0 -0.24 32.64 72"));
}

TEST(JobDescription, HasPaperOfAWholeHeightForGhostscript) {
    EXPECT_EQ(jobDescription(sQueue, sLabel, "label", JobStep::Ghostscript),
              queueWith("32.64 72", "0 0 32.64 72.24"));
}

TEST(JobDescription, RoundsTheHeightForGhostscriptToTheNearestPoint) {
    EXPECT_EQ(jobDescription(sQueue, {{136, 303}, {32.64, 72.72}}, "label", JobStep::Ghostscript),
              queueWith("32.64 73", "0 0 32.64 72.72"));
}

// 24.48 is 2 % off 24.
TEST(JobDescription, HasTheExactPaperForGhostscriptWhereAWholeHeightWouldNotBeFound) {
    EXPECT_EQ(jobDescription(sQueue, {{136, 102}, {32.64, 24.48}}, "label", JobStep::Ghostscript),
              queueWith("32.64 24.48", "0 0 32.64 24.48"));
}

// 1176 x 1772 dots are 282.24 x 425.28 points; 800 x 1200 dots are whole.
TEST(JobDescription, HasNoMarginsWhereThePointsAreWhole) {
    const LabelPage page{{800, 1200}, {192, 288}};
    for (JobStep step : {JobStep::Layout, JobStep::Ghostscript, JobStep::Poppler}) {
        EXPECT_EQ(jobDescription(sQueue, page, "label", step), queueWith("192 288", "0 0 192 288"));
    }
}

// As a file holds it, this width is 284.
TEST(JobDescription, TakesThePointsForWholeThatAreWholeInTheFile) {
    const LabelPage page{{800, 1200}, {283.999999, 288.000001}};
    EXPECT_EQ(jobDescription(sQueue, page, "label", JobStep::Poppler),
              queueWith("284 288", "0 0 284 288"));
}

TEST(JobDescription, OfAFileWithoutPageSizesIsThatFile) {
    const std::string text = "*PPD-Adobe: \"4.3\"\n*NickName: \"A\"\n\nrubbish";
    EXPECT_EQ(jobDescription(text, sLabel, "label", JobStep::Layout), text);
    EXPECT_EQ(jobDescription("", sLabel, "label", JobStep::Layout), "");
}

}  // namespace
}  // namespace sizes
