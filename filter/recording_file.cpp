#include "filter/recording_file.h"

#include <cerrno>
#include <cstring>

#include "driver/log.h"

RecordingFile openRecordingFile(const char* name) {
    RecordingFile file(std::fopen(name, "w"));
    if (file) {
        kestoLogCommon(kestoLogTrace, "Filter data output to: %s", name);
    } else {
        kestoLogCommon(kestoLogError, "Unable to open the recording file %s: %s", name,
                       std::strerror(errno));
    }
    return file;
}
