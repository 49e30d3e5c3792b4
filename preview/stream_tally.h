#pragma once

#include <cstdint>
#include <string>

#include "tspl/sink.h"

namespace preview {

/// Counts what there is in a stream.
class StreamTally : public tspl::Sink {
public:
    void onEntry(const tspl::Entry&) override {}
    void onFinding(const tspl::Finding& finding) override;
    void onLabel(const tspl::PrintedLabel&) override { ++labels_; }
    void onLostLabel() override { ++labels_; }

    /// Those that are printed, whether they can be drawn or not.
    [[nodiscard]] std::uint64_t labels() const { return labels_; }
    [[nodiscard]] std::uint64_t complaints() const { return complaints_; }
    [[nodiscard]] std::uint64_t remarks() const { return remarks_; }

private:
    std::uint64_t labels_ = 0;
    std::uint64_t complaints_ = 0;
    std::uint64_t remarks_ = 0;
};

/// "20 labels, 2 complaints"; that nothing is printed where there is no label.
std::string describe(const StreamTally& tally);

}  // namespace preview
