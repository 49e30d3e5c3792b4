// Stencil pages whose finished image cannot be made.
#include "tests/support/test_memory.h"
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

class StencilFailure : public testing::TestWithParam<DitherType> {
protected:
    TestPrinter printer;
    std::int64_t length = -1;

    std::string process(const Bytes& page, int height = 4) {
        Bytes out(2 * page.size());
        printer.setHalftoneType(GetParam());
        return errorOutputOf(
            [&] { length = printer.PageProcess(GetParam(), page.data(), 8, 8, height, out); });
    }
    // The first block is the grey image's, the second the stencil's.
    std::string processWithoutMemoryForTheStencil(const Bytes& page) {
        const FailingAllocation second(2);
        return process(page);
    }
};

TEST_P(StencilFailure, IsTheLastLineOfThePage) {
    const std::string log = processWithoutMemoryForTheStencil(noise(32));
    const std::string lastLines =
        "DEBUG:PageProcess: Applied QM dithering with stride 8, width 8\n"
        "ERROR:PageProcess: Failed to create a new RasterImage from QM dithered data\n";
    ASSERT_GE(log.size(), lastLines.size());
    EXPECT_EQ(log.substr(log.size() - lastLines.size()), lastLines);
    EXPECT_EQ(length, 0);
}

TEST_P(StencilFailure, LeavesNoImageOnAFirstPage) {
    processWithoutMemoryForTheStencil(noise(32));
    EXPECT_EQ(printer.pimage_, nullptr);
}

// The page before is of another size, so that its block cannot serve this one.
TEST_P(StencilFailure, LeavesThePageBeforeAsItWas) {
    process(noise(64, 1), 8);
    const Bytes before = bytesOf(*printer.pimage_);
    processWithoutMemoryForTheStencil(noise(32, 2));
    EXPECT_EQ(printer.pimage_, &printer.ditheredImage_);
    EXPECT_EQ(bytesOf(*printer.pimage_), before);
}

TEST_P(StencilFailure, CannotComeToAPageOfTheSizeOfTheOneBefore) {
    process(noise(32, 1));
    const Bytes before = bytesOf(*printer.pimage_);
    const std::ptrdiff_t blocks = liveBlocks();
    {
        // The grey image and the stencil's are there already; the pipeline's own memory comes
        // from elsewhere.
        const NoMemory none;
        process(noise(32, 2));
    }
    EXPECT_EQ(liveBlocks(), blocks);
    EXPECT_EQ(length, 32);
    EXPECT_NE(bytesOf(*printer.pimage_), before);
}

INSTANTIATE_TEST_SUITE_P(Types, StencilFailure,
                         testing::Values(DitherType::Tattoo, DitherType::Tattoo_X8));

}  // namespace
