#include "sizes/command/size_listing.h"

#include <iomanip>
#include <sstream>

#include "sizes/page_lines.h"

namespace sizes {
namespace {

// CustomMedia takes the code twice, for PageSize and for PageRegion.
std::string mediaLine(const OwnSize& size) {
    const PointSize points = labelPoints(size.label);
    const std::string code = " \"" + pageCode(points) + "\"";
    return "  CustomMedia \"" + sizeName(size.label) + "/" + sizeText(size.label) + "\" " +
           lengthText(points.width) + " " + lengthText(points.height) + " 0 0 0 0" + code + code +
           "\n";
}

}  // namespace

std::string sizeListing(std::span<const OwnSize> sizes, int dpi) {
    std::ostringstream listing;
    listing << std::fixed << std::setprecision(1);
    for (const auto& [label, dots] : sizes) {
        const NominalSize printed = printedSize(dots, dpi);
        listing << std::left << std::setw(14) << sizeName(label) << " " << sizeText(label) << ": "
                << dots.columns << " x " << dots.rows << " dots at " << dpi << " dpi, "
                << printed.width << " x " << printed.height << " mm\n";
    }
    return listing.str();
}

std::string mediaLines(std::span<const OwnSize> sizes) {
    std::string lines;
    for (const OwnSize& size : sizes) {
        lines += mediaLine(size);
    }
    return lines;
}

}  // namespace sizes
