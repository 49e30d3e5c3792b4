// Pages of the two stencil types.
#include "tests/reference/stencil.h"
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

constexpr int side = 20;

// Rows of pixels of all levels, as far apart as they are long.
Bytes portrait() {
    return noise(std::size_t{side} * side);
}

std::string nameOf(const testing::TestParamInfo<DitherType>& row) {
    const int number = static_cast<int>(row.param);
    return number < 0 ? "MinusOne" : std::to_string(number);
}

class AnyPage : public testing::TestWithParam<DitherType> {
protected:
    TestPrinter printer;
    std::int64_t length = -1;
    Bytes out = Bytes(std::size_t{4} * side * side, 0);

    std::string process(DitherType member, DitherType argument, const Bytes& page, int stride,
                        int width, int height) {
        printer.setHalftoneType(member);
        return errorOutputOf([&] {
            length = printer.PageProcess(argument, page.data(), stride, width, height, out);
        });
    }
    std::string process(DitherType member, DitherType argument) {
        return process(member, argument, portrait(), side, side, side);
    }
};

class StencilPage : public AnyPage {
protected:
    bool isX8() const { return GetParam() == DitherType::Tattoo_X8; }
};

TEST_P(StencilPage, TakesTheStencilPathByThePropertyWhateverWasStored) {
    printer.setUseQMDithering(false);
    const std::string log = process(GetParam(), DitherType::None);
    EXPECT_TRUE(printer.getUseQMDithering());
    EXPECT_EQ(log.find("DEBUG:PageProcess: QM dithering is enabled\n"), 0U);
}

TEST_P(StencilPage, IsTracedFromLoadingToTheBuffer) {
    EXPECT_EQ(process(GetParam(), GetParam(), Bytes(10, 200), 5, 5, 2),
              "DEBUG:PageProcess: QM dithering is enabled\n"
              "DEBUG:PageProcess: Successfully created RasterImage from array with stride 5\n"
              "DEBUG:PageProcess: Copied pixels to the output buffer for QM dithering, with "
              "stride 5, EffWidth 8\n"
              "DEBUG:PageProcess: Applied QM dithering with stride 8, width 5\n"
              "DEBUG:PageProcess: Successfully created a new RasterImage from QM dithered data\n"
              "DEBUG:PageProcess: negativePrint_ 0\n"
              "DEBUG:PageProcess: Filled the output buffer with processed pixels, length: 16\n");
    EXPECT_EQ(length, 16);
}

TEST_P(StencilPage, IsTheStencilOfTheReference) {
    process(GetParam(), GetParam());
    EXPECT_EQ(bytesOf(*printer.pimage_), reference::stencil(side, side, portrait(), isX8()));
}

TEST_P(StencilPage, IsChosenByThePropertyAndNotByTheArgument) {
    process(GetParam(), isX8() ? DitherType::Tattoo : DitherType::Tattoo_X8);
    EXPECT_EQ(bytesOf(*printer.pimage_), reference::stencil(side, side, portrait(), isX8()));
}

TEST_P(StencilPage, IsAnImageOfItsOwnWithAGreyPalette) {
    process(GetParam(), GetParam());
    EXPECT_EQ(printer.pimage_, &printer.ditheredImage_);
    EXPECT_EQ(printer.pimage_->GetPaletteColor(0), (tagRGBQUAD{0, 0, 0, 0}));
    EXPECT_EQ(printer.pimage_->GetPaletteColor(255), (tagRGBQUAD{255, 255, 255, 0}));
}

TEST_P(StencilPage, LeavesTheGreyPageInTheWorkingImage) {
    process(GetParam(), GetParam());
    EXPECT_EQ(bytesOf(printer.image_), portrait());
}

TEST_P(StencilPage, IsAdjustedAndTurnedBeforeHalftoning) {
    setProperties(printer, {.brightness = -4, .mirror = true, .rotate180 = true});
    const Bytes page = {0, 60, 120, 180, 240, 255, 30, 90};
    process(GetParam(), GetParam(), page, 4, 4, 2);
    // The rows in reverse order, 20 levels darker.
    const Bytes turned = {220, 235, 10, 70, 0, 40, 100, 160};
    EXPECT_EQ(bytesOf(*printer.pimage_), reference::stencil(4, 2, turned, isX8()));
}

TEST_P(StencilPage, IsInvertedOnNegativePrinting) {
    printer.setNegativePrint(true);
    process(GetParam(), GetParam());
    Bytes inverted = reference::stencil(side, side, portrait(), isX8());
    for (std::uint8_t& dot : inverted) {
        dot = dot == 0 ? 255 : 0;
    }
    EXPECT_EQ(bytesOf(*printer.pimage_), inverted);
}

TEST_P(StencilPage, IsItsOwnComplementInTheBufferOnNegativePrinting) {
    printer.setNegativePrint(true);
    process(GetParam(), GetParam());
    EXPECT_EQ(Bytes(out.begin(), out.begin() + side * side),
              reference::stencil(side, side, portrait(), isX8()));
}

// The pixels go to the buffer in rows of 6 bytes and are read from it in rows of 4.
TEST_P(StencilPage, IsMisreadWhereRowsAreLongerThanThePageIsWide) {
    const Bytes page = {10, 20, 30, 40, 9, 9, 50, 60, 70, 80, 9, 9, 90, 100, 110, 120, 9, 9};
    process(GetParam(), GetParam(), page, 6, 4, 3);
    const Bytes misread = {10, 20, 30, 40, 0, 0, 50, 60, 70, 80, 0, 0};
    EXPECT_EQ(bytesOf(*printer.pimage_), reference::stencil(4, 3, misread, isX8()));
}

TEST_P(StencilPage, IsFramedInWhiteMargins) {
    cups_page_header2_t header = headerNamed("Tattoo_A6");
    printer.setPageHeader(&header);
    printer.setAntiWrinkle(1);
    process(GetParam(), GetParam(), Bytes(10, 0), 5, 5, 2);
    EXPECT_EQ(printer.pimage_->GetWidth(), 1205);
    EXPECT_EQ(printer.pimage_->GetPixelIndex(0, 0), 255);
    EXPECT_EQ(printer.pimage_->GetPixelIndex(300, 300), 255);
    EXPECT_EQ(length, 2 * 1208);
}

TEST_P(StencilPage, ThatCannotBeLoadedLeavesThePageBefore) {
    process(GetParam(), GetParam());
    const Bytes before = bytesOf(*printer.pimage_);
    EXPECT_EQ(process(GetParam(), GetParam(), portrait(), side, 0, side),
              "DEBUG:PageProcess: QM dithering is enabled\n"
              "CRIT:rasterimage.CreateFromArray with grey failed!\n");
    EXPECT_EQ(length, 0);
    EXPECT_EQ(bytesOf(*printer.pimage_), before);
}

INSTANTIATE_TEST_SUITE_P(Types, StencilPage,
                         testing::Values(DitherType::Tattoo, DitherType::Tattoo_X8), nameOf);

TEST(StencilPages, OfTheTwoTypesDiffer) {
    EXPECT_NE(reference::stencil(side, side, portrait(), false),
              reference::stencil(side, side, portrait(), true));
}

class OrdinaryPage : public AnyPage {};

TEST_P(OrdinaryPage, LeavesTheStencilPathWhateverWasStored) {
    printer.setUseQMDithering(true);
    const std::string log = process(GetParam(), DitherType::Tattoo);
    EXPECT_FALSE(printer.getUseQMDithering());
    EXPECT_EQ(log.find("DEBUG:PageProcess: QM dithering is disabled\n"), 0U);
}

TEST_P(OrdinaryPage, IsTheWorkingImageAgainAfterAStencil) {
    process(DitherType::Tattoo, DitherType::Tattoo);
    process(GetParam(), GetParam());
    EXPECT_EQ(printer.pimage_, &printer.image_);
}

INSTANTIATE_TEST_SUITE_P(Types, OrdinaryPage,
                         testing::Values(DitherType::None, DitherType::StevensonArce,
                                         static_cast<DitherType>(10), static_cast<DitherType>(-1)),
                         nameOf);

}  // namespace
