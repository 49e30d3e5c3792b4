#pragma once

#include "preview/label_range.h"
#include "tspl/sink.h"

namespace preview {

/// Passes on the labels of a range, and everything that is no label.
class ChosenLabels : public tspl::Sink {
public:
    /// Without a range every label is passed on. `next` must outlive this.
    ChosenLabels(tspl::Sink& next, const std::optional<LabelRange>& range)
        : next_(next), range_(range) {}

    void onEntry(const tspl::Entry& entry) override { next_.onEntry(entry); }
    void onFinding(const tspl::Finding& finding) override { next_.onFinding(finding); }
    void onLabel(const tspl::PrintedLabel& label) override;
    void onLostLabel() override;

    /// Number of labels so far, chosen or not, with those that could not be drawn.
    [[nodiscard]] std::uint64_t labels() const { return labels_; }
    /// Whether a range was given and no label of it has come.
    [[nodiscard]] bool missesRange() const { return range_.has_value() && chosen_ == 0; }

private:
    bool chooseNext();

    tspl::Sink& next_;
    std::optional<LabelRange> range_;
    std::uint64_t labels_ = 0;
    std::uint64_t chosen_ = 0;
};

}  // namespace preview
