#include "intake/step_options.h"

#include <algorithm>
#include <initializer_list>

#include "sizes/ascii.h"

namespace intake {
namespace {

using Words = std::initializer_list<std::string_view>;

bool hasAny(const OptionList& options, Words names) {
    return std::any_of(names.begin(), names.end(),
                       [&](std::string_view name) { return options.has(name); });
}

OptionList withPage(OptionList options, const Label& label) {
    options.remove(
        {"copies", "media", "media-col", "media-size", "MediaSize", "page-size", "PageRegion"});
    options.set("PageSize", label.name);
    return options;
}

bool isScalingAutomatic(const OptionList& options) {
    const std::string* scaling = options.find("print-scaling");
    return scaling != nullptr && sizes::equalsIgnoringCase(*scaling, "auto");
}

bool isScalingChosen(const OptionList& options, Words otherNames) {
    return options.has("print-scaling") ? !isScalingAutomatic(options)
                                        : hasAny(options, otherNames);
}

OptionList withFitting(OptionList options) {
    if (!isScalingChosen(options, {"fitplot", "fit-to-page", "fill", "crop-to-fit"})) {
        options.set("print-scaling", "auto-fit");
    }
    return options;
}

OptionList pictureOptions(OptionList options, const Label& label) {
    if (label.isSquare() && !hasAny(options, {"orientation-requested", "landscape"})) {
        options.set("orientation-requested", "3");
    }
    return options;
}

OptionList withoutLayout(OptionList options) {
    options.remove({"landscape",
                    "orientation-requested",
                    "mirror",
                    "number-up",
                    "number-up-layout",
                    "position",
                    "page-left",
                    "page-right",
                    "page-top",
                    "page-bottom",
                    "media-left-margin",
                    "media-right-margin",
                    "media-top-margin",
                    "media-bottom-margin",
                    "print-scaling",
                    "fitplot",
                    "fit-to-page",
                    "fill",
                    "crop-to-fit",
                    "scaling",
                    "natural-scaling",
                    "ppi"});
    return options;
}

OptionList withoutPages(OptionList options) {
    options.remove({"page-ranges", "page-set", "page-border", "page-label", "booklet",
                    "booklet-signature", "OutputOrder", "output-order", "page-delivery"});
    return options;
}

// A page that is laid out is to come out as it is.
OptionList asItIs(OptionList options) {
    options.set("orientation-requested", "3");
    options.set("print-scaling", "none");
    return options;
}

}  // namespace

StepOptions stepOptions(const OptionList& job, const Label& label, bool isPicture) {
    const OptionList paged = withPage(job, label);
    const OptionList placed = withoutLayout(paged);
    StepOptions steps{pictureOptions(paged, label), isPicture ? asItIs(placed) : withFitting(paged),
                      withoutPages(placed)};
    if (label.isSquare()) {
        steps.layout.set("pdfAutoRotate", "false");
    }
    return steps;
}

}  // namespace intake
