// The pages of a job, from a raster file.
#include "filter/print_job.h"
#include "tests/reference/tspl.h"
#include "tests/unit/filter/test_support.h"

namespace {

using reference::Page;

constexpr const char* traceFile = "/tmp/xxxxx.log";

QueueText labelQueue() {
    return QueueText()
        .sizes({{"w288h432", 288, 432}})
        .option("PaperType", {"LabelGaps"})
        .option("GapsHeight", {"2"})
        .option("HalftoneType", {"None", "Ordered"})
        .option("Brightness", {"0", "20"})
        .option("MirrorImage", {"False", "True", "-1"})
        .option("NegativeImage", {"False", "True"});
}

reference::Settings labelSettings() {
    reference::Settings settings;
    settings.paperType = "LabelGaps";
    settings.gapsHeight = 2;
    return settings;
}

class JobPages : public testing::Test {
protected:
    SpoolDumps dumps;
    const TemporaryFolder folder;
    const CurrentQueue queue{labelQueue()};
    bool succeeded = false;
    std::string log;

    ~JobPages() override { std::filesystem::remove(traceFile); }

    // Prints pages and returns the commands.
    std::string print(const std::vector<Page>& pages, const char* options = "") {
        return printFile(folder.write("pages.ras", rasterStream(pages, RasterForm::Plain)),
                         options);
    }
    std::string printFile(const std::string& raster, const char* options = "") {
        std::string output;
        log = errorOutputOf([&] {
            PrintJob job;
            EXPECT_TRUE(job.openInput(raster.c_str()));
            job.createPrinter();
            job.readSettings(options);
            output = outputOf([&] { succeeded = job.printPages(); });
        });
        return output;
    }
    static std::string commands(const Page& page,
                                const reference::PageProperties& properties = {}) {
        return reference::tsplPage(labelSettings(), page.header,
                                   *reference::processPage(page, properties).finished);
    }
    bool logHolds(const std::string& line) const {
        return log.find(line + "\n") != std::string::npos;
    }
};

TEST_F(JobPages, OfAnEmptyFileAreNone) {
    EXPECT_EQ(printFile(folder.write("empty.ras", "")), "");
    EXPECT_TRUE(succeeded);
}

TEST_F(JobPages, OfARasterWithoutPagesAreNone) {
    EXPECT_EQ(print({}), "");
    EXPECT_TRUE(succeeded);
}

TEST_F(JobPages, AreSentWithTheirSetUpEach) {
    const std::vector<Page> pages = {noisyPage(16, 3, 16), noisyPage(21, 2, 21)};
    EXPECT_EQ(print(pages), commands(pages[0]) + commands(pages[1]));
    EXPECT_TRUE(succeeded);
}

TEST_F(JobPages, AreCountedInTheLog) {
    Page page = noisyPage(8, 1, 8);
    page.header.copies = 4;
    print({noisyPage(8, 1, 8), page});
    EXPECT_TRUE(logHolds("DEBUG:PAGE: 1 1\n"));
    EXPECT_TRUE(logHolds("DEBUG:PAGE: 2 4\n"));
}

// 800 dots at 203 per inch are 800 × 25.4 / 203 = 100.0985 mm, 203 dots at 101 are 51.0515 mm.
TEST_F(JobPages, HaveTheSizeOfTheRasterPage) {
    Page page = noisyPage(800, 203, 800);
    page.header.yDpi = 101;
    EXPECT_EQ(print({page}).find("SIZE 100.1 mm, 51.1 mm\r\n"), 0U);
    EXPECT_TRUE(logHolds("DEBUG:pageWidth: 100.098518,pageHeight: 51.051487"));
}

TEST_F(JobPages, WithoutAResolutionAreWarnedOfAndPrinted) {
    Page page = noisyPage(8, 1, 8);
    page.header.xDpi = 0;
    EXPECT_EQ(print({page, noisyPage(8, 1, 8)}).find("SIZE inf mm, 0.1 mm\r\n"), 0U);
    EXPECT_TRUE(succeeded);
    EXPECT_TRUE(logHolds("WARN:Page without a resolution: 0 x 203 dpi!"));
    EXPECT_FALSE(logHolds("WARN:Page without a resolution: 203 x 203 dpi!"));
    page.header.yDpi = 0;
    page.header.xDpi = 300;
    print({page});
    EXPECT_TRUE(logHolds("WARN:Page without a resolution: 300 x 0 dpi!"));
}

TEST_F(JobPages, AreCopiedAsOftenAsTheirHeaderSays) {
    Page page = noisyPage(8, 1, 8);
    page.header.copies = 3;
    EXPECT_NE(print({page}, "copies=9").find("\r\nPRINT 1,3\r\n"), std::string::npos);
}

TEST_F(JobPages, AreProcessedByTheSettings) {
    const Page page = noisyPage(16, 5, 16);
    EXPECT_EQ(print({page}, "HalftoneType=Ordered"), commands(page, {.halftoneType = 2}));
    EXPECT_EQ(print({page}, "Brightness=20"), commands(page, {.brightness = 20}));
    EXPECT_EQ(print({page}, "MirrorImage=-1"), commands(page, {.mirror = true}));
    EXPECT_EQ(print({page}, "NegativeImage=True"), commands(page, {.negative = true}));
}

TEST_F(JobPages, LeaveTheSizesOfTheLastInTheTrace) {
    print({noisyPage(8, 1, 8), noisyPage(12, 2, 12)});
    EXPECT_EQ(readFile(traceFile),
              "cupsWidth:12, cupsHeight:2, cupsBytesPerLine:12, cupsBitsPerPixel:8\n");
}

TEST_F(JobPages, EndInFailureAtOneOfAnotherDepth) {
    const Page good = noisyPage(8, 1, 8);
    Page bad = noisyPage(8, 1, 1);
    bad.header.bitsPerPixel = 1;
    bad.header.bitsPerColor = 1;
    EXPECT_EQ(print({good, bad, good}), commands(good));
    EXPECT_FALSE(succeeded);
    EXPECT_TRUE(logHolds("ERROR:Unsupported bits per pixel : 1 ! Requires 8 bits per pixel!"));
}

// The file ends 9 bytes into the pixels.
TEST_F(JobPages, AreDroppedWhenTheirPixelsCannotBeRead) {
    const Page page = noisyPage(16, 40, 16);
    const std::string content = rasterStream({page, page}, RasterForm::Plain);
    const std::size_t kept = rasterSyncBytes + rasterHeaderBytes + 9;
    const std::string output = printFile(folder.write("cut.ras", content.substr(0, kept)));
    EXPECT_EQ(output, reference::setUpBlock(reference::withPageSize(labelSettings(), page.header)) +
                          "CLS\r\n");
    EXPECT_TRUE(succeeded);
    EXPECT_TRUE(logHolds("DEBUG:PAGE: 1 1\n"));
}

TEST_F(JobPages, NameThePageThatTheRasterEndsInside) {
    const std::string whole =
        rasterStream({noisyPage(16, 4, 16, 1), noisyPage(16, 4, 16, 2)}, RasterForm::Plain);
    const std::string raster = folder.write("cut.ras", whole.substr(0, whole.size() - 1));
    const std::string output = printFile(raster);
    EXPECT_TRUE(succeeded);
    EXPECT_TRUE(
        log.ends_with("ERROR:Unable to read page 2: the raster ends inside it or is damaged\n"))
        << log;
    EXPECT_TRUE(output.ends_with("CLS\r\n"));
}

TEST_F(JobPages, AreNoneInWhatIsNoRasterAndThatIsSaid) {
    for (const char* document : {"", "Ra", "%PDF-1.4 is no raster"}) {
        const std::string output = printFile(folder.write("page.pdf", document));
        EXPECT_TRUE(succeeded);
        EXPECT_TRUE(log.ends_with("ERROR:Unable to read the document: it is no raster\n")) << log;
        EXPECT_EQ(output, "");
    }
}

// No image can be made of a page without columns.
TEST_F(JobPages, NameThePageThatIsNotPrintedAndTheOneThatIsPrintedTwice) {
    const Page nothing = noisyPage(0, 2, 16, 1);
    const Page page = noisyPage(16, 2, 16, 2);
    const std::string output = print({nothing, page, nothing});
    const auto count = [this](const std::string& line) {
        return log.find(line) != std::string::npos;
    };
    EXPECT_TRUE(count("\nERROR:Page 1 was not printed\n")) << log;
    EXPECT_FALSE(count("ERROR:Page 2"));
    EXPECT_TRUE(count("\nERROR:Page 3 was not printed; the page before it was, once more\n"));
    std::size_t prints = 0;
    for (std::size_t at = output.find("PRINT "); at != std::string::npos;
         at = output.find("PRINT ", at + 1)) {
        ++prints;
    }
    EXPECT_EQ(prints, 2U);
}

}  // namespace
