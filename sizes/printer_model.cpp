#include "sizes/printer_model.h"

#include <algorithm>
#include <array>

#include "sizes/ascii.h"

namespace sizes {
namespace {

constexpr Reach sLabelReach{4.65 * millimetresPerInch, widestReach.height};

constexpr std::array sModels{
    PrinterModel{"label203", 203, "KSTL203.PPD", sLabelReach},
    PrinterModel{"label203mm", 203, "KSTL203M.PPD", sLabelReach},
    PrinterModel{"label300", 300, "KSTL300.PPD", sLabelReach},
    PrinterModel{"label300mm", 300, "KSTL300M.PPD", sLabelReach},
    PrinterModel{"stencil300", 300, "KSTS300.PPD", widestReach},
};

// So that a size of just the reach is within it, whatever unit it came in.
constexpr double hair = 0.005;

bool isWithin(const Reach& reach, const NominalSize& size) {
    return !isTooWide(size, reach) && !isTooHigh(size, reach);
}

template <typename Wanted>
const PrinterModel* firstModel(Wanted isWanted) {
    const auto* found = std::find_if(sModels.begin(), sModels.end(), isWanted);
    return found == sModels.end() ? nullptr : found;
}

}  // namespace

std::span<const PrinterModel> printerModels() {
    return sModels;
}

const PrinterModel* findModel(std::string_view name) {
    return firstModel([name](const PrinterModel& model) { return model.name == name; });
}

const PrinterModel* findModelOfDescription(std::string_view pcFileName) {
    return firstModel([pcFileName](const PrinterModel& model) {
        return equalsIgnoringCase(model.pcFileName, pcFileName);
    });
}

bool isTooWide(const NominalSize& size, const Reach& reach) {
    return size.width > reach.width + hair;
}

bool isTooHigh(const NominalSize& size, const Reach& reach) {
    return size.height > reach.height + hair;
}

Fit fitOf(const NominalSize& size, const Reach& reach) {
    if (isWithin(reach, size)) {
        return Fit::Upright;
    }
    return isWithin(reach, turned(size)) ? Fit::Turned : Fit::None;
}

}  // namespace sizes
