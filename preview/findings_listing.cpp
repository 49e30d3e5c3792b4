#include "preview/findings_listing.h"

#include "preview/label_words.h"

namespace preview {
namespace {

// So many different texts are kept. Of a stream that is wrong in more ways each of the others is
// written whenever it is found.
constexpr std::size_t mostTexts = 1000;

}  // namespace

void FindingsListing::onFinding(const tspl::Finding& finding) {
    const bool complaint = finding.kind == tspl::Finding::Kind::Complaint;
    isComplainedOf_ = isComplainedOf_ || complaint;
    if ((complaint || told_.remarks) && !isRepeated(finding.text)) {
        out_ << source_ << ": line " << finding.line << ", byte " << finding.offset << ": "
             << finding.text << '\n';
    }
}

void FindingsListing::onLabel(const tspl::PrintedLabel& label) {
    if (told_.sizes && isComplainedOf_ && label.dpiSource != tspl::DpiSource::Given) {
        writeSize(label);
    }
    endLabel();
}

void FindingsListing::writeSize(const tspl::PrintedLabel& label) {
    const std::string size = describeSize(label);
    if (size != size_) {
        out_ << source_ << ": label " << label.number << ": " << size << '\n';
        size_ = size;
    }
}

void FindingsListing::onLostLabel() {
    endLabel();
}

void FindingsListing::endLabel() {
    ++label_;
    isComplainedOf_ = false;
}

bool FindingsListing::isRepeated(const std::string& text) {
    const auto known = places_.find(text);
    if (known == places_.end()) {
        if (found_.size() < mostTexts) {
            places_.emplace(text, found_.size());
            found_.push_back({text, label_});
        }
        return false;
    }
    Repeat& repeat = found_[known->second];
    ++repeat.times;
    if (repeat.lastLabel != label_) {
        repeat.lastLabel = label_;
        ++repeat.labels;
    }
    return true;
}

void FindingsListing::writeRepeats() const {
    for (const Repeat& repeat : found_) {
        if (repeat.times == 0) {
            continue;
        }
        const bool oncePerLabel = repeat.times == repeat.labels;
        out_ << source_ << ": and " << repeat.times << (oncePerLabel ? " more label" : " more time")
             << (repeat.times == 1 ? ": " : "s: ") << repeat.text << '\n';
    }
}

}  // namespace preview
