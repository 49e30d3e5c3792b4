#include "preview/findings_listing.h"

namespace preview {

void FindingsListing::onFinding(const Finding& finding) {
    const bool complaint = finding.kind == Finding::Kind::Complaint;
    complaints_ += complaint ? 1U : 0U;
    if (complaint || withRemarks_) {
        out_ << source_ << ": byte " << finding.offset << ": " << finding.text << '\n';
    }
}

}  // namespace preview
