// Pages for whose buffers there is no memory.
#include "tests/support/test_memory.h"
#include "tests/unit/driver/test_support.h"

namespace {

class PageWithoutMemory : public testing::Test {
protected:
    SpoolDumps dumps;
    TestPrinter printer;

    // Prints a page without columns whose `ordinal`th buffer finds no memory.
    std::string printWithoutBuffer(int ordinal) {
        const unsigned char pixel = 0;
        return errorOutputOf([&] {
            const FailingAllocation failure(ordinal);
            printer.printImage(&pixel, 4096, 1, 0);
        });
    }
};

TEST_F(PageWithoutMemory, ForItsFirstBufferIsGivenUpAtOnce) {
    EXPECT_EQ(printWithoutBuffer(1),
              "DEBUG:printImage: Start processing image, input width: 0, height: 1, bytes per "
              "line: 4096\n"
              "ERROR:printImage: Memory allocation failed, unable to process image, exiting "
              "processing\n"
              "DEBUG:printImage: Image processing completed\n");
    EXPECT_TRUE(printer.pages.empty());
    EXPECT_EQ(page_index, dumps.firstIndex());
}

TEST_F(PageWithoutMemory, ForItsSecondBufferIsGivenUpAfterTheRawDump) {
    const std::string log = printWithoutBuffer(2);
    const std::size_t error = log.find("ERROR:");
    ASSERT_NE(error, std::string::npos);
    EXPECT_EQ(log.substr(error),
              "ERROR:printImage: Memory allocation for processing result failed, unable to "
              "continue processing\n"
              "DEBUG:printImage: Freed the allocated memory, address: (nil)\n"
              "DEBUG:printImage: Image processing completed\n");
    EXPECT_TRUE(printer.pages.empty());
    EXPECT_EQ(page_index, dumps.firstIndex() + 1);
}

constexpr std::size_t side = 40;
constexpr int mostBuffers = 60;  // more than a page asks for

// What a printer of its own prints and logs of a page whose `ordinal`th buffer finds no memory.
struct Attempt {
    Attempt(const reference::Bytes& page, int ordinal) {
        TestPrinter printer;
        log = errorOutputOf([&] {
            const FailingAllocation failure(ordinal);
            printer.printImage(page.data(), side, side, side);
        });
        pages = printer.pages;
        outcome = printer.getPageOutcome();
    }

    KestoPrinter::PageOutcome outcome;
    std::vector<TestPrinter::PrintedPage> pages;
    std::string log;
};

// A page is as large as it says or not printed: where the halftone cannot be unpacked to a byte
// per pixel, its rows are too short for that.
TEST_F(PageWithoutMemory, ForAnyOfItsBuffersIsPrintedInFullOrNotAtAll) {
    const reference::Bytes page = noise(side * side);
    int printed = 0;
    for (int ordinal = 1; ordinal <= mostBuffers; ++ordinal) {
        for (const auto& finished : Attempt(page, ordinal).pages) {
            ++printed;
            EXPECT_EQ(finished.bits.size(), side * side) << ordinal;
        }
    }
    EXPECT_GT(printed, 0);
    EXPECT_LT(printed, mostBuffers);
}

TEST_F(PageWithoutMemory, ForItsHalftoneIsPrintedWithoutOneAndThatIsSaid) {
    const reference::Bytes page = noise(side * side);
    int unhalftoned = 0;
    for (int ordinal = 1; ordinal <= mostBuffers; ++ordinal) {
        const Attempt attempt(page, ordinal);
        const bool grey = attempt.pages.size() == 1 && attempt.pages[0].bits == page;
        unhalftoned += grey ? 1 : 0;
        EXPECT_EQ(
            attempt.log.find("ERROR:PageProcess: The page is printed without a halftone: "
                             "RasterImage::Create can't allocate memory\n") != std::string::npos,
            grey)
            << ordinal;
        EXPECT_EQ(attempt.outcome == KestoPrinter::PageOutcome::WithoutHalftone, grey) << ordinal;
        EXPECT_EQ(attempt.outcome == KestoPrinter::PageOutcome::LeftOut, attempt.pages.empty())
            << ordinal;
    }
    EXPECT_EQ(unhalftoned, 1);
}

// Of either path, with every step that makes an image: where one is lost, nothing is printed, and
// above all not the page before.
TEST_F(PageWithoutMemory, ForAStepOfALaterPageNeverPrintsAnotherPageInItsPlace) {
    const reference::Bytes first = noise(side * side, 1);
    const reference::Bytes second = noise(side * side, 2);
    for (const DitherType type : {DitherType::None, DitherType::Tattoo}) {
        TestPrinter good;
        setProperties(good,
                      {.halftoneType = static_cast<int>(type), .mirror = true, .rotate180 = true});
        errorOutputOf([&] { good.printImage(second.data(), side, side, side); });
        int leftOut = 0;
        for (int ordinal = 1; ordinal <= mostBuffers; ++ordinal) {
            TestPrinter other;
            setProperties(
                other, {.halftoneType = static_cast<int>(type), .mirror = true, .rotate180 = true});
            errorOutputOf([&] {
                other.printImage(first.data(), side, side, side);
                const FailingAllocation failure(ordinal);
                other.printImage(second.data(), side, side, side);
            });
            const auto outcome = other.getPageOutcome();
            EXPECT_NE(outcome, KestoPrinter::PageOutcome::Repeated) << ordinal;
            if (outcome == KestoPrinter::PageOutcome::LeftOut) {
                ++leftOut;
                EXPECT_EQ(other.pages.size(), 1U) << ordinal;
            } else if (outcome == KestoPrinter::PageOutcome::Printed) {
                ASSERT_EQ(other.pages.size(), 2U) << ordinal;
                EXPECT_EQ(other.pages[1], good.pages[0]) << ordinal;
            }
        }
        EXPECT_GE(leftOut, 4);  // the two buffers, the turned and the mirrored image
    }
}

}  // namespace
