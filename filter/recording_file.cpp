#include "filter/recording_file.h"

#include <cerrno>
#include <cstring>

#include "driver/log.h"
#include "driver/own_file.h"

RecordingFile openRecordingFile(const char* name) {
    RecordingFile file(openOwnFile(name, ownerOnly));
    if (file) {
        kestoLogCommon(kestoLogTrace, "Filter data output to: %s", name);
    } else {
        kestoLogCommon(kestoLogError, "Unable to open the recording file %s: %s", name,
                       std::strerror(errno));
    }
    return file;
}
