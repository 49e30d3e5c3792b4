#pragma once

#include <ostream>
#include <string>

#include "tspl/sink.h"

namespace preview {

/// Writes a PNG file for every label: PREFIX-1.png, PREFIX-2.png and so on.
class PictureFiles : public tspl::Sink {
public:
    /// `out` gets a line about each picture unless it is null, `err` the failures.
    PictureFiles(std::string prefix, std::ostream* out, std::ostream& err)
        : prefix_(std::move(prefix)), out_(out), err_(err) {}

    void onEntry(const tspl::Entry&) override {}
    void onFinding(const tspl::Finding&) override {}
    void onLabel(const tspl::PrintedLabel& label) override;
    void onLostLabel() override { failed_ = true; }

    /// The file of the last label's picture; empty when it could not be written.
    [[nodiscard]] const std::string& written() const { return written_; }

    [[nodiscard]] bool hasFailed() const { return failed_; }

private:
    std::string prefix_;
    std::ostream* out_;
    std::ostream& err_;
    std::string written_;
    bool failed_ = false;
};

}  // namespace preview
