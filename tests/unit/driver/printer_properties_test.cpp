#include <climits>

#include "tests/unit/driver/test_support.h"

struct KestoPrinter::UserData {
    int value = 0;
};

namespace {

TEST(NewPrinter, HasNoImageAndNoPageHeader) {
    TestPrinter printer;
    EXPECT_FALSE(printer.image_.IsValid());
    EXPECT_EQ(printer.pimage_, nullptr);
    EXPECT_EQ(printer.getPageHeader(), nullptr);
    EXPECT_EQ(printer.getUserData(), nullptr);
}

TEST(NewPrinter, NamesItsDumpsAfterThePrintedImage) {
    EXPECT_STREQ(TestPrinter().imagePath_, "/var/spool/cups/tmp/prnimg_%d-%d-%d_%d_%d_%d_%ld.bmp");
}

TEST(NewPrinter, KeepsItsPathTemplateIn1024Bytes) {
    EXPECT_EQ(sizeof TestPrinter().imagePath_, 1024U);
}

TEST(NewPrinter, PrintsToStandardOutputOnly) {
    TestPrinter printer;
    EXPECT_EQ(*printer.getOutputStreams(), std::list<std::FILE*>{stdout});
}

TEST(NewPrinter, HasSpeed7AndDensity8) {
    const TestPrinter printer;
    EXPECT_EQ(printer.getPrintSpeed(), 7);
    EXPECT_EQ(printer.getPrintDensity(), 8);
}

TEST(NewPrinter, ChangesNoLevels) {
    const TestPrinter printer;
    EXPECT_EQ(printer.getBrightness(), 0);
    EXPECT_EQ(printer.getContrast(), 0);
    EXPECT_EQ(printer.getHalftoneType(), DitherType::None);
    EXPECT_FALSE(printer.isNegativePrint());
}

TEST(NewPrinter, TurnsAndFramesNothing) {
    const TestPrinter printer;
    EXPECT_FALSE(printer.isMirrorPrint());
    EXPECT_FALSE(printer.isRotate180Print());
    EXPECT_EQ(printer.getAntiWrinkle(), 0);
    EXPECT_FALSE(printer.getUseQMDithering());
}

TEST(NewPrinter, RemovesNoEdges) {
    const TestPrinter printer;
    EXPECT_EQ(printer.getRemoveBlankEdges(), 0);
    EXPECT_EQ(printer.getSkipRightPixels(), 0U);
}

TEST(NewPrinter, KnowsNoMediaSizes) {
    const TestPrinter printer;
    EXPECT_EQ(printer.getMaxMediaWidth(), 0);
    EXPECT_EQ(printer.GetPrintWidth(), 0);
    EXPECT_EQ(printer.getVBarcodeOpt(), 0);
}

TEST(NewPrinter, Has300DotsPerInch) {
    EXPECT_EQ(TestPrinter().resolution_, 300);
}

struct ClampedValue {
    int given;
    int stored;
};

class PercentClamp : public testing::TestWithParam<ClampedValue> {};

TEST_P(PercentClamp, LimitsTheBrightness) {
    TestPrinter printer;
    printer.setBrightness(GetParam().given);
    EXPECT_EQ(printer.getBrightness(), GetParam().stored);
    EXPECT_EQ(printer.getContrast(), 0);
}

TEST_P(PercentClamp, LimitsTheContrast) {
    TestPrinter printer;
    printer.setContrast(GetParam().given);
    EXPECT_EQ(printer.getContrast(), GetParam().stored);
    EXPECT_EQ(printer.getBrightness(), 0);
}

INSTANTIATE_TEST_SUITE_P(Values, PercentClamp,
                         testing::Values(ClampedValue{-101, -100}, ClampedValue{-100, -100},
                                         ClampedValue{-99, -99}, ClampedValue{1, 1},
                                         ClampedValue{99, 99}, ClampedValue{100, 100},
                                         ClampedValue{101, 100}, ClampedValue{INT_MAX, 100},
                                         ClampedValue{INT_MIN, -100}));

class DensityClamp : public testing::TestWithParam<ClampedValue> {};

TEST_P(DensityClamp, LimitsThePrintDensityTo15) {
    TestPrinter printer;
    printer.setPrintDensity(GetParam().given);
    EXPECT_EQ(printer.getPrintDensity(), GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(Values, DensityClamp,
                         testing::Values(ClampedValue{-1, 0}, ClampedValue{0, 0},
                                         ClampedValue{1, 1}, ClampedValue{15, 15},
                                         ClampedValue{16, 15}, ClampedValue{INT_MIN, 0}));

struct SpeedText {
    const char* given;
    int stored;
};

class SpeedClamp : public testing::TestWithParam<SpeedText> {};

TEST_P(SpeedClamp, ReadsANumberFrom1To15) {
    TestPrinter printer;
    printer.setPrintSpeed(GetParam().given);
    EXPECT_EQ(printer.getPrintSpeed(), GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(Texts, SpeedClamp,
                         testing::Values(SpeedText{"0", 1}, SpeedText{"abc", 1}, SpeedText{"", 1},
                                         SpeedText{"-3", 1}, SpeedText{"1", 1}, SpeedText{"2", 2},
                                         SpeedText{"4.5", 4}, SpeedText{"7", 7},
                                         SpeedText{"15", 15}, SpeedText{"16", 15}));

TEST(PrinterProperty, PrintWidthIsStoredIn64Bits) {
    TestPrinter printer;
    printer.SetPrintWidth(-5000000000);
    EXPECT_EQ(printer.GetPrintWidth(), -5000000000);
}

TEST(PrinterProperty, PageHeaderIsBorrowed) {
    TestPrinter printer;
    cups_page_header2_t header = {};
    printer.setPageHeader(&header);
    EXPECT_EQ(printer.getPageHeader(), &header);
}

TEST(PrinterProperty, AntiWrinkleLevelIsNotLimited) {
    TestPrinter printer;
    for (const int level : {5, -7, 100000}) {
        printer.setAntiWrinkle(level);
        EXPECT_EQ(printer.getAntiWrinkle(), level);
    }
}

TEST(PrinterProperty, StencilSwitchIsStored) {
    TestPrinter printer;
    printer.setUseQMDithering(true);
    EXPECT_TRUE(printer.getUseQMDithering());
}

TEST(PrinterProperty, MaxMediaWidthIsNotLimited) {
    TestPrinter printer;
    printer.setMaxMediaWidth(-12);
    EXPECT_EQ(printer.getMaxMediaWidth(), -12);
    EXPECT_EQ(printer.getVBarcodeOpt(), 0);
}

TEST(PrinterProperty, BarcodeOptionIsNotLimited) {
    TestPrinter printer;
    printer.setVBarcodeOpt(77);
    EXPECT_EQ(printer.getVBarcodeOpt(), 77);
    EXPECT_EQ(printer.getMaxMediaWidth(), 0);
}

TEST(PrinterProperty, HalftoneTypeIsNotLimited) {
    TestPrinter printer;
    for (const int type : {9, 10, -1}) {
        printer.setHalftoneType(static_cast<DitherType>(type));
        EXPECT_EQ(static_cast<int>(printer.getHalftoneType()), type);
    }
}

TEST(PrinterProperty, SwitchesAreIndependent) {
    TestPrinter printer;
    printer.setNegativePrint(true);
    EXPECT_TRUE(printer.isNegativePrint() && !printer.isMirrorPrint() &&
                !printer.isRotate180Print());
    printer.setNegativePrint(false);
    printer.setMirrorPrint(true);
    EXPECT_TRUE(!printer.isNegativePrint() && printer.isMirrorPrint() &&
                !printer.isRotate180Print());
    printer.setMirrorPrint(false);
    printer.setRotate180Print(true);
    EXPECT_TRUE(!printer.isNegativePrint() && !printer.isMirrorPrint() &&
                printer.isRotate180Print());
}

TEST(PrinterProperty, BlankEdgeBitsAreStoredAsGiven) {
    TestPrinter printer;
    printer.setRemoveBlankEdges(0xF5);
    EXPECT_EQ(printer.getRemoveBlankEdges(), 0xF5);
}

TEST(PrinterProperty, SkippedColumnsAreNotLimited) {
    TestPrinter printer;
    printer.setSkipRightPixels(SIZE_MAX);
    EXPECT_EQ(printer.getSkipRightPixels(), SIZE_MAX);
}

TEST(PrinterProperty, UserDataIsHandedBack) {
    TestPrinter printer;
    KestoPrinter::UserData data;
    printer.setUserData(&data);
    EXPECT_EQ(printer.getUserData(), &data);
}

}  // namespace
