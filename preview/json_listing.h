#pragma once

#include <ostream>

#include "preview/stream_listing.h"

namespace preview {

/// Lists commands, labels and findings for programs: one JSON object per line, in the order in
/// which the printer comes to them; streams are objects, too. Bytes that are not printable ASCII
/// stand as \xNN.
class JsonListing : public StreamListing {
public:
    explicit JsonListing(std::ostream& out) : out_(out) {}

    void onStream(const std::string& name) override;
    void onEntry(const tspl::Entry& entry) override;
    void onFinding(const tspl::Finding& finding) override;
    void onLabel(const tspl::PrintedLabel& label) override;

private:
    std::ostream& out_;
};

}  // namespace preview
