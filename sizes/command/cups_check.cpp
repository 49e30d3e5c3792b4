#include "sizes/command/cups_check.h"

#include <string_view>

#include "sizes/command/child_process.h"
#include "sizes/command/failure.h"

namespace sizes {
namespace {

// The first line is the name of the file, each other one a fault: "      **FAIL**  Missing ...".
std::string firstFault(std::string_view listing) {
    constexpr std::string_view mark = "**  ";
    const auto start = listing.find(mark);
    if (start == std::string_view::npos) {
        return std::string(listing);
    }
    const std::string_view fault = listing.substr(start + mark.size());
    return std::string(fault.substr(0, fault.find('\n')));
}

}  // namespace

void requireThatCupsTakes(const std::string& ppd) {
    // The filters may be installed later, or elsewhere.
    const auto end = runChild({"cupstestppd", "-I", "filters", "-"}, ppd);
    if (end && !end->isWell) {
        throw Failure("CUPS would refuse the description: " + firstFault(end->output));
    }
}

}  // namespace sizes
