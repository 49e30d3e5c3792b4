#include "intake/command.h"

#include <unistd.h>

#include <algorithm>
#include <string_view>

namespace intake {
namespace {

bool isReplaced(std::string_view entry, const Variables& variables) {
    return std::any_of(variables.begin(), variables.end(), [entry](const auto& variable) {
        return entry.starts_with(variable.first + "=");
    });
}

}  // namespace

std::vector<std::string> environmentWith(const Variables& variables) {
    std::vector<std::string> environment;
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        if (!isReplaced(*entry, variables)) {
            environment.emplace_back(*entry);
        }
    }
    for (const auto& [name, value] : variables) {
        environment.push_back(name);
        environment.back().append("=").append(value);
    }
    return environment;
}

std::vector<char*> pointersTo(const std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (const std::string& text : texts) {
        pointers.push_back(const_cast<char*>(text.c_str()));
    }
    pointers.push_back(nullptr);
    return pointers;
}

}  // namespace intake
