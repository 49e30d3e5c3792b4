// Pages for whose turned or mirrored image there is no memory.
#include <tuple>

#include "tests/support/test_memory.h"
#include "tests/unit/driver/test_support.h"

namespace {

constexpr std::size_t width = 40;

enum class Turn { Mirror, Rotate180 };

/// How the page is turned, and how far apart its rows are.
class TurnedPageWithoutMemory
    : public testing::TestWithParam<std::tuple<Turn, DitherType, std::size_t>> {
protected:
    SpoolDumps dumps;
    TestPrinter printer;

    TurnedPageWithoutMemory() {
        const auto [turn, type, bytesPerLine] = GetParam();
        printer.setMirrorPrint(turn == Turn::Mirror);
        printer.setRotate180Print(turn == Turn::Rotate180);
        printer.setHalftoneType(type);
    }
    std::string print(std::size_t height) {
        const std::size_t bytesPerLine = std::get<2>(GetParam());
        const reference::Bytes page = noise(bytesPerLine * height);
        return errorOutputOf([&] { printer.printImage(page.data(), bytesPerLine, height, width); });
    }
    // Of the blocks of a page that is not as large as the one before, the first is the scratch
    // block, the second the processing buffer, the third the image and the fourth the turned one.
    std::string printWithoutMemoryForTheTurn(std::size_t height) {
        const FailingAllocation fourth(4);
        return print(height);
    }
    // By what the log says and by what the printer says.
    bool isLeftOut(const std::string& log) const {
        const bool said = log.find(
                              "\nERROR:PageProcess: The image of the page is lost: "
                              "RasterImage::Create can't allocate memory\n") != std::string::npos;
        EXPECT_EQ(printer.getPageOutcome() == KestoPrinter::PageOutcome::LeftOut, said);
        return said;
    }
};

TEST_P(TurnedPageWithoutMemory, IsLeftOutAndThatIsSaidWhenItIsTheFirst) {
    EXPECT_TRUE(isLeftOut(printWithoutMemoryForTheTurn(20)));
    EXPECT_TRUE(printer.pages.empty());
    EXPECT_EQ(page_index, dumps.firstIndex() + 1);
}

TEST_P(TurnedPageWithoutMemory, IsLeftOutAndThatIsSaidBehindOthers) {
    EXPECT_FALSE(isLeftOut(print(20)));
    EXPECT_TRUE(isLeftOut(printWithoutMemoryForTheTurn(21)));
    EXPECT_EQ(printer.pages.size(), 1U);
    EXPECT_EQ(page_index, dumps.firstIndex() + 3);
}

TEST_P(TurnedPageWithoutMemory, LeavesTheNextOneAsItIs) {
    print(22);
    printWithoutMemoryForTheTurn(21);
    print(22);
    ASSERT_EQ(printer.pages.size(), 2U);
    EXPECT_TRUE(printer.pages[0] == printer.pages[1]);
}

std::string rowName(const testing::TestParamInfo<TurnedPageWithoutMemory::ParamType>& row) {
    const auto [turn, type, bytesPerLine] = row.param;
    return std::string(turn == Turn::Mirror ? "Mirrored" : "Rotated") +
           (type == DitherType::Tattoo ? "Stencil" : "Threshold") +
           (bytesPerLine > width ? "WithGaps" : "WithoutGaps");
}

INSTANTIATE_TEST_SUITE_P(AllWays, TurnedPageWithoutMemory,
                         testing::Combine(testing::Values(Turn::Mirror, Turn::Rotate180),
                                          testing::Values(DitherType::None, DitherType::Tattoo),
                                          testing::Values(width, width + 4)),
                         rowName);

}  // namespace
