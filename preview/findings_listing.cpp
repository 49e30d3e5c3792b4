#include "preview/findings_listing.h"

namespace preview {

void FindingsListing::onFinding(const tspl::Finding& finding) {
    const bool complaint = finding.kind == tspl::Finding::Kind::Complaint;
    complaints_ += complaint ? 1U : 0U;
    if (complaint || withRemarks_) {
        out_ << source_ << ": byte " << finding.offset << ": " << finding.text << '\n';
    }
}

}  // namespace preview
