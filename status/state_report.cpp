#include "status/state_report.h"

#include <algorithm>
#include <utility>

namespace status {
namespace {

bool has(const std::vector<std::string>& list, const std::string& text) {
    return std::find(list.begin(), list.end(), text) != list.end();
}

// Those of `list` that are not in `others`, as one line, or nothing.
std::string difference(const char* sign, const std::vector<std::string>& list,
                       const std::vector<std::string>& others) {
    std::string line;
    for (const std::string& reason : list) {
        if (!has(others, reason)) {
            line += line.empty() ? sign : ",";
            line += reason;
        }
    }
    return line;
}

std::vector<std::string> splitAtCommas(const std::string& text) {
    std::vector<std::string> parts;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(',', start), text.size());
        parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

// The scheduler says "paused" of a queue that it has stopped itself.
std::vector<std::string> ownOf(const std::vector<std::string>& reasons) {
    std::vector<std::string> own;
    for (const std::string& reason : allReasons()) {
        if (reason != "paused" && has(reasons, reason)) {
            own.push_back(reason);
        }
    }
    return own;
}

}  // namespace

StateReport::StateReport(Line line, const std::string& standing)
    : line_(std::move(line)), standing_(ownOf(splitAtCommas(standing))) {}

StateReport::~StateReport() {
    clear();
}

void StateReport::show(StatusByte status) {
    set(status.reasons());
    const std::string before = shown_.words();
    const std::string words = status.words();
    shown_ = status;
    if (words == before) {
        return;
    }
    if (words.empty()) {
        line_("INFO: The printer goes on.");
    } else {
        line_((status.hasError() ? "ERROR: " : "INFO: ") + words);
    }
}

void StateReport::clear() {
    set({});
}

void StateReport::set(const std::vector<std::string>& reasons) {
    for (const std::string& change :
         {difference("STATE: -", standing_, reasons), difference("STATE: +", reasons, standing_)}) {
        if (!change.empty()) {
            line_(change);
        }
    }
    standing_ = reasons;
}

}  // namespace status
