#include "intake/descriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include "intake/job_failure.h"

namespace intake {

void Descriptor::close() {
    if (number_ >= 0) {
        ::close(number_);
        number_ = -1;
    }
}

Pipe makePipe() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        failWithReason("Unable to make a pipe");
    }
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

Descriptor openFile(const std::string& path) {
    Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.number() < 0) {
        failWithReason("Unable to open " + path);
    }
    return file;
}

Descriptor makeFile(const std::string& path) {
    Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (file.number() < 0) {
        failWithReason("Unable to make the temporary file " + path);
    }
    return file;
}

}  // namespace intake
