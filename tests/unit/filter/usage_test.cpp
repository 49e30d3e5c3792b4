#include "filter/usage.h"

#include "tests/reference/job_log.h"
#include "tests/unit/filter/test_support.h"

namespace {

std::string usageOf(const char* path) {
    return errorOutputOf([path] { printUsage(path); });
}

TEST(Usage, GivesTheVersionAndTheCommandLine) {
    EXPECT_EQ(usageOf("rastertokestotspl"),
              "rastertokestotspl v3.13.32\n"
              "\n"
              "Usage:\n"
              "\n"
              "    rastertokestotspl job_id user title copyies options [file]\n"
              "\n");
}

TEST(Usage, NamesTheProgramWithoutItsFolder) {
    EXPECT_EQ(usageOf("/usr/lib/cups/filter/name"), reference::usageText("name"));
    EXPECT_EQ(usageOf("folder\\name"), reference::usageText("name"));
}

TEST(Usage, DoesNotGoToStandardOutput) {
    EXPECT_EQ(outputOf([] { usageOf("name"); }), "");
}

}  // namespace
