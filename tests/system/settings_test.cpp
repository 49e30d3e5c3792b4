#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"
#include "tests/system/comparison.h"
#include "tests/system/ppd_writer.h"
#include "tests/system/test_job.h"

namespace {

void expectPrintsWithOptions(const reference::Job& job, const PpdWriter& ppd,
                             const std::string& options) {
    const TemporaryFolder folder;
    FilterCall call;
    call.arguments = {"1", "user", "title", "1", options};
    call.environment = {{"PPD", folder.write("queue.ppd", ppd.text())}};
    call.standardInput = rasterStream(job.pages, RasterForm::Plain);
    const SpoolFiles files;
    expectOutcome(reference::runJob(job), runFilter(call), files);
}

TEST(Settings, EveryPaperTypeSendsItsTracking) {
    for (const char* type : {"Normal", "Continue", "LabelGaps", "LabelMark", "Other", ""}) {
        for (const int gap : {0, 2, 3}) {
            SCOPED_TRACE(std::string(type) + " " + std::to_string(gap));
            reference::Job job = labelJob({greyPage(8, 2)});
            job.settings.paperType = type;
            job.settings.gapsHeight = gap;
            expectPrintsAsReference(job);
        }
    }
}

TEST(Settings, EveryPostActionSendsItsThreeSwitches) {
    for (const char* action :
         {"Normal", "None", "TearOff", "PeelOff", "Cut", "PartialCut", "Else", ""}) {
        SCOPED_TRACE(action);
        reference::Job job = labelJob({greyPage(8, 2)});
        job.settings.postAction = action;
        expectPrintsAsReference(job);
    }
}

TEST(Settings, EveryMediaMethodAndOriginSendsItsCommand) {
    for (const char* method : {"Direct", "Transfer", "Other", ""}) {
        for (const char* origin : {"Normal", "Rotation180", ""}) {
            SCOPED_TRACE(std::string(method) + " " + origin);
            reference::Job job = labelJob({greyPage(8, 2)});
            job.settings.mediaMethod = method;
            job.settings.origin = origin;
            expectPrintsAsReference(job);
        }
    }
}

TEST(Settings, SpeedAndDarknessAreSentOnlyInTheirRanges) {
    for (const char* speed : {"Normal", "0", "3", "4.5", "-1", "fast", ""}) {
        for (const int darkness : {-1, 0, 8, 30, 31}) {
            SCOPED_TRACE(std::string(speed) + " " + std::to_string(darkness));
            reference::Job job = labelJob({greyPage(8, 2)});
            job.settings.printSpeed = speed;
            job.settings.darkness = darkness;
            expectPrintsAsReference(job);
        }
    }
}

TEST(Settings, JobOptionsOverrideTheDefaultsOfTheQueue) {
    reference::Job job = labelJob({greyPage(8, 2)});
    PpdWriter ppd = ppdFor(job.settings, job.ppdSize);
    ppd.addChoice("PaperType", "LabelMark");
    ppd.addChoice("GapsHeight", "3");
    ppd.addChoice("HalftoneType", "Stucki");
    ppd.addChoice("Darkness", "12");
    job.settings.paperType = "LabelMark";
    job.settings.gapsHeight = 3;
    job.settings.halftoneType = 4;
    job.settings.darkness = 12;
    expectPrintsWithOptions(job, ppd,
                            "PaperType=LabelMark GapsHeight=3 HalftoneType=Stucki Darkness=12");
}

TEST(Settings, OptionsThatTheQueueDoesNotKnowHaveNoEffect) {
    const reference::Job job = labelJob({greyPage(8, 2)});
    expectPrintsWithOptions(job, ppdFor(job.settings, job.ppdSize),
                            "Sharpness=9 noMore job-uuid=urn:uuid:0 HalftoneType=Imaginary");
}

TEST(Settings, ThePageSizeOfTheRasterReplacesThatOfTheQueue) {
    reference::Job job = labelJob({greyPage(800, 2)});
    job.ppdSize = {true, 72, 72, 0, 0, 72, 72};
    const TemporaryFolder folder;
    FilterCall call = callFor(job, folder);
    const SpoolFiles files;
    const FilterResult result = runFilter(call);
    // 800 × 25.4 / 203 is 100.098..., 2 × 25.4 / 203 is 0.250...
    EXPECT_NE(result.standardOutput.find("\nSIZE 100.1 mm, 0.3 mm\r\n"), std::string::npos);
    expectOutcome(reference::runJob(job), result, files);
}

TEST(Settings, TheWholeStreamOfASmallLabelIsAsWrittenHere) {
    reference::Job job = labelJob({});
    reference::Page page;
    page.header.width = page.header.bytesPerLine = 16;
    page.header.height = 2;
    page.header.copies = 2;
    page.rows.assign(32, 255);
    page.rows[0] = page.rows[9] = page.rows[31] = 0;
    job.pages = {page};
    const TemporaryFolder folder;
    FilterCall call = callFor(job, folder);
    const SpoolFiles files;
    const FilterResult result = runFilter(call);
    files.takeDumps();
    expectSameBytes(std::string(64, '\n') +
                        "SIZE 2.0 mm, 0.3 mm\r\n"
                        "GAP 2.0 mm, 0.0 mm\r\n"
                        "REFERENCE 0,0\r\n"
                        "DIRECTION 0,0\r\n"
                        "SPEED 4\r\n"
                        "DENSITY 8\r\n"
                        "SET RIBBON OFF\r\n"
                        "OFFSET 0.0 mm\r\n"
                        "SET TEAR ON\r\n"
                        "SET PEEL OFF\r\n"
                        "SET CUTTER OFF\r\n"
                        "CLS\r\n"
                        "BITMAP 0,0,2,2,0," +
                        std::string("\x80\x40\x00\x01", 4) +
                        "\r\n"
                        "PRINT 1,2\r\n",
                    result.standardOutput, "standard output");
}

// The bits of the only page in a stream.
std::string bitmapIn(const std::string& stream, std::size_t bytes) {
    const std::size_t end = stream.rfind("\r\nPRINT ");
    return end == std::string::npos || end < bytes ? "" : stream.substr(end - bytes, bytes);
}

// What a page of 64 × 40 dots is printed as.
std::string printedBits(int halftoneType, int negativeImage) {
    reference::Job job = labelJob({greyPage(64, 40)});
    job.settings.halftoneType = halftoneType;
    job.settings.negativeImage = negativeImage;
    const TemporaryFolder folder;
    const SpoolFiles files;
    const FilterResult result = runFilter(callFor(job, folder));
    files.takeDumps();
    EXPECT_EQ(result.status, 0);
    return bitmapIn(result.standardOutput, 320);
}

TEST(Settings, ANegativeImageOfMinusOneInvertsAStencil) {
    std::string inverted = printedBits(8, 0);
    EXPECT_NE(inverted, std::string(320, '\0'));
    for (char& bits : inverted) {
        bits = static_cast<char>(~bits);
    }
    EXPECT_EQ(printedBits(8, -1), inverted);
}

TEST(Settings, ANegativeImageOfMinusOneLeavesAnOrdinaryPageWithoutADot) {
    EXPECT_NE(printedBits(0, 0), std::string(320, '\0'));
    EXPECT_EQ(printedBits(0, -1), std::string(320, '\0'));
}

}  // namespace
