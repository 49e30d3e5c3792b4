// A user whose decimals have a comma.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/system/comparison.h"
#include "tests/system/test_job.h"

namespace {

namespace fs = std::filesystem;

/// A folder with a locale that differs from the system's "C.UTF-8" by its decimal comma only, so
/// that the locales of no country need be installed.
class CommaLocale : public testing::Test {
protected:
    const TemporaryFolder folder;
    const std::string name = "de_DE.UTF-8";

    CommaLocale() {
        fs::copy("/usr/lib/locale/C.utf8", folder.path(name), fs::copy_options::recursive);
        const std::string numbers = name + "/LC_NUMERIC";
        std::string content = readFile(folder.path(numbers));
        std::replace(content.begin(), content.end(), '.', ',');
        folder.write(numbers, content);
    }

    void takeLocale(FilterCall& call) const {
        call.environment.emplace_back("LOCPATH", folder.path(""));
        call.environment.emplace_back("LC_ALL", name);
        call.environment.emplace_back("LANG", name);
        // The C library loses a copy of LOCPATH for every locale that is made, which the C++
        // library does at its start: no leak of the filter.
        call.environment.emplace_back("LSAN_OPTIONS", "detect_leaks=0");
    }
    // A program that does take the locale of its environment shows that there is one.
    std::string printedByOthers() const {
        FilterCall call;
        call.program = "/usr/bin/printf";
        call.arguments = {"%.1f", "1"};
        takeLocale(call);
        return runFilter(call).standardOutput;
    }
};

TEST_F(CommaLocale, ChangesNoNumberInTheStreamNorInTheLog) {
    ASSERT_EQ(printedByOthers(), "1,0");
    reference::Job job = labelJob({greyPage(101, 33)});
    job.settings.printSpeed = "0.5";
    job.ppdSize = {true, 288.5F, 432.25F, 0.5F, 0.25F, 288, 432};
    FilterCall call = callFor(job, folder);
    takeLocale(call);
    const SpoolFiles files;
    const FilterResult result = runFilter(call);
    EXPECT_NE(result.standardOutput.find("\nSIZE 12.6 mm, 4.1 mm\r\nGAP 2.0 mm, 0.0 mm\r\n"),
              std::string::npos);
    EXPECT_NE(result.standardOutput.find("\nSPEED 0.5\r\n"), std::string::npos);
    expectOutcome(reference::runJob(job), result, files);
}

}  // namespace
