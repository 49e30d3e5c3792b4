#include <cups/raster.h>
#include <gtest/gtest.h>

#include <cstddef>

#include "tests/reference/trace.h"
#include "tests/support/sanitizers.h"
#include "tests/system/comparison.h"
#include "tests/system/test_job.h"

namespace {

#ifndef KESTO_ADDRESS_SANITIZER

TEST(Memory, APageThatFindsNoMemoryEndsTheJobWithAMessageBehindItsTrace) {
    constexpr unsigned side = 20000;
    const TemporaryFolder folder;
    reference::Job job = labelJob({greyPage(24, 9)});
    FilterCall call = callFor(job, folder);
    patchFirstHeader(call.standardInput, offsetof(cups_page_header2_t, cupsWidth), side);
    patchFirstHeader(call.standardInput, offsetof(cups_page_header2_t, cupsBytesPerLine), side);
    patchFirstHeader(call.standardInput, offsetof(cups_page_header2_t, cupsHeight), side);
    call.addressSpace = std::size_t{300} << 20;
    const SpoolFiles files;

    reference::PageHeader header = job.pages[0].header;
    header.width = header.height = header.bytesPerLine = side;
    job.pages.clear();
    reference::Outcome expected = reference::runJob(job);
    expected.status = 1;
    expected.trace = reference::traceText(header);
    expected.standardError += "ERROR:Unable to print page 1: no memory for its 400000000 bytes\n";
    expectOutcome(expected, runFilter(call), files);
}

#endif

}  // namespace
