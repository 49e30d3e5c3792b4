#pragma once

#include <cstdio>
#include <memory>

/// Closes a recording file at the end of the job.
struct CFileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// A copy of everything the printer receives; null when nothing is recorded.
using RecordingFile = std::unique_ptr<std::FILE, CFileCloser>;

/// Creates the recording file `name` anew, for this user's eyes only, and logs its name. Null,
/// with one error line, when that fails or something else stands there: the job prints without
/// it.
RecordingFile openRecordingFile(const char* name);
