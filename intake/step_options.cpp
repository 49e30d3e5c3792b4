#include "intake/step_options.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>
#include <string_view>
#include <utility>

#include "sizes/ascii.h"

namespace intake {
namespace {

using namespace std::string_view_literals;
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

constexpr std::array sPlacement{"landscape"sv,
                                "orientation-requested"sv,
                                "mirror"sv,
                                "position"sv,
                                "print-scaling"sv,
                                "fitplot"sv,
                                "fit-to-page"sv,
                                "fill"sv,
                                "crop-to-fit"sv,
                                "scaling"sv,
                                "ppi"sv,
                                "natural-scaling"sv,
                                "ipp-attribute-fidelity"sv};
constexpr std::array sSelection{"page-ranges"sv, "page-set"sv, "Collate"sv,
                                "multiple-document-handling"sv};

void copy(const OptionList& from, std::span<const std::string_view> names, OptionList& to) {
    for (const std::string_view name : names) {
        if (const std::string* value = from.find(name)) {
            to.set(name, *value);
        }
    }
}

// What lays pages out further also chooses among them.
OptionList pictureOptions(const OptionList& job) {
    OptionList options;
    copy(job, sPlacement, options);
    if (!needsLayout(job)) {
        copy(job, sSelection, options);
    }
    return options;
}

OptionList withoutPlacement(OptionList options) {
    for (const std::string_view name : sPlacement) {
        options.remove(name);
    }
    return options;
}

OptionList withoutLayout(OptionList options) {
    options.remove({"number-up", "number-up-layout", "page-left", "page-right", "page-top",
                    "page-bottom", "media-left-margin", "media-right-margin", "media-top-margin",
                    "media-bottom-margin"});
    return withoutPlacement(std::move(options));
}

OptionList withoutPages(OptionList options) {
    options.remove({"page-ranges", "page-set", "page-border", "page-label", "booklet",
                    "booklet-signature", "OutputOrder", "output-order", "page-delivery"});
    return options;
}

// A page that has its place is to come out as it is.
OptionList asItIs(OptionList options) {
    options.set("orientation-requested", "3");
    options.set("print-scaling", "none");
    return options;
}

}  // namespace

bool needsLayout(const OptionList& job) {
    const auto is = [&](std::string_view name, std::initializer_list<std::string_view> values) {
        const std::string* given = job.find(name);
        return given != nullptr && std::ranges::any_of(values, [&](std::string_view value) {
                   return sizes::equalsIgnoringCase(*given, value);
               });
    };
    return (job.has("number-up") && !is("number-up", {"1"})) || hasAny(job, {"page-label"}) ||
           (job.has("booklet") && !is("booklet", {"off", "no", "false"})) ||
           (job.has("page-border") && !is("page-border", {"none"})) ||
           is("OutputOrder", {"Reverse"}) || is("output-order", {"Reverse"}) ||
           is("page-delivery", {"reverse-order-face-up", "reverse-order-face-down"});
}

StepOptions stepOptions(const OptionList& job, const Label& label, bool isPicture) {
    const OptionList paged = withPage(job, label);
    const OptionList placed = withoutLayout(paged);
    StepOptions steps{pictureOptions(job),
                      {},
                      isPicture ? asItIs(withoutPlacement(paged)) : withFitting(paged),
                      withoutPages(placed)};
    if (label.isSquare()) {
        steps.layout.set("pdfAutoRotate", "false");
    }
    return steps;
}

StepOptions withSheets(StepOptions steps) {
    constexpr std::array selection{"page-ranges"sv, "page-set"sv};
    copy(steps.layout, selection, steps.sheet);
    for (const std::string_view name : selection) {
        steps.layout.remove(name);
    }
    return steps;
}

}  // namespace intake
