#include "tests/system/temporary_folder.h"

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

std::string TemporaryFolder::write(std::string_view name, std::string_view content) const {
    const fs::path file = path(name);
    std::ofstream(file, std::ios::binary) << content;
    return file.string();
}

std::string readFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
