// Stencil pages through the printer.
#include <malloc.h>

#include "tests/unit/driver/test_support.h"

namespace {

using reference::Page;

class StencilPrint : public testing::Test {
protected:
    SpoolDumps dumps;
    TestPrinter printer;

    // Prints a page while fresh memory holds the complement of `fill`.
    void print(const Page& page, int fill) {
        mallopt(M_PERTURB, fill);
        errorOutputOf([&] {
            printer.printImage(page.rows.data(), page.header.bytesPerLine, page.header.height,
                               page.header.width);
        });
        mallopt(M_PERTURB, 0);
    }
};

TEST_F(StencilPrint, IsThatOfTheReference) {
    const Page page = noisyPage(64, 64, 64);
    printer.setHalftoneType(DitherType::Tattoo);
    print(page, 0x55);
    ASSERT_EQ(printer.pages.size(), 1U);
    EXPECT_EQ(printer.pages[0].bits,
              reference::processPage(page, {.halftoneType = 8}).finished->bytes);
}

TEST_F(StencilPrint, OfLongerRowsIsTheSameWhateverTheMemoryHeldBefore) {
    const Page page = noisyPage(64, 64, 72);
    printer.setHalftoneType(DitherType::Tattoo);
    print(page, 0x55);
    print(page, 0xFE);
    ASSERT_EQ(printer.pages.size(), 2U);
    EXPECT_TRUE(printer.pages[0] == printer.pages[1]);
}

}  // namespace
