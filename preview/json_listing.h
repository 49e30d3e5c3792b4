#pragma once

#include <ostream>

#include "preview/preview_sink.h"

namespace preview {

/// Lists commands, labels and findings for programs: one JSON object per line, in the order in
/// which the printer comes to them. Bytes that are not printable ASCII stand as \xNN.
class JsonListing : public PreviewSink {
public:
    explicit JsonListing(std::ostream& out) : out_(out) {}

    void onEntry(const Entry& entry) override;
    void onFinding(const Finding& finding) override;
    void onLabel(const PrintedLabel& label) override;

private:
    std::ostream& out_;
};

}  // namespace preview
