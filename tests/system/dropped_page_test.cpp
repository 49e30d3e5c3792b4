#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/system/test_job.h"

namespace {

// The page number in the log counts the dropped page too: the reference says so.
TEST(DroppedPage, OnlyItsSetUpBlockGoesOutAndTheNextPageFollows) {
    for (std::size_t failing = 0; failing < 3; ++failing) {
        SCOPED_TRACE(failing);
        reference::Job job = labelJob({greyPage(16, 4, 1), greyPage(24, 5, 2), greyPage(32, 6, 3)});
        job.pages[failing].readable = false;
        setenv("KESTO_TEST_FAILING_PAGE", std::to_string(failing + 1).c_str(), 1);
        expectPrintsAsReference(job, rasterStream(job.pages, RasterForm::Plain),
                                KESTO_FLAKY_FILTER);
        unsetenv("KESTO_TEST_FAILING_PAGE");
    }
}

}  // namespace
