// The models of the driver and what their printers take.
#include "sizes/printer_model.h"

#include <gtest/gtest.h>

namespace sizes {
namespace {

TEST(PrinterModel, IsFoundByItsName) {
    ASSERT_NE(findModel("label300"), nullptr);
    EXPECT_EQ(findModel("label300")->dpi, 300);
    EXPECT_EQ(findModel("label300")->pcFileName, "KSTL300.PPD");
    EXPECT_EQ(findModel("label203mm")->pcFileName, "KSTL203M.PPD");
    EXPECT_EQ(findModel("label300mm")->pcFileName, "KSTL300M.PPD");
    EXPECT_EQ(findModel("label300mm")->dpi, 300);
    EXPECT_EQ(findModel("stencil300")->pcFileName, "KSTS300.PPD");
    EXPECT_EQ(findModel("label600"), nullptr);
    EXPECT_EQ(findModel(""), nullptr);
    EXPECT_EQ(findModel("Label203"), nullptr);
}

TEST(PrinterModel, IsFoundByItsDescription) {
    ASSERT_NE(findModelOfDescription("KSTL203.PPD"), nullptr);
    EXPECT_EQ(findModelOfDescription("KSTL203.PPD")->name, "label203");
    EXPECT_EQ(findModelOfDescription("ksts300.ppd")->name, "stencil300");
    EXPECT_EQ(findModelOfDescription("KSTL203"), nullptr);
    EXPECT_EQ(findModelOfDescription("KSTL203.PPD2"), nullptr);
}

TEST(PrinterModel, ForLabelsAt203DpiIsTheDefault) {
    EXPECT_EQ(printerModels().front().name, "label203");
    EXPECT_EQ(printerModels().front().dpi, 203);
}

TEST(Fit, IsUprightWithinTheReach) {
    const Reach reach = findModel("label203")->reach;
    EXPECT_EQ(fitOf(inMillimetres(100, 150), reach), Fit::Upright);
    EXPECT_EQ(fitOf(inMillimetres(105, 148), reach), Fit::Upright);
    EXPECT_EQ(fitOf(inInches(4.65, 100), reach), Fit::Upright);
    EXPECT_EQ(fitOf(inMillimetres(118.11, 2540), reach), Fit::Upright);
}

TEST(Fit, IsTurnedWhereTheLabelIsTooWideOnlyAsItIs) {
    const Reach reach = findModel("label300")->reach;
    EXPECT_EQ(fitOf(inMillimetres(150, 100), reach), Fit::Turned);
    EXPECT_EQ(fitOf(inInches(6, 4), reach), Fit::Turned);
}

TEST(Fit, IsNoneOfOfficePaperInALabelPrinter) {
    for (const char* name : {"label203", "label300"}) {
        const Reach reach = findModel(name)->reach;
        EXPECT_EQ(fitOf(inMillimetres(210, 297), reach), Fit::None);
        EXPECT_EQ(fitOf(inInches(8.5, 11), reach), Fit::None);
        EXPECT_EQ(fitOf(inMillimetres(297, 210), reach), Fit::None);
        EXPECT_EQ(fitOf(inMillimetres(100, 2541), reach), Fit::None);
    }
}

TEST(Fit, IsUprightOfOfficePaperInAStencilPrinter) {
    const Reach reach = findModel("stencil300")->reach;
    EXPECT_EQ(fitOf(inMillimetres(210, 297), reach), Fit::Upright);
    EXPECT_EQ(fitOf(inInches(8.5, 11), reach), Fit::Upright);
    EXPECT_EQ(fitOf(inInches(8.6, 100), reach), Fit::Upright);
    EXPECT_EQ(fitOf(inInches(8.7, 8.5), reach), Fit::Turned);
    EXPECT_EQ(fitOf(inInches(8.7, 8.7), reach), Fit::None);
}

}  // namespace
}  // namespace sizes
