#include "intake/document.h"

#include <unistd.h>

#include <string>

#include "intake/document_file.h"
#include "intake/file_copy.h"
#include "intake/job_failure.h"

namespace intake {
namespace {

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
