// Pages of the two stencil types.
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

class StencilPage : public testing::TestWithParam<DitherType> {
protected:
    TestPrinter printer;
    std::int64_t length = -1;

    std::string process(DitherType member, DitherType argument) {
        const Bytes page(16, 255);
        Bytes out(32);
        printer.setHalftoneType(member);
        return errorOutputOf(
            [&] { length = printer.PageProcess(argument, page.data(), 4, 4, 4, out); });
    }
};

TEST_P(StencilPage, TakesTheStencilPathByThePropertyWhateverWasStored) {
    printer.setUseQMDithering(false);
    const std::string log = process(GetParam(), DitherType::None);
    EXPECT_TRUE(printer.getUseQMDithering());
    EXPECT_EQ(log.find("DEBUG:PageProcess: QM dithering is enabled\n"), 0U);
}

TEST_P(StencilPage, IsReportedAndNotPrintedAsLongAsThereIsNoStencilHalftoning) {
    process(DitherType::None, DitherType::None);
    const std::string log = process(GetParam(), GetParam());
    EXPECT_NE(log.find("WARN:PageProcess: stencil halftoning ("), std::string::npos);
    EXPECT_NE(log.find(kestoHalftoneTypeToStr(GetParam())), std::string::npos);
    EXPECT_EQ(printer.pimage_, nullptr);
    EXPECT_EQ(length, 0);
}

INSTANTIATE_TEST_SUITE_P(Types, StencilPage,
                         testing::Values(DitherType::Tattoo, DitherType::Tattoo_X8));

class OrdinaryPage : public StencilPage {};

TEST_P(OrdinaryPage, LeavesTheStencilPathWhateverWasStored) {
    printer.setUseQMDithering(true);
    const std::string log = process(GetParam(), DitherType::Tattoo);
    EXPECT_FALSE(printer.getUseQMDithering());
    EXPECT_EQ(log.find("DEBUG:PageProcess: QM dithering is disabled\n"), 0U);
    EXPECT_EQ(printer.pimage_, &printer.image_);
}

INSTANTIATE_TEST_SUITE_P(Types, OrdinaryPage,
                         testing::Values(DitherType::None, DitherType::StevensonArce,
                                         static_cast<DitherType>(10),
                                         static_cast<DitherType>(-1)));

}  // namespace
