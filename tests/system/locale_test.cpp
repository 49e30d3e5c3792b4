// A user whose decimals have a comma.
#include <gtest/gtest.h>
#include <langinfo.h>

#include <algorithm>
#include <clocale>
#include <cstdlib>
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

    // The decimal sign of a process that takes the locale which its environment names.
    std::string decimalSign() const {
        setenv("LOCPATH", folder.path("").c_str(), 1);
        const locale_t locale = newlocale(LC_ALL_MASK, name.c_str(), nullptr);
        unsetenv("LOCPATH");
        if (locale == nullptr) {
            return "no such locale";
        }
        std::string sign = nl_langinfo_l(RADIXCHAR, locale);
        freelocale(locale);
        return sign;
    }
};

TEST_F(CommaLocale, ChangesNoNumberInTheStreamNorInTheLog) {
    ASSERT_EQ(decimalSign(), ",");
    reference::Job job = labelJob({greyPage(101, 33)});
    job.settings.printSpeed = "0.5";
    job.ppdSize = {true, 288.5F, 432.25F, 0.5F, 0.25F, 288, 432};
    FilterCall call = callFor(job, folder);
    call.environment.emplace_back("LOCPATH", folder.path(""));
    call.environment.emplace_back("LC_ALL", name);
    call.environment.emplace_back("LANG", name);
    const SpoolFiles files;
    const FilterResult result = runFilter(call);
    EXPECT_NE(result.standardOutput.find("\nSIZE 12.6 mm, 4.1 mm\r\nGAP 2.0 mm, 0.0 mm\r\n"),
              std::string::npos);
    EXPECT_NE(result.standardOutput.find("\nSPEED 0.5\r\n"), std::string::npos);
    expectOutcome(reference::runJob(job), result, files);
}

}  // namespace
