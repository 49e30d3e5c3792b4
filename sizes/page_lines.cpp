#include "sizes/page_lines.h"

namespace sizes {
namespace {

std::string pair(double one, double other, int decimals) {
    return lengthText(one, decimals) + " " + lengthText(other, decimals);
}

// A translation holds a text only.
std::string valueOf(const PpdStatement& neighbour, const OfferedPage& page, int decimals) {
    if (!neighbour.language.empty()) {
        return {};
    }
    const auto& [left, bottom, right, top] = page.area;
    if (neighbour.keyword == "ImageableArea") {
        return pair(left, bottom, decimals) + " " + pair(right, top, decimals);
    }
    if (neighbour.keyword == "PaperDimension") {
        return pair(page.paper.width, page.paper.height, decimals);
    }
    return pageCode(page.paper, decimals);
}

}  // namespace

std::string pageCode(const PointSize& paper, int decimals) {
    return "<</PageSize[" + pair(paper.width, paper.height, decimals) +
           "]/ImagingBBox null>>setpagedevice";
}

std::string pageLine(const PpdStatement& neighbour, const OfferedPage& page, int decimals) {
    std::string line = "*";
    if (!neighbour.language.empty()) {
        line.append(neighbour.language).append(".");
    }
    line.append(neighbour.keyword).append(" ").append(page.name).append("/");
    line.append(page.text.empty() ? page.name : page.text);
    return line + ": \"" + valueOf(neighbour, page, decimals) + "\"\n";
}

std::string defaultLine(std::string_view keyword, std::string_view name) {
    std::string line = "*";
    return line.append(keyword).append(": ").append(name).append("\n");
}

}  // namespace sizes
