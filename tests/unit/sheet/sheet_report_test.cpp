#include "intake/sheet/sheet_report.h"

#include <gtest/gtest.h>

namespace intake::sheet {
namespace {

using Lines = std::vector<std::string>;

TEST(SheetReport, SaysHowManyLabelsWereFound) {
    SheetReport report;
    report.addLabels(1);
    EXPECT_EQ(report.lines(), Lines{"Found 1 label on 1 page"});
    report.addLabels(4);
    EXPECT_EQ(report.lines(), Lines{"Found 5 labels on 2 pages"});
}

TEST(SheetReport, SaysWhatIsPrintedWhole) {
    SheetReport report;
    report.addLabelPage();
    report.addUnfound(3);
    EXPECT_EQ(report.lines(), (Lines{"1 page of the label's size: printed whole",
                                     "No label is found on page 3: it is printed whole"}));
    report.addUnfound(7);
    EXPECT_EQ(report.lines().back(), "No label is found on 2 pages (3, 7): they are printed whole");
}

TEST(SheetReport, NamesTenPagesAtMost) {
    SheetReport report;
    for (unsigned page = 1; page <= 11; ++page) {
        report.addUnfound(page);
    }
    EXPECT_EQ(report.lines(), Lines{"No label is found on 11 pages (1, 2, 3, 4, 5, 6, 7, 8, 9, 10, "
                                    "...): they are printed whole"});
}

}  // namespace
}  // namespace intake::sheet
