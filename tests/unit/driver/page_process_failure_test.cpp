// Pages that cannot be loaded.
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

class UnloadablePage : public testing::Test {
protected:
    TestPrinter printer;
    std::int64_t length = -1;
    Bytes out = Bytes(16, 77);

    std::string process(int width, int height) {
        const Bytes page(8, 255);
        return errorOutputOf([&] {
            length =
                printer.PageProcess(printer.getHalftoneType(), page.data(), 4, width, height, out);
        });
    }
};

TEST_F(UnloadablePage, IsLoggedAsCriticalAndGivesNoLength) {
    EXPECT_EQ(process(0, 2),
              "DEBUG:PageProcess: QM dithering is disabled\n"
              "CRIT:rasterimage.CreateFromArray with grey failed!\n");
    EXPECT_EQ(length, 0);
}

TEST_F(UnloadablePage, LeavesAllOtherStepsOut) {
    setProperties(
        printer,
        {.brightness = 5, .mirror = true, .negative = true, .rotate180 = true, .antiWrinkle = 1});
    EXPECT_EQ(process(4, 0),
              "DEBUG:PageProcess: QM dithering is disabled\n"
              "CRIT:rasterimage.CreateFromArray with grey failed!\n");
    EXPECT_EQ(out, Bytes(16, 77));
}

TEST_F(UnloadablePage, LeavesNoImageOnAFirstPage) {
    process(0, 2);
    EXPECT_EQ(printer.pimage_, nullptr);
}

TEST_F(UnloadablePage, LeavesTheImageOfThePageBefore) {
    process(4, 2);
    const RasterImage* image = printer.pimage_;
    process(0, 2);
    ASSERT_EQ(printer.pimage_, image);
    EXPECT_EQ(bytesOf(*image), Bytes(8, 1));
    EXPECT_EQ(image->GetWidth(), 4);
    EXPECT_EQ(image->GetHeight(), 2);
}

TEST_F(UnloadablePage, IsOneOfMoreBitsThanFitIn32) {
    // 65536 × 8192 pixels of 8 bits; nothing of the page is read.
    EXPECT_NE(process(65536, 8192).find("CRIT:"), std::string::npos);
    EXPECT_EQ(length, 0);
}

TEST_F(UnloadablePage, DoesNotKeepTheNextOneFromBeingProcessed) {
    process(0, 2);
    process(4, 2);
    EXPECT_EQ(length, 8);
    EXPECT_EQ(bytesOf(*printer.pimage_), Bytes(8, 1));
}

}  // namespace
