// One page through the printer.
#include "tests/reference/bmp.h"
#include "tests/reference/page_print.h"
#include "tests/unit/driver/print_image_log.h"
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;
using reference::PageProperties;

class PrintImage : public testing::Test {
protected:
    SpoolDumps dumps;
    TestPrinter printer;
    const bool canDump = SpoolDumps::folderIsWritable();

    std::string print(const reference::Page& page) {
        return errorOutputOf([&] {
            printer.printImage(page.rows.data(), page.header.bytesPerLine, page.header.height,
                               page.header.width);
        });
    }
    // The lines that a dump which cannot be written leaves in a log.
    std::string failedDump(const std::string& kind, std::uint64_t index) const {
        return canDump ? ""
                       : "KestoPrinter::saveImage: unable to open the file /var/spool/cups/tmp/" +
                             kind + "_<time>_" + std::to_string(index) + ".bmp\n";
    }
    void expectAsReference(const reference::Page& page, const PageProperties& properties) {
        reference::PrinterState state{{}, static_cast<long>(page_index), canDump};
        const std::uint64_t index = page_index;
        setProperties(printer, properties);
        const std::string log = withoutAddresses(print(page));
        const reference::PrintedPage expected = reference::printPage(page, properties, state);
        EXPECT_EQ(log, reference::joined(expected.log));
        for (std::size_t i = 0; i < expected.dumps.size(); ++i) {
            EXPECT_EQ(dumps.take(i == 0 ? "origin" : "dithered", index + i), expected.dumps[i]);
        }
        ASSERT_FALSE(printer.pages.empty());
        EXPECT_EQ(printer.pages.back().bits, state.finished->bytes);
    }
};

TEST_F(PrintImage, LogsEveryStepInOrder) {
    const std::string log = withoutAddresses(print(noisyPage(6, 3, 8)));
    EXPECT_EQ(
        log,
        "DEBUG:printImage: Start processing image, input width: 6, height: 3, bytes per line: 8\n"
        "DEBUG:printImage: Memory allocated successfully, size: 24 bytes\n"
        "DEBUG:printImage: Saving original image, file path will be generated based on time\n" +
            failedDump("origin", dumps.firstIndex()) +
            "DEBUG:printImage: Memory for processing result allocated successfully, size: 24 "
            "bytes\n"
            "DEBUG:PageProcess: QM dithering is disabled\n"
            "DEBUG:PageProcess: Successfully created RasterImage from array with stride 8\n"
            "DEBUG:PageProcess: Applied default dithering and increased bit depth\n"
            "DEBUG:PageProcess: negativePrint_ 0\n"
            "DEBUG:PageProcess: Filled the output buffer with processed pixels, length: 24\n"
            "DEBUG:printImage: Processed image information - pointer address: <address>, width: "
            "8, height: 3, bytes per line: 6, number of top blank lines: 0, number of bottom "
            "blank lines: 0, adjusted height: 3\n"
            "DEBUG:printImage: Saving processed image, file path will be generated based on "
            "time\n" +
            failedDump("dithered", dumps.firstIndex() + 1) +
            "DEBUG:printImage: Starting to print the processed image\n"
            "DEBUG:printImage: Freed the allocated memory, address: (nil)\n"
            "DEBUG:printImage: Freed the memory for processing result, address: <address>\n"
            "DEBUG:printImage: Image processing completed\n");
}

TEST_F(PrintImage, NamesTheProcessingBufferByTheSameAddressWhenItWorksAndWhenItIsFreed) {
    const std::string log = print(noisyPage(4, 2, 4));
    std::smatch match;
    ASSERT_TRUE(std::regex_search(log, match, std::regex("pointer address: ([0-9]+),")));
    const std::string used = match[1];
    ASSERT_TRUE(std::regex_search(log, match, std::regex("result, address: 0x([0-9a-f]+)")));
    EXPECT_EQ(std::stoull(used), std::stoull(match[1], nullptr, 16));
}

TEST_F(PrintImage, HandsTheFinishedRowsToThePrinterOnce) {
    reference::Page page = noisyPage(3, 2, 3);
    page.rows = {0, 255, 255, 255, 0, 0};
    print(page);
    const std::vector<TestPrinter::PrintedPage> expected = {{{0, 1, 1, 0, 1, 0, 0, 0}, 4, 2, 3}};
    EXPECT_EQ(printer.pages, expected);
}

TEST_F(PrintImage, HandsOnTheSizeOfTheFramedImage) {
    cups_page_header2_t header = headerNamed("Tattoo_A6");
    printer.setPageHeader(&header);
    printer.setAntiWrinkle(1);
    print(noisyPage(8, 2, 8));
    ASSERT_EQ(printer.pages.size(), 1U);
    EXPECT_EQ(printer.pages[0].width, 1204U);
    EXPECT_EQ(printer.pages[0].bytesPerLine, 1204U);
    EXPECT_EQ(printer.pages[0].height, 1418U);
}

TEST_F(PrintImage, ProcessesByTheHalftoneTypeOfThePrinter) {
    const reference::Page page = noisyPage(8, 8, 8);
    printer.setHalftoneType(DitherType::StevensonArce);
    print(page);
    EXPECT_EQ(printer.pages[0].bits,
              reference::processPage(page, {.halftoneType = 7}).finished->bytes);
}

TEST_F(PrintImage, WritesNothingToTheOutputStreamsItself) {
    const ScratchStream stream;
    *printer.getOutputStreams() = {stream.get()};
    print(noisyPage(8, 2, 8));
    EXPECT_EQ(stream.text(), "");
}

TEST_F(PrintImage, LeavesTheTemplateOfTheFinishedDump) {
    print(noisyPage(4, 1, 4));
    EXPECT_STREQ(printer.imagePath_, "/var/spool/cups/tmp/dithered_%d-%d-%d_%d_%d_%d_%ld.bmp");
}

TEST_F(PrintImage, UsesTwoDumpNumbersForEveryPage) {
    print(noisyPage(4, 1, 4));
    EXPECT_EQ(page_index, dumps.firstIndex() + 2);
    print(noisyPage(4, 1, 4));
    EXPECT_EQ(page_index, dumps.firstIndex() + 4);
}

TEST_F(PrintImage, DumpsTheRawPageAndThenTheFinishedOne) {
    reference::Page page = noisyPage(4, 2, 4);
    page.rows = {0, 100, 200, 255, 1, 128, 129, 254};
    print(page);
    const auto origin = dumps.take("origin", dumps.firstIndex());
    const auto dithered = dumps.take("dithered", dumps.firstIndex() + 1);
    ASSERT_EQ(origin.has_value(), canDump);
    ASSERT_EQ(dithered.has_value(), canDump);
    if (canDump) {
        EXPECT_EQ(*origin, reference::greyDump(page.rows, 4, 2));
        EXPECT_EQ(*dithered, reference::greyDump({0, 0, 1, 1, 0, 0, 1, 1}, 4, 2));
    }
}

TEST_F(PrintImage, OnlyReadsThePage) {
    reference::Page page = noisyPage(8, 8, 8);
    const Bytes before = page.rows;
    printer.setNegativePrint(true);
    print(page);
    EXPECT_EQ(page.rows, before);
}

TEST_F(PrintImage, AgreesWithTheReferenceAtSeveralWidths) {
    for (std::uint32_t width = 1; width <= 21; ++width) {
        SCOPED_TRACE(width);
        const PageProperties properties = {.brightness = static_cast<int>(width),
                                           .halftoneType = static_cast<int>(width % 8),
                                           .mirror = width % 2 == 0,
                                           .negative = width % 3 == 0,
                                           .rotate180 = width % 5 == 0};
        expectAsReference(noisyPage(width, 4, width, width), properties);
    }
}

TEST_F(PrintImage, AgreesWithTheReferenceOnBlankEdgesOfAllKinds) {
    for (const unsigned edges : {0U, 1U, 2U, 4U, 8U, 10U, 16U, 255U}) {
        for (const std::size_t skip : {0U, 3U, 12U, 13U}) {
            SCOPED_TRACE(testing::Message() << "edges " << edges << ", skip " << skip);
            PageProperties properties;
            properties.removeBlankEdges = edges;
            properties.skipRightPixels = skip;
            reference::Page page = noisyPage(12, 6, 12);
            std::fill(page.rows.begin(), page.rows.begin() + 24, std::uint8_t{0});
            std::fill(page.rows.begin() + 60, page.rows.end(), std::uint8_t{0});
            expectAsReference(page, properties);
        }
    }
}

}  // namespace
