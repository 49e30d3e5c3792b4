// Pages that cannot be processed: the printer goes on with what it has.
#include "tests/unit/driver/print_image_log.h"
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

class FailedPage : public testing::Test {
protected:
    SpoolDumps dumps;
    TestPrinter printer;

    std::string print(std::size_t width) {
        const Bytes page(8, 255);
        return errorOutputOf([&] { printer.printImage(page.data(), 4, 2, width); });
    }
    static bool holds(const std::string& log, const std::string& line) {
        return log.find(line + "\n") != std::string::npos;
    }
};

TEST_F(FailedPage, IsNotPrintedWhenItIsTheFirst) {
    const std::string log = print(0);
    EXPECT_TRUE(holds(log, "CRIT:rasterimage.CreateFromArray with grey failed!"));
    EXPECT_TRUE(holds(log, "ERROR:printImage: pimage is NULL, unable to print the image"));
    EXPECT_TRUE(printer.pages.empty());
    EXPECT_EQ(printer.getPageOutcome(), KestoPrinter::PageOutcome::LeftOut);
}

TEST_F(FailedPage, IsLoggedToItsEnd) {
    const std::string log = withoutAddresses(print(0));
    const std::size_t end = log.find("DEBUG:printImage: Starting to print the processed image\n");
    ASSERT_NE(end, std::string::npos);
    EXPECT_EQ(log.substr(end),
              "DEBUG:printImage: Starting to print the processed image\n"
              "ERROR:printImage: pimage is NULL, unable to print the image\n"
              "DEBUG:printImage: Freed the allocated memory, address: (nil)\n"
              "DEBUG:printImage: Freed the memory for processing result, address: <address>\n"
              "DEBUG:printImage: Image processing completed\n");
}

TEST_F(FailedPage, HasNoFinishedDumpWhenItIsTheFirst) {
    print(0);
    EXPECT_EQ(page_index, dumps.firstIndex() + 1);
    EXPECT_FALSE(dumps.take("dithered", dumps.firstIndex() + 1).has_value());
}

TEST_F(FailedPage, RepeatsThePageBefore) {
    print(4);
    const std::string log = print(0);
    EXPECT_TRUE(holds(log, "CRIT:rasterimage.CreateFromArray with grey failed!"));
    EXPECT_FALSE(holds(log, "ERROR:printImage: pimage is NULL, unable to print the image"));
    ASSERT_EQ(printer.pages.size(), 2U);
    EXPECT_EQ(printer.pages[1], (TestPrinter::PrintedPage{Bytes(8, 1), 4, 2, 4}));
    EXPECT_EQ(printer.getPageOutcome(), KestoPrinter::PageOutcome::Repeated);
}

TEST_F(FailedPage, DumpsThePageBeforeAgain) {
    print(4);
    const auto finished = dumps.take("dithered", dumps.firstIndex() + 1);
    print(0);
    EXPECT_EQ(page_index, dumps.firstIndex() + 4);
    EXPECT_EQ(dumps.take("dithered", dumps.firstIndex() + 3), finished);
}

TEST_F(FailedPage, DoesNotStopTheNextOne) {
    print(0);
    print(4);
    EXPECT_EQ(printer.pages.size(), 1U);
    EXPECT_EQ(printer.getPageOutcome(), KestoPrinter::PageOutcome::Printed);
}

}  // namespace
