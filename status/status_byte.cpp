#include "status/status_byte.h"

#include <algorithm>
#include <array>

namespace status {
namespace {

constexpr std::uint8_t headOpen = 0x01;
constexpr std::uint8_t jammed = 0x02;
constexpr std::uint8_t outOfLabels = 0x04;
constexpr std::uint8_t outOfRibbon = 0x08;
constexpr std::uint8_t paused = 0x10;
constexpr std::uint8_t printing = 0x20;
constexpr std::uint8_t coverOpen = 0x40;
constexpr std::uint8_t otherError = 0x80;

constexpr std::uint8_t errors =
    headOpen | jammed | outOfLabels | outOfRibbon | coverOpen | otherError;

struct Meaning {
    std::uint8_t bit;
    const char* reason;
    const char* words;
};

constexpr std::array<Meaning, 7> meanings{{
    {outOfLabels, "media-empty-error", "is out of labels"},
    {jammed, "media-jam-error", "has a paper jam"},
    {headOpen, "cover-open-error", "has its head open"},
    {coverOpen, "cover-open-error", "has its cover open"},
    {outOfRibbon, "marker-supply-empty-error", "is out of ribbon"},
    {paused, "paused", "is paused"},
    {otherError, "other-error", "reports an error of its own, or is too hot"},
}};

void addOnce(std::vector<std::string>& list, const char* text) {
    if (std::find(list.begin(), list.end(), text) == list.end()) {
        list.emplace_back(text);
    }
}

}  // namespace

bool StatusByte::isPossible() const {
    constexpr std::uint8_t idleLine = 0xff;
    return bits_ != idleLine;
}

bool StatusByte::isPrinting() const {
    return (bits_ & printing) != 0;
}

bool StatusByte::isPaused() const {
    return (bits_ & paused) != 0;
}

bool StatusByte::hasError() const {
    return (bits_ & errors) != 0;
}

std::vector<std::string> StatusByte::reasons() const {
    std::vector<std::string> list;
    for (const Meaning& meaning : meanings) {
        if ((bits_ & meaning.bit) != 0) {
            addOnce(list, meaning.reason);
        }
    }
    return list;
}

std::string StatusByte::words() const {
    std::string text;
    for (const Meaning& meaning : meanings) {
        if ((bits_ & meaning.bit) != 0) {
            text += text.empty() ? "The printer " : ", and ";
            text += meaning.words;
        }
    }
    return text.empty() ? text : text + ".";
}

const std::vector<std::string>& allReasons() {
    static const std::vector<std::string> all = [] {
        std::vector<std::string> list;
        for (const Meaning& meaning : meanings) {
            addOnce(list, meaning.reason);
        }
        return list;
    }();
    return all;
}

}  // namespace status
