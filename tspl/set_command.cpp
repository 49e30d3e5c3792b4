#include "tspl/set_command.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "tspl/text.h"

namespace tspl {
namespace {

// Settings that are on or off.
constexpr std::string_view sSwitches[] = {"TEAR",   "PEEL", "STRIPER", "BACK", "REWIND",
                                          "RIBBON", "HEAD", "REPRINT", "KEY1", "KEY2",
                                          "KEY3",   "LED1", "LED2",    "LED3", "DEBUG"};

// Settings with values of their own.
constexpr std::string_view sSettings[] = {
    "APPLICATOR",   "COUNTER", "GAP",     "BLINE",   "COM1",    "PRINTKEY",   "RESPONSE",
    "PRINTQUALITY", "STANDBY", "ENCODER", "USBHOST", "PRINTER", "SENSOR_REF", "LABELERROR"};

// It cuts after each label, after a job, or after a number of labels.
bool isCutting(std::string_view value) {
    constexpr std::int32_t mostLabels = 65535;
    const auto labels = parseInteger(value);
    return value == "ON" || value == "OFF" || value == "BATCH" ||
           (labels && *labels >= 0 && *labels <= mostLabels);
}

template <std::size_t N>
bool contains(const std::string_view (&names)[N], std::string_view name) {
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

// A numbered input or output, such as GPO1.
bool isPort(std::string_view key) {
    return (key.starts_with("GPO") || key.starts_with("GPI")) &&
           (key.size() == 3 || parseInteger(key.substr(3)));
}

// "TEAR OFF" as its two words; the second one is empty when there is none.
std::pair<std::string, std::string> keyAndValue(const Command& command) {
    const std::string all = upperCase(command.text.substr(command.text.find_first_of("tT") + 1));
    const std::string_view words = trimmed(all);
    const auto end = std::min(words.find_first_of(" \t="), words.size());
    std::string_view value = trimmed(words.substr(end));
    if (value.starts_with('=')) {
        value = trimmed(value.substr(1));
    }
    return {std::string(words.substr(0, end)), std::string(value)};
}

// What a key switches on and off after a label; null for other keys.
bool* stateOf(std::string_view key, AfterLabel& afterLabel) {
    const std::pair<std::string_view, bool*> states[] = {
        {"TEAR", &afterLabel.tear},
        {"PEEL", &afterLabel.peel},
        {"STRIPER", &afterLabel.strip},
        {"CUTTER", &afterLabel.cut},
        {"PARTIAL_CUTTER", &afterLabel.partCut},
    };
    for (const auto& [name, state] : states) {
        if (name == key) {
            return state;
        }
    }
    return nullptr;
}

}  // namespace

std::optional<std::string> obeySet(const Command& command, AfterLabel& afterLabel) {
    const auto [key, value] = keyAndValue(command);
    const bool isSwitch = contains(sSwitches, key);
    const bool isCutter = key == "CUTTER" || key == "PARTIAL_CUTTER";
    if (!isSwitch && !isCutter && !contains(sSettings, key) && !isPort(key)) {
        return "SET does not take " + printable(key);
    }
    if (value.empty()) {
        return "SET " + key + " without a value";
    }
    if (key == "RIBBON" && (value == "INSIDE" || value == "OUTSIDE")) {
        return std::nullopt;
    }
    const bool off = value == "OFF" || (isCutter && value == "0");
    if (isSwitch && !off && value != "ON") {
        return "SET " + key + " takes ON or OFF, not " + printable(value);
    }
    if (isCutter && !isCutting(value)) {
        return "SET " + key + " takes ON, OFF, BATCH or 0 to 65535, not " + printable(value);
    }
    if (bool* state = stateOf(key, afterLabel)) {
        *state = !off;
    }
    return std::nullopt;
}

}  // namespace tspl
