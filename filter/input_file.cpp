#include "filter/input_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

InputFile::~InputFile() {
    if (descriptor_ > 0) {
        ::close(descriptor_);
    }
}

bool InputFile::open(const char* path) {
    if (path == nullptr) {
        return true;
    }
    descriptor_ = ::open(path, O_RDONLY | O_CLOEXEC);
    if (descriptor_ == -1) {
        std::fprintf(stderr, "ERROR: Unable to open raster file - ");
        return false;
    }
    return true;
}
