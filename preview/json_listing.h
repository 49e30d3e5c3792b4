#pragma once

#include <ostream>

#include "tspl/sink.h"

namespace preview {

/// Lists commands, labels and findings for programs: one JSON object per line, in the order in
/// which the printer comes to them. Bytes that are not printable ASCII stand as \xNN.
class JsonListing : public tspl::Sink {
public:
    explicit JsonListing(std::ostream& out) : out_(out) {}

    void onEntry(const tspl::Entry& entry) override;
    void onFinding(const tspl::Finding& finding) override;
    void onLabel(const tspl::PrintedLabel& label) override;

private:
    std::ostream& out_;
};

}  // namespace preview
