#include "tests/support/temporary_folder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    std::string name = (fs::temp_directory_path() / "kesto-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("no temporary folder " + name);
    }
    folder_ = name;
    fs::permissions(folder_,
                    fs::perms::group_exec | fs::perms::group_read | fs::perms::others_exec |
                        fs::perms::others_read,
                    fs::perm_options::add);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

std::string TemporaryFolder::write(const std::string& name, const std::string& content) const {
    std::ofstream(path(name), std::ios::binary) << content;
    return path(name);
}

std::set<std::string> TemporaryFolder::names() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

std::string readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

reference::Bytes readBytes(const std::string& path) {
    const std::string content = readFile(path);
    return {content.begin(), content.end()};
}
