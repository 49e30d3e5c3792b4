#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "intake/queue_description.h"
#include "sizes/ascii.h"

namespace intake {

/// A description with sizes of two inch labels and three in millimetres, in their own points.
inline const std::string sLabelPpd = R"(*PPD-Adobe: "4.3"
*PCFileName: "KSTL203.PPD"
*DefaultPageSize: 4x6in
*PageSize 4x6in/4 x 6 in: "<</PageSize[288 432]>>setpagedevice"
*de.PaperDimension 9x9in/ignored: "1 2"
*DefaultPaperDimension: 4x6in
*PaperDimension 4x6in/4 x 6 in: "288 432"
*PaperDimension 2x1in/2 x 1 in: "144 72"
*PaperDimension 100x100mm/100 x 100: "283.4646 283.4646"
*PaperDimension 60x40mm/60 x 40 mm: "170.0787 113.3858"
*PaperDimension 50x30mm/50 x 30 mm: "141.7323 85.0394"
*DefaultResolution: 203dpi
)";

/// What VariablePaperSize adds: 20 to 312 points wide, 20 to 7200 points long.
inline const std::string sCustomLines = R"(*VariablePaperSize: True
*MaxMediaWidth: "312"
*MaxMediaHeight: "7200"
*ParamCustomPageSize Width: 1 points 20 312
*ParamCustomPageSize Height: 2 points 20 7200
)";

/// Knows three media, as CUPS would.
inline std::optional<sizes::NominalSize> someMedia(std::string_view name) {
    if (sizes::equalsIgnoringCase(name, "A4")) {
        return sizes::inMillimetres(210, 297);
    }
    if (sizes::equalsIgnoringCase(name, "A6")) {
        return sizes::inMillimetres(105, 148);
    }
    return std::nullopt;
}

inline OptionList optionsOf(std::initializer_list<Option> options) {
    OptionList list;
    for (const Option& option : options) {
        list.set(option.name, option.value);
    }
    return list;
}

}  // namespace intake
