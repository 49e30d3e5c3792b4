#include "tests/preview/preview_run.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <utility>

#include "tests/system/spool_files.h"

namespace fs = std::filesystem;

FilterCall previewCall(const TemporaryFolder& folder, std::vector<std::string> arguments,
                       const std::string& standardInput) {
    FilterCall call;
    call.program = KESTO_PREVIEWER;
    call.arguments = std::move(arguments);
    call.standardInput = standardInput;
    call.workingFolder = folder.path("");
    return call;
}

FilterResult runPreview(const TemporaryFolder& folder, std::vector<std::string> arguments,
                        const std::string& standardInput) {
    return runFilter(previewCall(folder, std::move(arguments), standardInput));
}

FilterCall shellCall(const TemporaryFolder& folder, const std::string& script) {
    FilterCall call;
    call.program = "/bin/sh";
    call.arguments = {"-c", script};
    call.environment = {{"PREVIEW", KESTO_PREVIEWER}};
    call.workingFolder = folder.path("");
    return call;
}

void runAsStranger(FilterCall& call, const TemporaryFolder& folder) {
    if (geteuid() != 0) {
        fs::permissions(folder.path(""), fs::perms::owner_write, fs::perm_options::remove);
        return;
    }
    const passwd* nobody = getpwnam("nobody");
    if (nobody == nullptr) {
        throw std::runtime_error("no user nobody");
    }
    call.userId = nobody->pw_uid;
}

FilterResult runCheck(const std::string& stream) {
    const TemporaryFolder folder;
    return runPreview(folder, {"--check", "--dpi", "203"}, stream);
}

std::string filterStream(const FilterCall& call) {
    const SpoolFiles files;
    const FilterResult result = runFilter(call);
    files.takeDumps();
    files.takeTrace();
    EXPECT_EQ(result.status, 0) << result.standardError;
    return result.standardOutput;
}

std::string smallLabel(const std::string& bitmap, const std::string& print) {
    return "SIZE 2 mm,1 mm\r\nCLS\r\nBITMAP 0,0,2,8,0," + bitmap + "\r\n" + print;
}

std::string noiseLabel(int width, int height) {
    std::string bitmap;
    unsigned state = 1;
    for (int i = 0; i < width / 8 * height; ++i) {
        state = state * 1664525 + 1013904223;
        bitmap += static_cast<char>(state >> 24U);
    }
    const std::string rows = std::to_string(height);
    return "SIZE " + std::to_string(width) + " dot," + rows + " dot\r\nCLS\r\nBITMAP 0,0," +
           std::to_string(width / 8) + "," + rows + ",0," + bitmap + "\r\nPRINT 1,1\r\n";
}
