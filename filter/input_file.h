#pragma once

/// The file descriptor that the raster is read from: standard input unless a file is opened.
/// Closes what it opened, never standard input.
class InputFile {
public:
    InputFile() = default;
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    /// Opens `path`; a null path stays with standard input. Reports a failure to standard
    /// error.
    bool open(const char* path);
    int descriptor() const { return descriptor_; }

private:
    int descriptor_ = 0;
};
