// The options of each program of a job.
#include "intake/step_options.h"

#include <gtest/gtest.h>

#include "test_queue.h"

namespace intake {
namespace {

Label label(double width, double height) {
    return {"name", sizes::inMillimetres(width, height), {}, {}};
}

std::string valueOf(const OptionList& options, std::string_view name) {
    const std::string* value = options.find(name);
    return value == nullptr ? "(none)" : *value;
}

StepOptions forPdf(std::initializer_list<Option> options, const Label& on = label(60, 40)) {
    return stepOptions(optionsOf(options), on, false);
}

StepOptions forPicture(std::initializer_list<Option> options, const Label& on = label(60, 40)) {
    return stepOptions(optionsOf(options), on, true);
}

std::string scalingOf(std::initializer_list<Option> options) {
    return valueOf(forPdf(options).layout, "print-scaling");
}

TEST(StepOptions, AskForTheLabelsPageAloneAndForNoCopies) {
    const auto steps = forPicture({{"media", "A4"},
                                   {"PageSize", "B"},
                                   {"PageRegion", "C"},
                                   {"media-col", "{}"},
                                   {"copies", "3"},
                                   {"Darkness", "5"}});
    for (const OptionList& options : {steps.picture, steps.layout, steps.laidOut}) {
        EXPECT_EQ(valueOf(options, "PageSize"), "name");
        EXPECT_EQ(valueOf(options, "Darkness"), "5");
        for (const char* name : {"media", "PageRegion", "media-col", "copies"}) {
            EXPECT_EQ(valueOf(options, name), "(none)") << name;
        }
    }
}

TEST(StepOptions, FitALargerDocumentUnlessTheJobSaysOtherwise) {
    EXPECT_EQ(scalingOf({}), "auto-fit");
    EXPECT_EQ(scalingOf({{"print-scaling", "auto"}}), "auto-fit");
    EXPECT_EQ(scalingOf({{"print-scaling", "AUTO"}, {"fitplot", "true"}}), "auto-fit");
    EXPECT_EQ(scalingOf({{"print-scaling", ""}}), "auto-fit");
    EXPECT_EQ(scalingOf({{"scaling", "50"}}), "auto-fit") << "which pdftopdf does not know";
    for (const char* scaling : {"none", "fill", "fit", "auto-fit"}) {
        EXPECT_EQ(scalingOf({{"print-scaling", scaling}}), scaling);
    }
    for (const char* name : {"fitplot", "fit-to-page", "fill", "crop-to-fit"}) {
        EXPECT_EQ(scalingOf({{name, "true"}}), "(none)") << name;
    }
}

TEST(StepOptions, LeaveTheScalingOfAPictureToImagetopdf) {
    EXPECT_EQ(valueOf(forPicture({}).picture, "print-scaling"), "(none)");
    EXPECT_EQ(valueOf(forPicture({{"print-scaling", "auto"}}).picture, "print-scaling"), "auto");
    EXPECT_EQ(valueOf(forPicture({{"print-scaling", "fill"}}).picture, "print-scaling"), "fill");
    EXPECT_EQ(valueOf(forPicture({{"scaling", "50"}}).picture, "scaling"), "50");
}

TEST(StepOptions, LayAPictureOutOnce) {
    const auto steps = forPicture({{"landscape", "true"},
                                   {"mirror", "true"},
                                   {"number-up", "4"},
                                   {"position", "top"},
                                   {"page-left", "36"},
                                   {"scaling", "50"},
                                   {"page-ranges", "1"},
                                   {"fit-to-page", "true"},
                                   {"ppi", "9"}});
    EXPECT_EQ(valueOf(steps.picture, "landscape"), "true");
    EXPECT_EQ(valueOf(steps.picture, "mirror"), "true");
    for (const char* name : {"landscape", "mirror", "number-up", "position", "page-left", "scaling",
                             "fit-to-page", "ppi"}) {
        EXPECT_EQ(valueOf(steps.layout, name), "(none)") << name;
        EXPECT_EQ(valueOf(steps.laidOut, name), "(none)") << name;
    }
    EXPECT_EQ(valueOf(steps.layout, "page-ranges"), "1");
    EXPECT_EQ(valueOf(steps.laidOut, "page-ranges"), "(none)");
    EXPECT_EQ(valueOf(steps.layout, "orientation-requested"), "3");
    EXPECT_EQ(valueOf(steps.layout, "print-scaling"), "none");
}

TEST(StepOptions, LayAPdfDocumentOutOnce) {
    const auto steps = forPdf({{"landscape", "true"}, {"mirror", "true"}, {"number-up", "4"}});
    EXPECT_EQ(valueOf(steps.layout, "landscape"), "true");
    EXPECT_EQ(valueOf(steps.layout, "number-up"), "4");
    EXPECT_EQ(valueOf(steps.laidOut, "number-up"), "(none)");
    EXPECT_EQ(valueOf(steps.laidOut, "mirror"), "(none)");
}

TEST(StepOptions, TurnNothingOnASquareLabel) {
    EXPECT_EQ(valueOf(forPdf({}, label(50, 50)).layout, "pdfAutoRotate"), "false");
    EXPECT_EQ(valueOf(forPdf({}, label(50, 51)).layout, "pdfAutoRotate"), "(none)");
    const auto picture = forPicture({}, label(50, 50));
    EXPECT_EQ(valueOf(picture.picture, "orientation-requested"), "3");
    EXPECT_EQ(valueOf(picture.layout, "pdfAutoRotate"), "false");
    EXPECT_EQ(valueOf(forPicture({}, label(50, 51)).picture, "orientation-requested"), "(none)");
}

TEST(StepOptions, TurnAPictureOnASquareLabelWhenTheJobAsksForIt) {
    const auto square = label(50, 50);
    EXPECT_EQ(valueOf(forPicture({{"orientation-requested", "4"}}, square).picture,
                      "orientation-requested"),
              "4");
    EXPECT_EQ(valueOf(forPicture({{"landscape", "true"}}, square).picture, "orientation-requested"),
              "(none)");
}

}  // namespace
}  // namespace intake
