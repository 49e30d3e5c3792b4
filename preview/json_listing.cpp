#include "preview/json_listing.h"

#include <nlohmann/json.hpp>

#include "preview/version.h"
#include "tspl/text.h"

namespace preview {
namespace {

// Members stay in the order in which they are written here.
using Json = nlohmann::ordered_json;

Json jsonOf(const tspl::BitmapSummary& bitmap) {
    return {{"width", bitmap.width},
            {"height", bitmap.height},
            {"expectedBytes", bitmap.expectedBytes},
            {"receivedBytes", bitmap.receivedBytes},
            {"burntDots", bitmap.burntDots},
            {"burntShare", bitmap.burntShare()}};
}

Json jsonOf(const std::vector<std::string>& arguments) {
    Json list = Json::array();
    for (const std::string& argument : arguments) {
        list.push_back(tspl::printable(argument));
    }
    return list;
}

const char* nameOf(tspl::DpiSource source) {
    switch (source) {
        case tspl::DpiSource::Given:
            return "option";
        case tspl::DpiSource::Bitmaps:
            return "bitmaps";
        case tspl::DpiSource::LabelBefore:
            return "label before";
        case tspl::DpiSource::Usual:
            break;
    }
    return "default";
}

}  // namespace

// Programs that know this number know the members; it changes when one that there was goes or means
// something else.
void JsonListing::writeSchema(std::ostream& out) {
    constexpr int schema = 1;
    const Json line = {{"type", "schema"},
                       {"version", schema},
                       {"program", std::string("tsplpreview ") + version}};
    out << line << '\n';
}

void JsonListing::onStream(const std::string& name) {
    const Json line = {{"type", "stream"}, {"name", tspl::printable(name)}};
    out_ << line << '\n';
}

void JsonListing::onEntry(const tspl::Entry& entry) {
    Json line = {{"type", entry.name.empty() ? "other" : "command"}, {"offset", entry.offset}};
    if (!entry.name.empty()) {
        line["command"] = entry.name;
        line["arguments"] = jsonOf(entry.arguments);
    }
    line["text"] = tspl::printable(entry.text);
    if (entry.bitmap) {
        line["bitmap"] = jsonOf(*entry.bitmap);
    }
    if (!entry.remark.empty()) {
        line["remark"] = entry.remark;
    }
    out_ << line << '\n';
}

void JsonListing::onFinding(const tspl::Finding& finding) {
    const bool complaint = finding.kind == tspl::Finding::Kind::Complaint;
    const Json line = {{"type", complaint ? "complaint" : "remark"},
                       {"offset", finding.offset},
                       {"line", finding.line},
                       {"text", finding.text}};
    out_ << line << '\n';
}

void JsonListing::onLabel(const tspl::PrintedLabel& label) {
    Json line = {{"type", "label"},
                 {"number", label.number},
                 {"width", label.picture.width()},
                 {"height", label.picture.height()},
                 {"dpi", label.picture.dpi()},
                 {"dpiFrom", nameOf(label.dpiSource)},
                 {"direction", label.placement.turned ? 1 : 0},
                 {"mirrored", label.placement.mirrored},
                 {"sets", label.sets},
                 {"copies", label.copies},
                 {"burntDots", label.picture.burntDots()}};
    if (pictures_ != nullptr && !pictures_->written().empty()) {
        line["picture"] = tspl::printable(pictures_->written());
    }
    out_ << line << '\n';
}

void JsonListing::onEnd(const StreamTally& tally) {
    const Json line = {{"type", "summary"},
                       {"labels", tally.labels()},
                       {"complaints", tally.complaints()},
                       {"remarks", tally.remarks()}};
    out_ << line << '\n';
}

}  // namespace preview
