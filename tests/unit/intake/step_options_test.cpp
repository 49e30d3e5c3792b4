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
    for (const OptionList& options : {steps.layout, steps.laidOut}) {
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

TEST(StepOptions, GiveAPictureWhatPlacesIt) {
    EXPECT_EQ(valueOf(forPicture({}).picture, "print-scaling"), "(none)");
    for (const char* name : {"landscape", "orientation-requested", "mirror", "position",
                             "print-scaling", "fitplot", "fit-to-page", "fill", "crop-to-fit",
                             "scaling", "ppi", "natural-scaling", "ipp-attribute-fidelity",
                             "page-ranges", "page-set", "Collate", "multiple-document-handling"}) {
        EXPECT_EQ(valueOf(forPicture({{name, "x"}}).picture, name), "x") << name;
    }
}

TEST(StepOptions, GiveAPictureNothingElse) {
    EXPECT_TRUE(forPicture({{"media", "A4"}, {"Darkness", "5"}, {"job-uuid", "urn:x"}})
                    .picture.all()
                    .empty());
}

TEST(StepOptions, LayAPictureOutOnce) {
    const auto steps = forPicture({{"landscape", "true"},
                                   {"mirror", "true"},
                                   {"number-up", "4"},
                                   {"position", "top"},
                                   {"scaling", "50"},
                                   {"page-ranges", "1"},
                                   {"fit-to-page", "true"},
                                   {"ppi", "9"}});
    for (const char* name : {"landscape", "mirror", "position", "scaling", "fit-to-page", "ppi"}) {
        EXPECT_NE(valueOf(steps.picture, name), "(none)") << name;
        EXPECT_EQ(valueOf(steps.layout, name), "(none)") << name;
        EXPECT_EQ(valueOf(steps.laidOut, name), "(none)") << name;
    }
    EXPECT_EQ(valueOf(steps.picture, "number-up"), "(none)");
    EXPECT_EQ(valueOf(steps.layout, "number-up"), "4");
    EXPECT_EQ(valueOf(steps.laidOut, "number-up"), "(none)");
    EXPECT_EQ(valueOf(steps.layout, "orientation-requested"), "3");
    EXPECT_EQ(valueOf(steps.layout, "print-scaling"), "none");
}

TEST(StepOptions, ChooseThePagesOfAPictureOnce) {
    const auto laidOut = forPicture({{"number-up", "2"}, {"page-ranges", "1"}});
    EXPECT_EQ(valueOf(laidOut.picture, "page-ranges"), "(none)");
    EXPECT_EQ(valueOf(laidOut.layout, "page-ranges"), "1");
    EXPECT_EQ(valueOf(laidOut.laidOut, "page-ranges"), "(none)");
    EXPECT_EQ(valueOf(forPicture({{"page-ranges", "1"}}).laidOut, "page-ranges"), "(none)");
}

TEST(StepOptions, LayAPictureOutFurtherWhenThereIsMoreToDo) {
    const auto is = [](std::string_view name, std::string_view value) {
        return needsLayout(optionsOf({{std::string(name), std::string(value)}}));
    };
    EXPECT_FALSE(needsLayout({}));
    EXPECT_TRUE(is("number-up", "2"));
    EXPECT_FALSE(is("number-up", "1")) << "which clients send of themselves";
    EXPECT_FALSE(is("number-up", ""));
    EXPECT_TRUE(is("booklet", "On"));
    EXPECT_FALSE(is("booklet", "off"));
    EXPECT_TRUE(is("page-border", "single"));
    EXPECT_FALSE(is("page-border", "none"));
    EXPECT_TRUE(is("page-label", "Draft"));
    EXPECT_TRUE(is("OutputOrder", "reverse"));
    EXPECT_FALSE(is("OutputOrder", "Normal"));
    EXPECT_TRUE(is("page-delivery", "reverse-order-face-up"));
    EXPECT_FALSE(is("ppi", "203"));
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
    EXPECT_EQ(valueOf(forPicture({}, label(50, 50)).layout, "pdfAutoRotate"), "false");
}

TEST(StepOptions, OfSheetsLeaveTheChoiceOfPagesToTheProgramThatCutsThem) {
    const auto steps = withSheets(
        forPdf({{"page-ranges", "2-3"}, {"page-set", "odd"}, {"number-up", "2"}, {"fill", "yes"}}));
    EXPECT_EQ(steps.sheet.all(),
              (std::vector<Option>{{"page-ranges", "2-3"}, {"page-set", "odd"}}));
    EXPECT_EQ(valueOf(steps.layout, "page-ranges"), "(none)");
    EXPECT_EQ(valueOf(steps.layout, "page-set"), "(none)");
    EXPECT_EQ(valueOf(steps.layout, "number-up"), "2");
    EXPECT_EQ(valueOf(steps.layout, "fill"), "yes");
    EXPECT_TRUE(withSheets(forPdf({})).sheet.all().empty());
}

}  // namespace
}  // namespace intake
