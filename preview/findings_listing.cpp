#include "preview/findings_listing.h"

#include "preview/label_words.h"

namespace preview {
namespace {

// So many different texts are kept. Of a stream that is wrong in more ways each of the others is
// written whenever it is found.
constexpr std::size_t mostTexts = 1000;

// The text with each of its numbers as a #.
std::string shapeOf(const std::string& text) {
    std::string shape;
    for (const char c : text) {
        const bool isDigit = c >= '0' && c <= '9';
        if (!isDigit) {
            shape += c;
        } else if (shape.empty() || shape.back() != '#') {
            shape += '#';
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
    shapes_.clear();
}

// A label's texts of one shape are numbered: its second one is told apart from its first one, and
// is like the second one of another label.
std::optional<std::size_t> FindingsListing::findRepeated(const std::string& text) {
    if (const auto known = texts_.find(text); known != texts_.end()) {
        return known->second;
    }
    std::string shape = shapeOf(text);
    shape += '\n' + std::to_string(++shapes_[shape]);
    const auto known = places_.find(shape);
    if (known == places_.end() && found_.size() == mostTexts) {
        return std::nullopt;
    }
    const std::size_t place = known == places_.end() ? found_.size() : known->second;
    texts_.emplace(text, place);
    if (known != places_.end()) {
        return place;
    }
    places_.emplace(shape, place);
    found_.push_back({text, label_});
    return std::nullopt;
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
