#include "intake/sheet/sheet_report.h"

#include <algorithm>

namespace intake::sheet {
namespace {

constexpr std::size_t sMostNumbers = 10;

std::string counted(std::size_t count, const std::string& one) {
    return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

std::string listOf(const std::vector<unsigned>& pages) {
    std::string list;
    for (std::size_t i = 0; i < std::min(pages.size(), sMostNumbers); ++i) {
        list += (i == 0 ? "" : ", ") + std::to_string(pages[i]);
    }
    return pages.size() > sMostNumbers ? list + ", ..." : list;
}

std::string unfoundLine(const std::vector<unsigned>& pages) {
    if (pages.size() == 1) {
        return "No label is found on page " + listOf(pages) + ": it is printed whole";
    }
    return "No label is found on " + counted(pages.size(), "page") + " (" + listOf(pages) +
           "): they are printed whole";
}

}  // namespace

std::vector<std::string> SheetReport::lines() const {
    std::vector<std::string> lines;
    if (labels_ > 0) {
        lines.push_back("Found " + counted(labels_, "label") + " on " + counted(sheets_, "page"));
    }
    if (labelPages_ > 0) {
        lines.push_back(counted(labelPages_, "page") + " of the label's size: printed whole");
    }
    if (!unfound_.empty()) {
        lines.push_back(unfoundLine(unfound_));
    }
    return lines;
}

}  // namespace intake::sheet
