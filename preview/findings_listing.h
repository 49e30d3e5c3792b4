#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <unordered_map>
#include <vector>

#include "tspl/sink.h"

namespace preview {

/// What there is to tell besides complaints.
struct ToldFindings {
    bool remarks = false;
    /// Sizes of labels that are complained of, where they hang on a resolution that nobody gave.
    bool sizes = false;
};

/// Writes findings, one per line. What is found again in the same words, as it is on every label
/// of a job, is counted, and told at the end. So is what differs from a finding of an earlier label
/// in its numbers only, as where each label has a longer number on it.
class FindingsListing : public tspl::Sink {
public:
    /// `source` is what the lines start with: the name of the stream.
    FindingsListing(std::ostream& out, std::string source, ToldFindings told)
        : out_(out), source_(std::move(source)), told_(told) {}

    void onEntry(const tspl::Entry&) override {}
    void onFinding(const tspl::Finding& finding) override;
    void onLabel(const tspl::PrintedLabel& label) override;
    void onLostLabel() override;

    /// Tells how often what was found was found again, in the order in which it first was.
    void writeRepeats() const;

private:
    struct Repeat {
        std::string text;
        std::uint64_t lastLabel = 0;
        std::uint64_t times = 0;   ///< after the first one
        std::uint64_t labels = 0;  ///< on which it was found again, without the first one
        bool otherNumbers = false;
    };
    bool isRepeated(const std::string& text);
    [[nodiscard]] std::optional<std::size_t> findEarlier(const std::string& text) const;
    [[nodiscard]] std::optional<std::size_t> findRepeated(const std::string& text);
    void writeSize(const tspl::PrintedLabel& label);
    void endLabel();

    std::ostream& out_;
    std::string source_;
    ToldFindings told_;
    std::uint64_t label_ = 0;
    bool isComplainedOf_ = false;  ///< the label under way
    std::string size_;             ///< that was told last
    std::vector<Repeat> found_;
    std::unordered_map<std::string, std::size_t> places_;  ///< of texts in `found_`
    /// The same for texts without their numbers.
    std::unordered_map<std::string, std::vector<std::size_t>> shapes_;
    /// Of the label under way: what its texts repeat, by place in `found_`.
    std::unordered_map<std::string, std::size_t> texts_;
};

}  // namespace preview
