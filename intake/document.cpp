#include "intake/document.h"

#include <unistd.h>

#include <string_view>

#include "intake/descriptor.h"
#include "intake/file_copy.h"
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

DocumentKind printableKind(const Document& document) {
    if (document.kind == DocumentKind::Empty) {
        throw JobFailure("The document has no page to print");
    }
    if (document.kind == DocumentKind::Other) {
        throw JobFailure(document.name.empty()
                             ? "The document's kind is not known: it is no PDF file, no raster and "
                               "no picture"
                             : "The document is " + std::string(document.name) +
                                   ", which cannot be printed");
    }
    return document.kind;
}

}  // namespace

Document documentAt(const std::string& path) {
    // The names in it are constants, so nothing of the text is needed any longer.
    return documentOf(beginningOf(path));
}

PrintableDocument takeDocument(const JobArguments& arguments, const TemporaryFolder& folder,
                               Supervisor& supervisor) {
    std::string path = arguments.file;
    if (path.empty()) {
        path = folder.pathOf("document");
        copyToFile(STDIN_FILENO, path, supervisor);
    }
    const DocumentKind kind = printableKind(documentAt(path));
    return {path, kind};
}

}  // namespace intake
