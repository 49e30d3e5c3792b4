#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "sizes/nominal_size.h"

namespace sizes {

/// The largest label that a printer takes, in mm.
struct Reach {
    double width = 0;
    double height = 0;
};

/// The widest and the longest page of any TSPL printer: 8.6 and 100 inches.
inline constexpr Reach widestReach{8.6 * millimetresPerInch, 100 * millimetresPerInch};

/// A model of this driver: a head's resolution and a queue description.
struct PrinterModel {
    std::string_view name;  ///< what people type: "label203"
    int dpi = 0;
    std::string_view pcFileName;  ///< of its description: "KSTL203.PPD"
    /// What its printers take unless their queue offers larger sizes: those for labels are 4
    /// inches wide or a little more, so A4 and Letter have no label of their own there.
    Reach reach;
};

/// All models, the default first.
std::span<const PrinterModel> printerModels();

/// A model by its name; nothing when there is none.
const PrinterModel* findModel(std::string_view name);

/// A model by the file name in its description, in any case of letters.
const PrinterModel* findModelOfDescription(std::string_view pcFileName);

/// Whether a label reaches out over one of the reach's lengths.
bool isTooWide(const NominalSize& size, const Reach& reach);
bool isTooHigh(const NominalSize& size, const Reach& reach);

/// How a label lies in a printer.
enum class Fit { Upright, Turned, None };

/// Whether a label is within the reach as it is, else with width and height swapped.
Fit fitOf(const NominalSize& size, const Reach& reach);

}  // namespace sizes
