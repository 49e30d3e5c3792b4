#pragma once

#include <ostream>
#include <string>

#include "tspl/sink.h"

namespace preview {

/// Writes findings, one per line, and counts the complaints.
class FindingsListing : public tspl::Sink {
public:
    /// `source` is what the lines start with: the name of the stream.
    FindingsListing(std::ostream& out, std::string source, bool withRemarks)
        : out_(out), source_(std::move(source)), withRemarks_(withRemarks) {}

    void onEntry(const tspl::Entry&) override {}
    void onFinding(const tspl::Finding& finding) override;
    void onLabel(const tspl::PrintedLabel&) override {}

    [[nodiscard]] bool hasComplaints() const { return complaints_ > 0; }

private:
    std::ostream& out_;
    std::string source_;
    bool withRemarks_;
    std::uint64_t complaints_ = 0;
};

}  // namespace preview
