#pragma once

#include <ostream>

#include "tspl/sink.h"

namespace preview {

/// Last in a list of sinks, it sends what the others have written of a label on its way.
class LabelFlush : public tspl::Sink {
public:
    explicit LabelFlush(std::ostream& out) : out_(out) {}

    /// The PRINT itself is listed behind its label.
    void onEntry(const tspl::Entry&) override {
        if (isPrinted_) {
            flush();
            isPrinted_ = false;
        }
    }
    void onFinding(const tspl::Finding&) override {}
    void onLabel(const tspl::PrintedLabel&) override {
        flush();
        isPrinted_ = true;
    }

    void flush() { out_.flush(); }

private:
    std::ostream& out_;
    bool isPrinted_ = false;
};

}  // namespace preview
