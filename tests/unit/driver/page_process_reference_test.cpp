// Page processing against the reference, over widths, heights and all properties.
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Page;
using reference::PageProperties;

class EveryWidth : public testing::TestWithParam<int> {
protected:
    TestPrinter printer;

    void expectAsReference(const Page& page, const PageProperties& properties) {
        setProperties(printer, properties);
        reference::Bytes out(2 * page.rows.size(), 0);
        std::int64_t length = -1;
        const std::string log = errorOutputOf([&] {
            length = printer.PageProcess(printer.getHalftoneType(), page.rows.data(),
                                         static_cast<int>(page.header.bytesPerLine),
                                         static_cast<int>(page.header.width),
                                         static_cast<int>(page.header.height), out);
        });
        const reference::ProcessedPage expected = reference::processPage(page, properties);
        EXPECT_EQ(log, reference::joined(expected.log));
        EXPECT_EQ(length, expected.length);
        EXPECT_EQ(out, expected.buffer);
        ASSERT_TRUE(expected.finished.has_value());
        EXPECT_EQ(bytesOf(*printer.pimage_), expected.finished->bytes);
    }
};

PageProperties withSwitches(unsigned bits) {
    PageProperties properties;
    properties.mirror = (bits & 1U) != 0;
    properties.negative = (bits & 2U) != 0;
    properties.rotate180 = (bits & 4U) != 0;
    return properties;
}

TEST_P(EveryWidth, AndEverySwitchGiveTheReferencePage) {
    for (std::uint32_t width = 1; width <= 130 && !HasFailure(); ++width) {
        for (unsigned switches = 0; switches < 8; ++switches) {
            PageProperties properties = withSwitches(switches);
            properties.halftoneType = GetParam();
            SCOPED_TRACE(testing::Message() << width << " columns, switches " << switches);
            expectAsReference(noisyPage(width, width % 5 + 1, width, width + switches), properties);
        }
    }
}

TEST_P(EveryWidth, AndAnyToneGiveTheReferencePage) {
    constexpr int tones[][2] = {{1, 0},   {-1, 0},   {0, 1},      {0, -1},     {13, -21},
                                {-40, 7}, {100, 50}, {-100, 100}, {100, -100}, {-7, -49}};
    for (std::uint32_t width = 1; width <= 130 && !HasFailure(); width += 3) {
        for (const auto& tone : tones) {
            PageProperties properties = withSwitches(width % 8);
            properties.halftoneType = GetParam();
            properties.brightness = tone[0];
            properties.contrast = tone[1];
            SCOPED_TRACE(testing::Message() << width << " columns, brightness " << tone[0]
                                            << ", contrast " << tone[1]);
            expectAsReference(noisyPage(width, 4, width, width), properties);
        }
    }
}

TEST_P(EveryWidth, AndLongerRowsGiveTheReferencePage) {
    for (std::uint32_t width = 1; width <= 40 && !HasFailure(); ++width) {
        for (std::uint32_t extra = 1; extra <= 9; ++extra) {
            PageProperties properties = withSwitches(extra % 8);
            properties.halftoneType = GetParam();
            SCOPED_TRACE(testing::Message() << width << " columns and " << extra << " bytes");
            expectAsReference(noisyPage(width, 3, width + extra, width), properties);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(HalftoneTypes, EveryWidth,
                         testing::Values(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, -1));

}  // namespace
