#include "tests/system/spool_files.h"

#include <algorithm>
#include <filesystem>
#include <iomanip>
#include <regex>
#include <sstream>

#include "tests/support/temporary_folder.h"

namespace fs = std::filesystem;

namespace {

const fs::path dumpFolder = "/var/spool/cups/tmp";
const fs::path traceFile = "/tmp/xxxxx.log";

std::set<std::string> dumpNames() {
    std::set<std::string> names;
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(dumpFolder, ignored)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

// Dump names carry their numbers without leading zeros.
std::string withoutLeadingZeros(const std::string& text) {
    return std::regex_replace(text, std::regex("(^|[-_])0+([0-9])"), "$1$2");
}

}  // namespace

SpoolFiles::SpoolFiles() : namesBefore_(dumpNames()), start_(std::time(nullptr)) {
    std::error_code ignored;
    fs::remove(traceFile, ignored);
}

std::vector<DumpFile> SpoolFiles::takeDumps() const {
    static const std::regex pattern("(origin|dithered)_([-_0-9]+)_([0-9]+)\\.bmp");
    std::set<std::string> times;
    for (const std::string& time : timesSinceStart("%Y-%m-%d_%H_%M_%S")) {
        times.insert(withoutLeadingZeros(time));
    }
    std::vector<DumpFile> dumps;
    for (const std::string& name : dumpNames()) {
        std::smatch match;
        if (namesBefore_.count(name) != 0 || !std::regex_match(name, match, pattern) ||
            times.count(match[2]) == 0) {
            continue;
        }
        const std::string content = readFile((dumpFolder / name).string());
        dumps.push_back({name, match[1], std::stol(match[3]), {content.begin(), content.end()}});
        fs::remove(dumpFolder / name);
    }
    std::sort(dumps.begin(), dumps.end(),
              [](const DumpFile& a, const DumpFile& b) { return a.index < b.index; });
    return dumps;
}

std::optional<std::string> SpoolFiles::takeTrace() const {
    if (!fs::exists(traceFile)) {
        return std::nullopt;
    }
    std::string content = readFile(traceFile.string());
    fs::remove(traceFile);
    return content;
}

std::set<std::string> SpoolFiles::timesSinceStart(const char* format) const {
    std::set<std::string> times;
    for (std::time_t time = start_; time <= std::time(nullptr); ++time) {
        const std::tm local = *std::localtime(&time);
        std::ostringstream text;
        text << std::put_time(&local, format);
        times.insert(text.str());
    }
    return times;
}
