#include "intake/sheet/scratch_file.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "intake/job_failure.h"

namespace intake::sheet {
namespace {

std::string folderOfTemporaryFiles() {
    const char* const folder = std::getenv("TMPDIR");
    return folder == nullptr || *folder == '\0' ? "/tmp" : folder;
}

// Not every kind of file system makes files without a name.
int makeNameless(const std::string& folder) {
    const int file = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file >= 0) {
        return file;
    }
    std::string path = folder + "/kesto-XXXXXX";
    const int named = mkostemp(path.data(), O_CLOEXEC);
    if (named >= 0) {
        unlink(path.c_str());
    }
    return named;
}

}  // namespace

ScratchFile::ScratchFile() {
    const std::string folder = folderOfTemporaryFiles();
    const int file = makeNameless(folder);
    if (file >= 0) {
        stream_.reset(fdopen(file, "w+b"));
    }
    if (!stream_) {
        failWithReason("Unable to make a temporary file in " + folder);
    }
}

ScratchFile::~ScratchFile() {
    if (!bytes_.empty()) {
        munmap(const_cast<char*>(bytes_.data()), bytes_.size());
    }
}

std::span<const char> ScratchFile::map() {
    struct stat status {};
    if (std::fflush(stream_.get()) != 0 || fstat(fileno(stream_.get()), &status) != 0) {
        failWithReason("Unable to write a temporary file");
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    void* const start = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fileno(stream_.get()), 0);
    if (start == MAP_FAILED) {
        failWithReason("Unable to read a temporary file");
    }
    bytes_ = {static_cast<const char*>(start), size};
    return bytes_;
}

}  // namespace intake::sheet
