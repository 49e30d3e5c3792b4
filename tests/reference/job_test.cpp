// Checks whole jobs against output and log written out by hand.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/reference/bmp.h"
#include "tests/reference/job.h"
#include "tests/reference/test_pages.h"
#include "tests/reference/trace.h"

namespace reference {
namespace {

Job jobOf(const std::vector<Page>& pages) {
    Job job;
    job.ppdSize = {true, 288, 432, 0, 0, 288, 432};
    job.pages = pages;
    return job;
}

TEST(ReferenceJob, AnEmptyStreamYieldsTheLineFeedsOnly) {
    const Outcome outcome = runJob(jobOf({}));
    EXPECT_EQ(outcome.standardOutput, std::string(64, '\n'));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_FALSE(outcome.trace.has_value());
}

TEST(ReferenceJob, APpdFileWithoutThePageSizeEndsTheJob) {
    Job job = jobOf({uniformPage(8, 1, 0)});
    job.ppdSize = {};
    job.ppdSize.found = false;
    const Outcome outcome = runJob(job);
    EXPECT_EQ(outcome.standardOutput, "");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(
        outcome.standardError.starts_with("DEBUG:PageSizeName: \nDEBUG:settings->Resolution:\n"));
    EXPECT_TRUE(outcome.standardError.ends_with(
        "DEBUG:settings->pageHeight:0.000000\n"
        "ERROR: Paper size must not less than 1.0 : (0.000000, 0.000000)\n"));
}

std::string settingsLogOfALabel() {
    return "DEBUG:PageSizeName: Label\n"
           "DEBUG:Custom Size: (288.000000,432.000000,0.000000,0.000000,288.000000,432.000000)\n"
           "DEBUG:Set page size: width 101.606400 mm, height 152.409607 mm\n"
           "DEBUG:settings->Resolution:203dpi\n"
           "DEBUG:settings->MediaMethod:\n"
           "DEBUG:settings->PaperType:\n"
           "DEBUG:settings->GapsHeight:0\n"
           "DEBUG:settings->PostAction:\n"
           "DEBUG:settings->Occurrence:\n"
           "DEBUG:settings->Origin:\n"
           "DEBUG:settings->MirrorImage:0\n"
           "DEBUG:settings->NegativeImage:0\n"
           "DEBUG:settings->PrintSpeed:\n"
           "DEBUG:settings->Darkness:0\n"
           "DEBUG:settings->halftoneType:0\n"
           "DEBUG:settings->DirectBuffer:0\n"
           "DEBUG:settings->StoredGraphics:0\n"
           "DEBUG:settings->OptionDisplayUnit:0\n"
           "DEBUG:settings->PageSize:Label\n"
           "DEBUG:settings->pageWidth:101.606400\n"
           "DEBUG:settings->pageHeight:152.409607\n"
           "DEBUG:Filter data output to: copy.bin\n";
}

std::string pageStartLogOf8Dots() {
    return "DEBUG:pageWidth: 1.000985,pageHeight: 0.125123\n"
           "DEBUG:PAGE: 1 1\n\n"
           "DEBUG:header.HWResolution[0]:203\n\n"
           "DEBUG:header.HWResolution[1]:203\n"
           "DEBUG:header.cupsWidth:8\n"
           "DEBUG:header.cupsHeight:1\n"
           "DEBUG:header.cupsMediaType:0\n"
           "DEBUG:header.cupsBitsPerColor:8\n"
           "DEBUG:header.cupsBitsPerPixel:8\n"
           "DEBUG:header.cupsBytesPerLine:8\n"
           "DEBUG:header.cupsColorOrder:0\n"
           "DEBUG:header.cupsColorSpace:0\n"
           "DEBUG:header.cupsCompression:0\n"
           "DEBUG:header.cupsRowCount:0\n"
           "DEBUG:header.cupsRowFeed:0\n"
           "DEBUG:header.cupsRowStep:0\n";
}

std::string printLogOf8Dots() {
    return "DEBUG:printImage: Start processing image, input width: 8, height: 1, bytes per line: "
           "8\n"
           "DEBUG:printImage: Memory allocated successfully, size: 8 bytes\n"
           "DEBUG:printImage: Saving original image, file path will be generated based on time\n"
           "DEBUG:printImage: Memory for processing result allocated successfully, size: 8 "
           "bytes\n"
           "DEBUG:PageProcess: QM dithering is disabled\n"
           "DEBUG:PageProcess: Successfully created RasterImage from array with stride 8\n"
           "DEBUG:PageProcess: Applied default dithering and increased bit depth\n"
           "DEBUG:PageProcess: negativePrint_ 0\n"
           "DEBUG:PageProcess: Filled the output buffer with processed pixels, length: 8\n"
           "DEBUG:printImage: Processed image information - pointer address: <address>, width: "
           "8, height: 1, bytes per line: 8, number of top blank lines: 0, number of bottom "
           "blank lines: 0, adjusted height: 1\n"
           "DEBUG:printImage: Saving processed image, file path will be generated based on time\n"
           "DEBUG:printImage: Starting to print the processed image\n"
           "DEBUG:printImage: Freed the allocated memory, address: (nil)\n"
           "DEBUG:printImage: Freed the memory for processing result, address: <address>\n"
           "DEBUG:printImage: Image processing completed\n";
}

TEST(ReferenceJob, AJobOfOnePageIsLoggedFromItsSettingsToItsEnd) {
    Job job = jobOf({uniformPage(8, 1, 0)});
    job.settings.pageSize = "Label";
    job.settings.resolution = "203dpi";
    job.recordingName = "copy.bin";
    EXPECT_EQ(runJob(job).standardError,
              settingsLogOfALabel() + pageStartLogOf8Dots() + printLogOf8Dots());
}

TEST(ReferenceJob, AJobOfOnePageIsSentBetweenLineFeedsAndPrint) {
    const Outcome outcome = runJob(jobOf({uniformPage(8, 1, 0)}));
    EXPECT_EQ(outcome.standardOutput, std::string(64, '\n') + kSetUpOf8Dots +
                                          "CLS\r\nBITMAP 0,0,1,1,0,\xFF\r\nPRINT 1,1\r\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.trace, "cupsWidth:8, cupsHeight:1, cupsBytesPerLine:8, cupsBitsPerPixel:8\n");
    ASSERT_EQ(outcome.dumps.size(), 2U);
    EXPECT_EQ(outcome.dumps[0], greyDump(Bytes(8, 0), 8, 1));
}

TEST(ReferenceJob, APageOfAnotherDepthEndsTheJobBehindThePagesSent) {
    Page second = uniformPage(8, 1, 0);
    second.header.bitsPerPixel = 1;
    const Outcome outcome = runJob(jobOf({uniformPage(8, 1, 0), second}));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.standardOutput, runJob(jobOf({uniformPage(8, 1, 0)})).standardOutput);
    EXPECT_TRUE(outcome.standardError.ends_with(
        "\nERROR:Unsupported bits per pixel : 1 ! Requires 8 bits per pixel!\n"));
}

TEST(ReferenceJob, APageWithoutRowsEndsTheJobInPeace) {
    const Outcome outcome = runJob(jobOf({uniformPage(8, 0, 0), uniformPage(8, 1, 0)}));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.standardOutput, std::string(64, '\n'));
    EXPECT_FALSE(outcome.trace.has_value());
}

TEST(ReferenceJob, APageWithoutAResolutionIsSentWithASizeThatIsNone) {
    Page page = uniformPage(8, 1, 0);
    page.header.xDpi = 0;
    const Outcome outcome = runJob(jobOf({page, uniformPage(8, 1, 0)}));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.standardOutput.find("SIZE inf mm, 0.1 mm\r\n"), 64U);
    EXPECT_NE(outcome.standardError.find("\nDEBUG:pageWidth: inf,pageHeight: 0.125123\n"),
              std::string::npos);
}

TEST(ReferenceJob, ACutOffPageIsSetUpAndCountedButNotPrinted) {
    Page cut = uniformPage(8, 1, 0);
    cut.readable = false;
    const Outcome outcome = runJob(jobOf({cut, uniformPage(8, 1, 0)}));
    EXPECT_EQ(outcome.standardOutput, std::string(64, '\n') + kSetUpOf8Dots + "CLS\r\n" +
                                          kSetUpOf8Dots +
                                          "CLS\r\nBITMAP 0,0,1,1,0,\xFF\r\nPRINT 1,1\r\n");
    EXPECT_NE(outcome.standardError.find("DEBUG:PAGE: 2 1\n\n"), std::string::npos);
    EXPECT_EQ(outcome.dumps.size(), 2U);
}

Page pageWithoutColumns() {
    Page page = uniformPage(8, 1, 0);
    page.header.width = 0;
    page.header.copies = 3;
    return page;
}

TEST(ReferenceJob, AFirstPageThatCannotBeLoadedIsNotPrinted) {
    const Outcome outcome = runJob(jobOf({pageWithoutColumns()}));
    EXPECT_TRUE(outcome.standardOutput.ends_with("CLS\r\n"));
    EXPECT_EQ(outcome.dumps.size(), 1U);
    EXPECT_NE(
        outcome.standardError.find("ERROR:printImage: pimage is NULL, unable to print the image\n"),
        std::string::npos);
    EXPECT_EQ(outcome.status, 0);
}

TEST(ReferenceJob, ALaterPageThatCannotBeLoadedPrintsThePageBeforeAgain) {
    const Outcome outcome = runJob(jobOf({uniformPage(8, 1, 0), pageWithoutColumns()}));
    EXPECT_TRUE(outcome.standardOutput.ends_with("CLS\r\nBITMAP 0,0,1,1,0,\xFF\r\nPRINT 1,3\r\n"));
    ASSERT_EQ(outcome.dumps.size(), 4U);
    EXPECT_EQ(outcome.dumps[3], outcome.dumps[1]);
}

TEST(ReferenceJob, DumpsThatCannotBeWrittenAreReportedWithTheirNumbers) {
    Job job = jobOf({uniformPage(8, 1, 0)});
    job.dumpFolderWritable = false;
    const Outcome outcome = runJob(job);
    EXPECT_TRUE(outcome.dumps.empty());
    const std::string start = "\nKestoPrinter::saveImage: unable to open the file ";
    EXPECT_NE(outcome.standardError.find(start + "/var/spool/cups/tmp/origin_<time>_0.bmp\n"),
              std::string::npos);
    EXPECT_NE(outcome.standardError.find(start + "/var/spool/cups/tmp/dithered_<time>_1.bmp\n"),
              std::string::npos);
}

TEST(ReferenceJob, TheTraceHoldsTheLastPageOnly) {
    EXPECT_EQ(runJob(jobOf({uniformPage(8, 1, 0), uniformPage(4, 2, 0)})).trace,
              traceText(uniformPage(4, 2, 0).header));
}

TEST(ReferenceJob, TheUsageTextNamesTheProgramTwice) {
    EXPECT_EQ(usageText("filter"),
              "filter v3.13.32\n\nUsage:\n\n    filter job_id user title copyies options "
              "[file]\n\n");
}

}  // namespace
}  // namespace reference
