#include "preview/picture_names.h"

#include <filesystem>
#include <set>

namespace preview {
namespace {

namespace fs = std::filesystem;

fs::path folderOf(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : ".";
}

std::string stemOf(const std::string& input) {
    const std::string stem = fs::path(input).stem().string();
    return input == "-" || stem.empty() ? "label" : stem;
}

std::vector<std::string> stemsOf(const std::vector<std::string>& inputs) {
    std::vector<std::string> stems;
    stems.reserve(inputs.size());
    for (const std::string& input : inputs) {
        stems.push_back(stemOf(input));
    }
    return stems;
}

// The first input of a name keeps it. A made-up name is none that an input has by itself.
void makeDifferent(std::vector<std::string>& stems) {
    const std::set<std::string> own(stems.begin(), stems.end());
    std::set<std::string> taken;
    for (std::string& stem : stems) {
        std::string name = stem;
        for (int number = 2; taken.contains(name) || (name != stem && own.contains(name));
             ++number) {
            name = stem + "_" + std::to_string(number);
        }
        taken.insert(name);
        stem = name;
    }
}

}  // namespace

std::vector<std::string> pictureNames(const std::vector<std::string>& inputs,
                                      const std::optional<std::string>& prefix) {
    if (prefix && inputs.size() == 1 && !prefix->ends_with('/')) {
        return {*prefix};
    }
    std::vector<std::string> names = stemsOf(inputs);
    makeDifferent(names);
    if (prefix) {
        const std::string start = prefix->ends_with('/') ? *prefix : *prefix + "-";
        for (std::string& name : names) {
            name.insert(0, start);
        }
    }
    return names;
}

bool isPictureName(const std::string& prefix, const std::string& file) {
    const fs::path start = prefix;
    const fs::path path = file;
    const std::string beginning = start.filename().string() + "-";
    const std::string name = path.filename().string();
    constexpr std::string_view ending = ".png";
    if (!name.starts_with(beginning) || !name.ends_with(ending) ||
        name.size() <= beginning.size() + ending.size()) {
        return false;
    }
    const std::string number =
        name.substr(beginning.size(), name.size() - beginning.size() - ending.size());
    std::error_code none;
    return number.find_first_not_of("0123456789") == std::string::npos &&
           fs::equivalent(folderOf(start), folderOf(path), none);
}

}  // namespace preview
