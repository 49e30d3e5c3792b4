#include "preview/findings_listing.h"

#include <algorithm>

#include "preview/label_words.h"

namespace preview {
namespace {

// So many different texts are kept. Of a stream that is wrong in more ways each of the others is
// written whenever it is found.
constexpr std::size_t mostTexts = 1000;

// The text with each of its numbers as a byte that no text has.
std::string shapeOf(const std::string& text) {
    constexpr char number = '\0';
    std::string shape;
    for (const char c : text) {
        const bool isDigit = c >= '0' && c <= '9';
        if (!isDigit) {
            shape += c;
        } else if (shape.empty() || shape.back() != number) {
            shape += number;
        }
    }
    return shape;
}

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
    texts_.clear();
}

// Of an earlier label the same words, else the first ones that differ in numbers, none of them
// twice on a label.
std::optional<std::size_t> FindingsListing::findEarlier(const std::string& text) const {
    const auto isFree = [this](std::size_t place) { return found_[place].lastLabel != label_; };
    if (const auto same = places_.find(text); same != places_.end() && isFree(same->second)) {
        return same->second;
    }
    const auto alike = shapes_.find(shapeOf(text));
    if (alike == shapes_.end()) {
        return std::nullopt;
    }
    const auto first = std::find_if(alike->second.begin(), alike->second.end(), isFree);
    return first == alike->second.end() ? std::nullopt : std::optional(*first);
}

std::optional<std::size_t> FindingsListing::findRepeated(const std::string& text) {
    if (const auto known = texts_.find(text); known != texts_.end()) {
        return known->second;
    }
    const auto earlier = findEarlier(text);
    if (!earlier && found_.size() == mostTexts) {
        return std::nullopt;
    }
    texts_.emplace(text, earlier.value_or(found_.size()));
    if (!earlier) {
        places_.emplace(text, found_.size());
        shapes_[shapeOf(text)].push_back(found_.size());
        found_.push_back({text, label_});
    }
    return earlier;
}

bool FindingsListing::isRepeated(const std::string& text) {
    const auto place = findRepeated(text);
    if (!place) {
        return false;
    }
    Repeat& repeat = found_[*place];
    ++repeat.times;
    repeat.otherNumbers = repeat.otherNumbers || repeat.text != text;
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
             << (repeat.times == 1 ? "" : "s")
             << (repeat.otherNumbers ? ", with other numbers: " : ": ") << repeat.text << '\n';
    }
}

}  // namespace preview
