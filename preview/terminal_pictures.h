#pragma once

#include <ostream>
#include <string>
#include <utility>

#include "preview/terminal_picture.h"
#include "tspl/sink.h"

namespace preview {

/// Shows every label as characters, below a line that tells of it.
class TerminalPictures : public tspl::Sink {
public:
    /// `descriptor` is where `out` goes: each picture is as large as its window is then. `source`
    /// stands before what is told.
    TerminalPictures(std::ostream& out, int descriptor, std::string source)
        : out_(out), descriptor_(descriptor), source_(std::move(source)) {}

    void onEntry(const tspl::Entry&) override {}
    void onFinding(const tspl::Finding&) override {}
    void onLabel(const tspl::PrintedLabel& label) override;
    void onLostLabel() override { failed_ = true; }

    [[nodiscard]] bool hasFailed() const { return failed_; }

private:
    std::ostream& out_;
    int descriptor_;
    std::string source_;
    bool failed_ = false;
};

}  // namespace preview
