// The blocks of memory that printing takes and holds.
#include "tests/support/test_memory.h"
#include "tests/unit/driver/test_support.h"

namespace {

constexpr std::size_t width = 40;
constexpr std::size_t height = 30;

/// Looks at the memory while it is handed a page.
class WatchfulPrinter : public TestPrinter {
public:
    /// Blocks of this size in bytes are counted.
    std::size_t pageBytes = 0;
    std::ptrdiff_t single = -1;  ///< blocks of the page's size
    std::ptrdiff_t twofold = -1;

protected:
    void doPrintImage(const unsigned char*, std::size_t, std::size_t, std::size_t) override {
        single = liveBlocksOf(pageBytes);
        twofold = liveBlocksOf(2 * pageBytes);
    }
};

class PageBlocks : public testing::TestWithParam<DitherType> {
protected:
    SpoolDumps dumps;
    const std::ptrdiff_t blocksBefore = liveBlocks();

    template <typename Printer>
    void print(Printer& printer, std::size_t rows, std::size_t bytesPerLine = width) {
        const reference::Bytes page = noise(bytesPerLine * rows);
        printer.setHalftoneType(GetParam());
        errorOutputOf([&] { printer.printImage(page.data(), bytesPerLine, rows, width); });
    }
    // The working image, and on the stencil path the stencil.
    std::ptrdiff_t imagesOfThePath() const { return GetParam() == DitherType::Tattoo ? 2 : 1; }
    std::ptrdiff_t held() const { return liveBlocks() - blocksBefore; }
    std::ptrdiff_t askedForBy(TestPrinter& printer, std::size_t rows) {
        const std::ptrdiff_t before = blocksAskedFor();
        print(printer, rows);
        return blocksAskedFor() - before;
    }
};

// The scratch block is as large as the page and the processing buffer twice as large. No image has
// either size: each has a header and a palette.
TEST_P(PageBlocks, AreOneOfThePageAndOneOfTwiceThePageUntilItIsSent) {
    for (const std::size_t bytesPerLine : {width, width + 4}) {
        WatchfulPrinter printer;
        printer.pageBytes = bytesPerLine * height;
        print(printer, height, bytesPerLine);
        EXPECT_EQ(printer.single, 1);
        EXPECT_EQ(printer.twofold, 1);
        EXPECT_EQ(liveBlocksOf(printer.pageBytes), 0);
        EXPECT_EQ(liveBlocksOf(2 * printer.pageBytes), 0);
    }
}

TEST_P(PageBlocks, AreThoseOfTheImagesBetweenPagesHoweverMany) {
    TestPrinter printer;
    for (const std::size_t rows : {height, height, height + 7, height}) {
        print(printer, rows);
        EXPECT_EQ(held(), imagesOfThePath());
    }
}

// The two buffers, and the images. A threshold makes one of a bit per dot and one of a byte out of
// the page's; a stencil is made beside it.
TEST_P(PageBlocks, OfTheSameSizeAreUsedAgainForTheImagesThatStay) {
    TestPrinter printer;
    const std::ptrdiff_t made = GetParam() == DitherType::Tattoo ? 0 : 2;
    EXPECT_EQ(askedForBy(printer, height), 2 + imagesOfThePath() + made);
    EXPECT_EQ(askedForBy(printer, height), 2 + made);
    EXPECT_EQ(askedForBy(printer, height + 1), 2 + imagesOfThePath() + made);
    EXPECT_EQ(askedForBy(printer, height + 1), 2 + made);
}

TEST_P(PageBlocks, AreAllGivenBackAtTheEnd) {
    {
        TestPrinter printer;
        print(printer, height);
    }
    EXPECT_EQ(held(), 0);
}

std::string pathName(const testing::TestParamInfo<DitherType>& row) {
    return row.param == DitherType::Tattoo ? "OfAStencil" : "OfAThreshold";
}

INSTANTIATE_TEST_SUITE_P(BothPaths, PageBlocks,
                         testing::Values(DitherType::None, DitherType::Tattoo), pathName);

}  // namespace
