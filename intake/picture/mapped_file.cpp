#include "intake/picture/mapped_file.h"

#include <sys/mman.h>
#include <sys/stat.h>

#include "intake/descriptor.h"
#include "intake/job_failure.h"

namespace intake::picture {

MappedFile::MappedFile(const std::string& path) {
    const Descriptor file = openFile(path);
    struct stat status {};
    if (fstat(file.number(), &status) != 0) {
        failWithReason("Unable to read " + path);
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size == 0) {
        return;
    }
    void* const start = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file.number(), 0);
    if (start == MAP_FAILED) {
        failWithReason("Unable to read " + path);
    }
    bytes_ = {static_cast<const unsigned char*>(start), size};
}

MappedFile::~MappedFile() {
    if (!bytes_.empty()) {
        munmap(const_cast<unsigned char*>(bytes_.data()), bytes_.size());
    }
}

}  // namespace intake::picture
