// What page processing leaves in the caller's buffer.
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

class ProcessingBuffer : public testing::Test {
protected:
    TestPrinter printer;
    std::int64_t length = -1;

    // Processes a page into the first `room` of 24 bytes of value 77.
    Bytes process(const Bytes& page, int width, int height, std::size_t room = 24) {
        Bytes out(24, 77);
        errorOutputOf([&] {
            length = printer.PageProcess(printer.getHalftoneType(), page.data(), width, width,
                                         height, std::span(out).first(room));
        });
        return out;
    }
    static Bytes first(const Bytes& bytes, std::size_t size) {
        return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size)};
    }
};

TEST_F(ProcessingBuffer, HoldsBlackAsZeroAndWhiteAs255) {
    EXPECT_EQ(first(process({0, 255, 255, 0}, 4, 1), 5), (Bytes{0, 255, 255, 0, 77}));
}

TEST_F(ProcessingBuffer, HoldsTheComplementOfTheInvertedImageOnNegativePrinting) {
    printer.setNegativePrint(true);
    EXPECT_EQ(first(process({0, 255, 255, 0}, 4, 1), 5), (Bytes{0, 1, 1, 0, 77}));
}

TEST_F(ProcessingBuffer, HoldsRowsAsFarApartAsInTheImage) {
    EXPECT_EQ(first(process({255, 255, 255, 0, 0, 255}, 3, 2), 8),
              (Bytes{255, 255, 255, 77, 0, 0, 255, 77}));
}

TEST_F(ProcessingBuffer, IsNotTouchedBehindThePage) {
    const Bytes out = process(Bytes(8, 255), 4, 2);
    EXPECT_EQ(Bytes(out.begin() + 8, out.end()), Bytes(16, 77));
}

TEST_F(ProcessingBuffer, IsNotOverrunByAPageThatIsLarger) {
    EXPECT_EQ(first(process(Bytes(16, 255), 4, 4, 10), 12),
              (Bytes{255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 77, 77}));
}

TEST_F(ProcessingBuffer, IsNotOverrunByAFrameThatOutgrowsThePage) {
    cups_page_header2_t header = headerNamed("Tattoo_A6");
    printer.setPageHeader(&header);
    printer.setAntiWrinkle(1);
    // The frame's first row is the top bar, index 255 throughout.
    const Bytes out = process(Bytes(8, 255), 4, 2, 16);
    EXPECT_EQ(first(out, 16), Bytes(16, 255));
    EXPECT_EQ(Bytes(out.begin() + 16, out.end()), Bytes(8, 77));
}

// The canvas is 1181 + 24 by 1394 + 24 dots, and an odd difference leaves one dot off.
TEST_F(ProcessingBuffer, IsReportedByThePageHeightWhenAFrameMadeTheImageTaller) {
    cups_page_header2_t header = headerNamed("Tattoo_A6");
    printer.setPageHeader(&header);
    printer.setAntiWrinkle(1);
    process(Bytes(8, 255), 4, 2);
    EXPECT_EQ(printer.pimage_->GetHeight(), 1418);
    EXPECT_EQ(printer.pimage_->GetWidth(), 1204);
    EXPECT_EQ(length, 2 * 1204);
}

}  // namespace
