#include "preview/stream_tally.h"

namespace preview {
namespace {

std::string counted(std::uint64_t number, const std::string& thing) {
    const std::string things = number == 1 ? thing : thing + "s";
    return (number == 0 ? "no" : std::to_string(number)) + ' ' + things;
}

}  // namespace

void StreamTally::onFinding(const tspl::Finding& finding) {
    const bool complaint = finding.kind == tspl::Finding::Kind::Complaint;
    ++(complaint ? complaints_ : remarks_);
}

std::string describe(const StreamTally& tally) {
    const std::string complaints = counted(tally.complaints(), "complaint");
    if (tally.labels() > 0) {
        return counted(tally.labels(), "label") + ", " + complaints;
    }
    const std::string none = "no label: nothing is printed without PRINT";
    return tally.complaints() == 0 ? none : none + "; " + complaints;
}

}  // namespace preview
