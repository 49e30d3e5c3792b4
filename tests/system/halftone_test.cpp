#include <gtest/gtest.h>

#include <array>

#include "tests/system/test_job.h"

namespace {

constexpr std::array<const char*, 10> typeNames = {
    "None",   "FloydSteinberg", "Ordered", "Burkes",   "Stucki", "JarvisJudiceNinke",
    "Sierra", "StevensonArce",  "Tattoo",  "Tattoo_X8"};

class HalftoneOfType : public testing::TestWithParam<int> {
protected:
    reference::Job job() const {
        reference::Job job = labelJob({greyPage(96, 33, 7), greyPage(53, 20, 8)});
        job.settings.halftoneType = GetParam();
        return job;
    }
};

TEST_P(HalftoneOfType, PrintsAsTheReference) {
    expectPrintsAsReference(job());
}

TEST_P(HalftoneOfType, PrintsLighterAndDarkerAsTheReference) {
    for (const int brightness : {-100, -20, -1, 1, 20, 100, 1000}) {
        SCOPED_TRACE(brightness);
        reference::Job changed = job();
        changed.settings.brightness = brightness;
        expectPrintsAsReference(changed);
    }
}

TEST_P(HalftoneOfType, PrintsMirroredAsTheReference) {
    reference::Job changed = job();
    changed.settings.mirrorImage = 1;
    expectPrintsAsReference(changed);
}

TEST_P(HalftoneOfType, PrintsNegativeAsTheReference) {
    reference::Job changed = job();
    changed.settings.negativeImage = 1;
    expectPrintsAsReference(changed);
}

TEST_P(HalftoneOfType, PrintsDarkerMirroredAndNegativeAsTheReference) {
    reference::Job changed = job();
    changed.settings.brightness = 5;
    changed.settings.mirrorImage = -1;
    changed.settings.negativeImage = 2;
    expectPrintsAsReference(changed);
}

std::string typeName(const testing::TestParamInfo<int>& type) {
    return typeNames[static_cast<std::size_t>(type.param)];
}

INSTANTIATE_TEST_SUITE_P(AllTypes, HalftoneOfType, testing::Range(0, 10), typeName);

}  // namespace
