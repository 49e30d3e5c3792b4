#include "intake/document_file.h"

#include <unistd.h>

#include "intake/descriptor.h"
#include "intake/job_failure.h"

namespace intake {
namespace {

std::string beginningOf(const std::string& path) {
    const Descriptor file = openFile(path);
    std::string beginning(tellingBytes, '\0');
    std::size_t size = 0;
    while (size < beginning.size()) {
        const ssize_t got = read(file.number(), beginning.data() + size, beginning.size() - size);
        if (got < 0) {
            failWithReason("Unable to read " + path);
        }
        if (got == 0) {
            break;
        }
        size += static_cast<std::size_t>(got);
    }
    beginning.resize(size);
    return beginning;
}

}  // namespace

Document documentAt(const std::string& path) {
    // The names in it are constants, so nothing of the text is needed any longer.
    return documentOf(beginningOf(path));
}

}  // namespace intake
