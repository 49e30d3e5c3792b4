// A finished page as TSPL.
#include "filter/tspl_printer.h"

#include <type_traits>

#include "tests/reference/tspl.h"
#include "tests/unit/filter/test_support.h"

namespace {

using reference::Bytes;

static_assert(std::is_base_of_v<KestoPrinter, TsplPrinter>);
static_assert(std::is_abstract_v<KestoPrinter>);
static_assert(std::has_virtual_destructor_v<KestoPrinter>);
static_assert(sizeof(TsplPrinter) == sizeof(KestoPrinter), "no data members of its own");

class OpenTsplPrinter : public TsplPrinter {
public:
    using TsplPrinter::doPrintImage;
};

class TsplPage : public testing::Test {
protected:
    TsplPage() {
        header.NumCopies = 1;
        *printer.getOutputStreams() = {stream.get()};
        printer.setPageHeader(&header);
        sPrinter = &printer;
    }
    ~TsplPage() override { sPrinter = nullptr; }

    std::string print(const Bytes& pixels, std::size_t bytesPerLine, std::size_t height,
                      std::size_t width) {
        printer.doPrintImage(pixels.data(), bytesPerLine, height, width);
        return stream.text();
    }

    ScratchStream stream;
    cups_page_header2_t header = {};
    OpenTsplPrinter printer;
};

std::string command(const std::string& head, const Bytes& data, const std::string& copies = "1") {
    return head + std::string(data.begin(), data.end()) + "\r\nPRINT 1," + copies + "\r\n";
}

TEST_F(TsplPage, OfEightBlackPixelsIsOneByteOfOnes) {
    EXPECT_EQ(print(Bytes(8, 0), 8, 1, 8), command("BITMAP 0,0,1,1,0,", {0xFF}));
}

TEST_F(TsplPage, OfEightWhitePixelsIsAZeroByte) {
    EXPECT_EQ(print(Bytes(8, 255), 8, 1, 8), command("BITMAP 0,0,1,1,0,", {0x00}));
}

TEST_F(TsplPage, FillsTheLastByteOfARowWithOnes) {
    EXPECT_EQ(print(Bytes(12, 1), 12, 1, 10), command("BITMAP 0,0,2,1,0,", {0x00, 0x3F}));
}

TEST_F(TsplPage, HasTheFirstPixelInTheHighestBit) {
    Bytes pixels(12, 7);
    pixels[0] = 0;
    EXPECT_EQ(print(pixels, 12, 1, 12), command("BITMAP 0,0,2,1,0,", {0x80, 0x0F}));
}

TEST_F(TsplPage, SetsABitForNothingButZero) {
    EXPECT_EQ(print({0, 1, 0, 254, 255, 0, 128, 0}, 8, 1, 8),
              command("BITMAP 0,0,1,1,0,", {0b10100101}));
}

TEST_F(TsplPage, StartsEachRowInAByteOfItsOwn) {
    EXPECT_EQ(print({0, 1, 1, 1, 1, 1, 1, 0}, 4, 2, 4), command("BITMAP 0,0,1,2,0,", {0x8F, 0x1F}));
}

// Image rows of ten pixels, 12 bytes apart, with black dots in the padding and at a few places.
// Printed row 1 starts at byte 10 and row 2 at byte 20.
TEST_F(TsplPage, LeansWhereTheWidthIsNoMultipleOfFour) {
    const Bytes pixels = {0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0, 0,  // printed row 0, then row 1:
                          1, 0, 1, 1, 1, 1, 1, 1, 0, 1, 1, 0,  // row 2 from the third 1, 1
                          1, 1, 1, 1, 1, 0, 1, 1, 1, 1, 0, 0};
    EXPECT_EQ(print(pixels, 12, 3, 10),
              command("BITMAP 0,0,2,3,0,", {0b10000000, 0b00111111,     // bytes 0 to 9
                                            0b11010000, 0b00111111,     // bytes 10 to 19
                                            0b10010000, 0b01111111}));  // bytes 20 to 29
}

TEST_F(TsplPage, TakesNoNoticeOfTheRowLength) {
    const Bytes pixels = noise(64);
    const std::string once = print(pixels, 8, 4, 8);
    EXPECT_EQ(print(pixels, 99, 4, 8), once + once);
}

TEST_F(TsplPage, WithoutRowsHasNoData) {
    EXPECT_EQ(print({}, 8, 0, 8), command("BITMAP 0,0,1,0,0,", {}));
}

TEST_F(TsplPage, IsPrintedAsOftenAsItsHeaderSays) {
    header.NumCopies = 2;
    EXPECT_EQ(print(Bytes(8, 0), 8, 1, 8), command("BITMAP 0,0,1,1,0,", {0xFF}, "2"));
}

TEST_F(TsplPage, IsPrintedZeroTimesWhenItsHeaderSaysSo) {
    header.NumCopies = 0;
    EXPECT_EQ(print(Bytes(8, 0), 8, 1, 8), command("BITMAP 0,0,1,1,0,", {0xFF}, "0"));
}

TEST_F(TsplPage, HasBitmapSizesInBytesAndRows) {
    const std::string text = print(Bytes(3 * 17, 1), 17, 3, 17);
    EXPECT_EQ(text.substr(0, 17), "BITMAP 0,0,3,3,0,");
    EXPECT_EQ(text.size(), 17U + 9 + 2 + std::string("PRINT 1,1\r\n").size());
}

TEST_F(TsplPage, GoesToEveryStreamAlike) {
    const ScratchStream recording;
    printer.getOutputStreams()->push_back(recording.get());
    const std::string text = print(noise(256), 16, 16, 16);
    EXPECT_EQ(recording.text(), text);
}

TEST_F(TsplPage, IsThatOfTheReferenceAtEveryWidth) {
    std::string expected;
    std::string printed;
    for (std::uint32_t width = 1; width <= 130; ++width) {
        Bytes pixels = noise(std::size_t{width} * 5, width);
        for (std::uint8_t& pixel : pixels) {
            pixel &= 1U;
        }
        const reference::GreyImage image = reference::imageFromPacked(pixels, width, 5);
        header.NumCopies = width;
        printed = print(image.bytes, image.stride, image.height, image.width);
        expected += reference::bitmapCommand(image) + reference::printCommand(width);
    }
    EXPECT_EQ(printed, expected);
}

TEST_F(TsplPage, IsSentByPrintImage) {
    const SpoolDumps dumps;
    reference::Page page = noisyPage(8, 1, 8);
    page.rows = {0, 0, 0, 0, 255, 255, 255, 0};
    errorOutputOf([&] { printer.printImage(page.rows.data(), 8, 1, 8); });
    EXPECT_EQ(stream.text(), command("BITMAP 0,0,1,1,0,", {0b11110001}));
}

TEST_F(TsplPage, HasNoDotOnNegativePrinting) {
    const SpoolDumps dumps;
    const reference::Page page = noisyPage(16, 4, 16);
    printer.setNegativePrint(true);
    errorOutputOf([&] { printer.printImage(page.rows.data(), 16, 4, 16); });
    EXPECT_EQ(stream.text(), command("BITMAP 0,0,2,4,0,", Bytes(8, 0)));
}

}  // namespace
