// The trace file and the log lines of a page.
#include "filter/page_trace.h"

#include "tests/reference/trace.h"
#include "tests/unit/filter/test_support.h"

namespace {

constexpr const char* traceFile = "/tmp/xxxxx.log";

class PageTrace : public testing::Test {
protected:
    cups_page_header2_t header = {};

    PageTrace() { std::filesystem::remove_all(traceFile); }
    ~PageTrace() override { std::filesystem::remove_all(traceFile); }

    void trace(unsigned width, unsigned height, unsigned bytesPerLine, unsigned bitsPerPixel) {
        header.cupsWidth = width;
        header.cupsHeight = height;
        header.cupsBytesPerLine = bytesPerLine;
        header.cupsBitsPerPixel = bitsPerPixel;
        EXPECT_EQ(errorOutputOf([this] { tracePageSize(header); }), "");
    }
};

TEST_F(PageTrace, HoldsTheSizesOfThePageInOneLine) {
    trace(800, 1200, 804, 8);
    EXPECT_EQ(readFile(traceFile),
              "cupsWidth:800, cupsHeight:1200, cupsBytesPerLine:804, cupsBitsPerPixel:8\n");
}

TEST_F(PageTrace, HoldsTheLastPageOnly) {
    trace(100000, 200000, 300000, 24);
    trace(1, 2, 3, 8);
    EXPECT_EQ(readFile(traceFile),
              "cupsWidth:1, cupsHeight:2, cupsBytesPerLine:3, cupsBitsPerPixel:8\n");
}

TEST_F(PageTrace, AgreesWithTheReference) {
    trace(31, 47, 32, 8);
    reference::PageHeader page;
    page.width = 31;
    page.height = 47;
    page.bytesPerLine = 32;
    EXPECT_EQ(readFile(traceFile), reference::traceText(page));
}

TEST_F(PageTrace, IsLeftOutSilentlyWhereItCannotBeWritten) {
    std::filesystem::create_directory(traceFile);
    trace(1, 2, 3, 8);
    EXPECT_TRUE(std::filesystem::is_directory(traceFile));
}

TEST_F(PageTrace, DoesNotFollowALinkThatSomebodyPlanted) {
    const TemporaryFolder folder;
    const std::string target = folder.write("target", "kept");
    std::filesystem::create_symlink(target, traceFile);
    trace(1, 2, 3, 8);
    EXPECT_EQ(readFile(target), "kept");
}

cups_page_header2_t numberedHeader() {
    cups_page_header2_t header = {};
    header.NumCopies = 3;
    header.HWResolution[0] = 203;
    header.HWResolution[1] = 300;
    header.cupsWidth = 11;
    header.cupsHeight = 12;
    header.cupsMediaType = 13;
    header.cupsBitsPerColor = 14;
    header.cupsBitsPerPixel = 15;
    header.cupsBytesPerLine = 16;
    header.cupsColorOrder = CUPS_ORDER_PLANAR;
    header.cupsColorSpace = CUPS_CSPACE_SW;
    header.cupsCompression = 17;
    header.cupsRowCount = 18;
    header.cupsRowFeed = 19;
    header.cupsRowStep = 20;
    return header;
}

// The first two lines bring a line end of their own.
TEST(PageHeaderLog, NamesThePageAndEveryFieldInOrder) {
    const cups_page_header2_t header = numberedHeader();
    EXPECT_EQ(errorOutputOf([&] { logPageHeader(2, header); }),
              "DEBUG:PAGE: 2 3\n"
              "\n"
              "DEBUG:header.HWResolution[0]:203\n"
              "\n"
              "DEBUG:header.HWResolution[1]:300\n"
              "DEBUG:header.cupsWidth:11\n"
              "DEBUG:header.cupsHeight:12\n"
              "DEBUG:header.cupsMediaType:13\n"
              "DEBUG:header.cupsBitsPerColor:14\n"
              "DEBUG:header.cupsBitsPerPixel:15\n"
              "DEBUG:header.cupsBytesPerLine:16\n"
              "DEBUG:header.cupsColorOrder:2\n"
              "DEBUG:header.cupsColorSpace:18\n"
              "DEBUG:header.cupsCompression:17\n"
              "DEBUG:header.cupsRowCount:18\n"
              "DEBUG:header.cupsRowFeed:19\n"
              "DEBUG:header.cupsRowStep:20\n");
}

// What a damaged stream can hold: under the sanitizers a look at it as an enumerator would end.
TEST(PageHeaderLog, ShowsNumbersThatAnEnumerationDoesNotHave) {
    cups_page_header2_t header = numberedHeader();
    const unsigned number = 77777;
    std::memcpy(&header.cupsColorOrder, &number, sizeof number);
    std::memcpy(&header.cupsColorSpace, &number, sizeof number);
    const std::string log = errorOutputOf([&] { logPageHeader(1, header); });
    EXPECT_NE(log.find("DEBUG:header.cupsColorOrder:77777\nDEBUG:header.cupsColorSpace:77777\n"),
              std::string::npos);
}

TEST(PageHeaderLog, ShowsLargeNumbersAsNegativeOnes) {
    cups_page_header2_t header = numberedHeader();
    header.cupsRowStep = 0xFFFFFFFF;
    const std::string log = errorOutputOf([&] { logPageHeader(1, header); });
    EXPECT_NE(log.find("DEBUG:header.cupsRowStep:-1\n"), std::string::npos);
}

}  // namespace
