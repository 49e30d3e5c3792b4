#include "tests/support/test_memory.h"
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

// An image of three columns and two rows.
class PixelCopy : public testing::Test {
protected:
    TestPrinter printer;
    RasterImage image;
    Bytes out = Bytes(12, 77);

    PixelCopy() {
        const Bytes pixels = {0, 1, 2, 254, 255, 1};
        image.CreateFromArray(pixels.data(), 3, 2, 8, 3, false);
    }
};

TEST_F(PixelCopy, PutsEveryRowAtItsStride) {
    printer.copyPixels(image, out, 3, 2, 5);
    EXPECT_EQ(out, (Bytes{0, 1, 2, 77, 77, 254, 255, 1, 77, 77, 77, 77}));
}

TEST_F(PixelCopy, TakesOnlyTheAreaAskedFor) {
    printer.copyPixels(image, out, 2, 1, 5);
    EXPECT_EQ(out, (Bytes{0, 1, 77, 77, 77, 77, 77, 77, 77, 77, 77, 77}));
}

TEST_F(PixelCopy, KeepsTheValuesOnNegativePrinting) {
    printer.setNegativePrint(true);
    printer.copyPixels(image, out, 3, 1, 3);
    EXPECT_EQ(Bytes(out.begin(), out.begin() + 4), (Bytes{0, 1, 2, 77}));
}

TEST_F(PixelCopy, StopsAtTheEndOfTheTarget) {
    printer.copyPixels(image, std::span(out).first(6), 3, 2, 5);
    EXPECT_EQ(out, (Bytes{0, 1, 2, 77, 77, 254, 77, 77, 77, 77, 77, 77}));
}

TEST_F(PixelCopy, OfAFinishedPageTurnsIndexOneIntoWhite) {
    printer.copyProcessedPixels(&image, out, 3, 2, 5);
    EXPECT_EQ(out, (Bytes{0, 255, 2, 77, 77, 254, 255, 255, 77, 77, 77, 77}));
}

TEST_F(PixelCopy, OfANegativePageIsTheComplement) {
    printer.setNegativePrint(true);
    printer.copyProcessedPixels(&image, out, 3, 2, 5);
    EXPECT_EQ(out, (Bytes{255, 0, 253, 77, 77, 1, 0, 0, 77, 77, 77, 77}));
}

TEST_F(PixelCopy, OfAFinishedPageTakesOnlyTheAreaAskedFor) {
    printer.copyProcessedPixels(&image, out, 1, 2, 3);
    EXPECT_EQ(out, (Bytes{0, 77, 77, 254, 77, 77, 77, 77, 77, 77, 77, 77}));
}

TEST_F(PixelCopy, OfAFinishedPageStopsAtTheEndOfTheTarget) {
    printer.copyProcessedPixels(&image, std::span(out).first(4), 3, 2, 3);
    EXPECT_EQ(out, (Bytes{0, 255, 2, 254, 77, 77, 77, 77, 77, 77, 77, 77}));
}

// Such an image still has the sizes that it was to have.
class PixelCopyOfAnImageWithoutMemory : public PixelCopy {
protected:
    PixelCopyOfAnImageWithoutMemory() {
        const NoMemory none;
        image.Create(3, 2, 8, 0);
    }
};

TEST_F(PixelCopyOfAnImageWithoutMemory, IsZeros) {
    printer.copyPixels(image, out, 3, 2, 5);
    EXPECT_EQ(out, (Bytes{0, 0, 0, 77, 77, 0, 0, 0, 77, 77, 77, 77}));
}

TEST_F(PixelCopyOfAnImageWithoutMemory,
       OfAFinishedPageIsZerosAndTheirComplementOnNegativePrinting) {
    printer.copyProcessedPixels(&image, out, 3, 1, 3);
    EXPECT_EQ(Bytes(out.begin(), out.begin() + 4), (Bytes{0, 0, 0, 77}));
    printer.setNegativePrint(true);
    printer.copyProcessedPixels(&image, out, 3, 1, 3);
    EXPECT_EQ(Bytes(out.begin(), out.begin() + 4), (Bytes{255, 255, 255, 77}));
}

}  // namespace
