#include "tests/system/test_job.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/support/temporary_folder.h"
#include "tests/system/comparison.h"
#include "tests/system/ppd_writer.h"
#include "tests/system/remarks.h"
#include "tests/system/spool_files.h"

using reference::Job;
using reference::Page;

Page greyPage(unsigned width, unsigned height, unsigned seed) {
    std::minstd_rand random(seed);
    Page page;
    page.header.width = page.header.bytesPerLine = width;
    page.header.height = height;
    page.header.colorSpace = 3;
    page.rows.reserve(std::size_t{width} * height);
    for (unsigned y = 0; y < height; ++y) {
        for (unsigned x = 0; x < width; ++x) {
            const unsigned slope = 255 * (x + y) / (width + height);
            page.rows.push_back(static_cast<std::uint8_t>((slope + random() % 96) % 256));
        }
    }
    return page;
}

Job labelJob(std::vector<Page> pages) {
    Job job;
    job.settings.pageSize = "w288h432";
    job.settings.resolution = "203dpi";
    job.settings.mediaMethod = "Direct";
    job.settings.paperType = "LabelGaps";
    job.settings.gapsHeight = 2;
    job.settings.postAction = "TearOff";
    job.settings.origin = "Normal";
    job.settings.printSpeed = "4";
    job.settings.darkness = 8;
    job.ppdSize = {true, 288, 432, 0, 0, 288, 432};
    job.pages = std::move(pages);
    return job;
}

FilterCall callFor(const Job& job, const TemporaryFolder& folder) {
    FilterCall call;
    call.arguments = {"17", "anna", "Two labels", "1", ""};
    call.environment = {
        {"PPD", folder.write("queue.ppd", ppdFor(job.settings, job.ppdSize).text())}};
    call.standardInput = rasterStream(job.pages, RasterForm::Plain);
    return call;
}

void expectPrintsAsReference(const Job& job, RasterForm form) {
    expectPrintsAsReference(job, rasterStream(job.pages, form));
}

void expectPrintsAsReference(const Job& job, const std::string& raster,
                             const std::string& program) {
    const TemporaryFolder folder;
    FilterCall call = callFor(job, folder);
    call.program = program;
    call.standardInput = raster;
    const SpoolFiles files;
    const FilterResult result = runFilter(call);
    expectOutcome(reference::runJob(job), result, files);
    EXPECT_TRUE(remarksIn(result.standardError) == remarksOn(job.pages)) << result.standardError;
}
