#include "intake/option_list.h"

#include <algorithm>
#include <array>

#include "sizes/ascii.h"

namespace intake {
namespace {

constexpr std::string_view sWhite = " \f\n\r\t\v";
// These begin something else than a plain value when they stand first.
constexpr std::string_view sOpening = ",'\"{";

// In a plain value only white space and backslashes mean something; quotes are letters there.
std::string escaped(std::string_view value) {
    std::string text;
    if (!value.empty() && sOpening.find(value.front()) != std::string_view::npos) {
        text += '\\';
    }
    for (const char c : value) {
        if (c == '\\' || sWhite.find(c) != std::string_view::npos) {
            text += '\\';
        }
        text += c;
    }
    return text;
}

auto sameName(std::string_view name) {
    return [name](const Option& option) { return sizes::equalsIgnoringCase(option.name, name); };
}

}  // namespace

void OptionList::set(std::string_view name, std::string_view value) {
    remove(name);
    options_.push_back({std::string(name), std::string(value)});
}

void OptionList::remove(std::string_view name) {
    std::erase_if(options_, sameName(name));
}

void OptionList::remove(std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) {
        remove(name);
    }
}

const std::string* OptionList::find(std::string_view name) const {
    const auto found = std::find_if(options_.begin(), options_.end(), sameName(name));
    return found == options_.end() ? nullptr : &found->value;
}

bool OptionList::has(std::string_view name) const {
    const std::string* value = find(name);
    return value != nullptr && !value->empty();
}

std::string OptionList::text() const {
    std::string text;
    for (const Option& option : options_) {
        const std::string one = option.name + "=" + escaped(option.value);
        if (one.size() <= longestOption) {
            // A text that begins with a brace would be taken for a collection, and lose it.
            text += text.empty() && one.front() != '{' ? "" : " ";
            text += one;
        }
    }
    return text;
}

bool isYes(std::string_view value) {
    constexpr std::array<std::string_view, 3> words{"true", "yes", "on"};
    return std::any_of(words.begin(), words.end(), [value](std::string_view word) {
        return sizes::equalsIgnoringCase(value, word);
    });
}

}  // namespace intake
