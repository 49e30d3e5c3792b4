#include <cmath>
#include <cstdlib>
#include <string>

#include "sizes/job_description.h"
#include "sizes/ppd_statement.h"
#include "sizes/size_spelling.h"
#include "tests/fuzz/fuzz_target.h"

// A size from any name, up to the first NUL byte of the input, and its page in any PPD file, the
// rest.

namespace {

using namespace sizes;

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

bool areEqual(const NominalSize& one, const NominalSize& other, double tolerance) {
    return std::abs(one.width - other.width) <= tolerance &&
           std::abs(one.height - other.height) <= tolerance;
}

// Names have four decimals of their unit.
void requireName(const NominalSize& size) {
    constexpr double fourDecimals = 0.00006 * millimetresPerInch;
    const auto again = parsePlainSize(sizeName(size));
    require(again && areEqual(*again, size, fourDecimals));
    require(sizeName(*again) == sizeName(size) && sizeText(*again) == sizeText(size));
}

void requireSuffixes(const std::string& name, const NominalSize& size) {
    const auto borderless = parseSizeSpelling(name + ".Borderless");
    const auto transverse = parseSizeSpelling(name + ".transverse");
    require(borderless && areEqual(*borderless, size, 0));
    require(transverse && areEqual(*transverse, turned(size), 0));
}

void requireDots(const NominalSize& size, int dpi) {
    const DotSize dots = dotsOf(size, dpi);
    require(dots.columns >= 0 && dots.columns % 8 == 0 && dots.rows >= 0);
    require(size.width > size.height || dots.columns <= dots.rows);
    const auto exact = exactPage(size, dpi);
    require(exact.has_value() == (dots.columns >= fewestDots && dots.rows >= fewestDots));
}

void requireSound(const std::string& name, const NominalSize& size) {
    require(isLabelSize(size));
    requireName(size);
    requireSuffixes(name, size);
    requireDots(size, 203);
    requireDots(size, 300);
}

void requireStatements(const std::string& ppd) {
    std::string again;
    for (const PpdStatement& statement : ppdStatements(ppd)) {
        require(!statement.text.empty());
        again += statement.text;
    }
    require(again == ppd);
}

void requireDescription(const std::string& ppd, const LabelPage& page) {
    for (JobStep step : {JobStep::Layout, JobStep::Ghostscript, JobStep::Poppler}) {
        const std::string once = jobDescription(ppd, page, "label", step);
        require(jobDescription(once, page, "label", step) == once);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(data, data + size);
    const std::string name = input.c_str();
    const std::string ppd = name.size() < size ? input.substr(name.size() + 1) : std::string();
    const auto label = parseSizeSpelling(name);
    if (label) {
        requireSound(name, *label);
    }
    requireStatements(ppd);
    requireDescription(ppd, *exactPage(inMillimetres(20, 10), 300));
    return 0;
}
