#include "filter/recording_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

#include "driver/log.h"

OwnedFile openRecordingFile(std::span<char> name) {
    OwnedFile file = openNewFile(name.data(), ownerOnly);
    const std::string wanted = name.data();
    const std::size_t end = wanted.size() - (wanted.ends_with(".bin") ? 4 : 0);
    for (int number = 2; !file && errno == EEXIST && number <= mostNames; ++number) {
        const std::string next =
            wanted.substr(0, end) + "-" + std::to_string(number) + wanted.substr(end);
        if (next.size() >= name.size()) {
            break;
        }
        std::snprintf(name.data(), name.size(), "%s", next.c_str());
        file = openNewFile(name.data(), ownerOnly);
    }
    if (file) {
        kestoLogCommon(kestoLogTrace, "Filter data output to: %s", name.data());
    } else {
        kestoLogCommon(kestoLogError, "Unable to open the recording file %s: %s", name.data(),
                       std::strerror(errno));
    }
    return file;
}
