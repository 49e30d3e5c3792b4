// Pages without lines or without bytes, which the filter itself has to recognise.
#include <gtest/gtest.h>

#include <cstdlib>
#include <utility>

#include "tests/system/test_job.h"

namespace {

/// Has the stand-in for libcups hand out an empty page.
class EmptyPage : public testing::TestWithParam<const char*> {
protected:
    ~EmptyPage() override { unsetenv(GetParam()); }

    static void makeEmpty(const char* page) { setenv(GetParam(), page, 1); }
    // A job of three pages prints as if only these were in the raster.
    static void expectPrints(std::vector<reference::Page> printed) {
        const std::string three = rasterStream(
            {greyPage(16, 4, 1), greyPage(24, 5, 2), greyPage(32, 6, 3)}, RasterForm::Plain);
        expectPrintsAsReference(labelJob(std::move(printed)), three, KESTO_FLAKY_FILTER);
    }
};

TEST_P(EmptyPage, EndsTheJobWithStatusZeroAndNoMessage) {
    makeEmpty("1");
    expectPrints({});
}

TEST_P(EmptyPage, KeepsThePagesBeforeItAndTheRestUnread) {
    makeEmpty("2");
    expectPrints({greyPage(16, 4, 1)});
}

std::string whatIsMissing(const testing::TestParamInfo<const char*>& row) {
    return std::string(row.param).ends_with("LINES") ? "WithoutLines" : "WithoutBytes";
}

INSTANTIATE_TEST_SUITE_P(OfEitherKind, EmptyPage,
                         testing::Values("KESTO_TEST_PAGE_WITHOUT_LINES",
                                         "KESTO_TEST_PAGE_WITHOUT_BYTES"),
                         whatIsMissing);

}  // namespace
