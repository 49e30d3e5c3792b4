#include "sizes/job_description.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <utility>

#include "sizes/page_lines.h"
#include "sizes/ppd_statement.h"

namespace sizes {
namespace {

// Exact to a thousandth of a dot.
constexpr int decimals = 5;
constexpr double smallestStep = 1e-5;

constexpr std::array<std::string_view, 5> sCustomKeywords{"CustomPageSize", "ParamCustomPageSize",
                                                          "VariablePaperSize", "MaxMediaWidth",
                                                          "MaxMediaHeight"};

bool isOfCustomSize(const PpdStatement& statement) {
    if (statement.keyword == "NonUIOrderDependency") {
        return statement.value.find("*CustomPageSize") != std::string_view::npos;
    }
    return std::find(sCustomKeywords.begin(), sCustomKeywords.end(), statement.keyword) !=
           sCustomKeywords.end();
}

// As whole as the length is when it stands in the file.
double wholePoints(double points) {
    return std::floor(points + smallestStep / 2);
}

// How near Ghostscript's converter wants a paper to be, and a little.
constexpr double looseness = 0.0098;

PointSize paperFor(JobStep step, const PointSize& page) {
    if (step == JobStep::Poppler) {
        return {wholePoints(page.width), wholePoints(page.height)};
    }
    const double height = std::round(page.height);
    const bool isFound = std::abs(page.height - height) < looseness * height;
    return step == JobStep::Ghostscript && isFound ? PointSize{page.width, height} : page;
}

// Poppler's pages hang from the upper edge of the paper, Ghostscript's stand on the lower one.
PointArea areaFor(JobStep step, const PointSize& page, const PointSize& paper) {
    const double bottom = step == JobStep::Poppler ? paper.height - page.height : 0;
    return {0, bottom, page.width, bottom + page.height};
}

OfferedPage sizeFor(JobStep step, const PointSize& page, std::string_view name) {
    const PointSize paper = paperFor(step, page);
    return {std::string(name), "", paper, areaFor(step, page, paper)};
}

}  // namespace

std::string jobDescription(std::string_view ppd, const LabelPage& page, std::string_view name,
                           JobStep step) {
    const OfferedPage size = sizeFor(step, page.points, name);
    std::set<std::pair<std::string_view, std::string_view>> replaced;
    std::string result;
    for (const PpdStatement& statement : ppdStatements(ppd)) {
        if (isOfDefaultPageSize(statement)) {
            result += defaultLine(statement.keyword, name);
        } else if (isOfPageSize(statement)) {
            if (replaced.emplace(statement.language, statement.keyword).second) {
                result += pageLine(statement, size, decimals);
            }
        } else if (!isOfCustomSize(statement)) {
            result += statement.text;
        }
    }
    return result;
}

}  // namespace sizes
