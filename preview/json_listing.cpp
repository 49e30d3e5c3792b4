#include "preview/json_listing.h"

#include <nlohmann/json.hpp>

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

}  // namespace

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
                       {"text", finding.text}};
    out_ << line << '\n';
}

void JsonListing::onLabel(const tspl::PrintedLabel& label) {
    const Json line = {{"type", "label"},
                       {"number", label.number},
                       {"width", label.picture.width()},
                       {"height", label.picture.height()},
                       {"dpi", label.picture.dpi()},
                       {"sets", label.sets},
                       {"copies", label.copies},
                       {"burntDots", label.picture.burntDots()}};
    out_ << line << '\n';
}

}  // namespace preview
