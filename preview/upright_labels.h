#pragma once

#include "tspl/sink.h"

namespace preview {

/// Passes labels on as they are read, whichever way they leave the printer.
class UprightLabels : public tspl::Sink {
public:
    /// `next` must outlive this.
    explicit UprightLabels(tspl::Sink& next) : next_(next) {}

    void onEntry(const tspl::Entry& entry) override { next_.onEntry(entry); }
    void onFinding(const tspl::Finding& finding) override { next_.onFinding(finding); }
    void onLabel(const tspl::PrintedLabel& label) override {
        tspl::PrintedLabel upright = label;
        upright.picture.turnUpright();
        next_.onLabel(upright);
    }
    void onLostLabel() override { next_.onLostLabel(); }

private:
    tspl::Sink& next_;
};

}  // namespace preview
