#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tests/fuzz/fuzz_target.h"

// Runs a harness once on every file of the folders named as arguments, so that ordinary builds and
// test runs keep harnesses and found crashers alive without a fuzzer.

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> filesIn(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

void replay(const fs::path& path) {
    std::printf("%s\n", path.c_str());
    std::fflush(stdout);  // the last name printed is the input that crashed
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    const std::vector<std::uint8_t> data(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(data.data(), data.size());
}

}  // namespace

int main(int argc, char* argv[]) {
    std::size_t count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const fs::path& path : filesIn(argv[i])) {
            replay(path);
            ++count;
        }
    }
    std::printf("%zu inputs replayed\n", count);
    return count > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
