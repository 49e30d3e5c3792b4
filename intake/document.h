#pragma once

#include <string>

#include "intake/document_kind.h"
#include "intake/job_arguments.h"
#include "intake/supervisor.h"
#include "intake/temporary_folder.h"

namespace intake {

/// A document to print: a file, and what it is.
struct PrintableDocument {
    std::string path;
    DocumentKind kind = DocumentKind::Pdf;
};

/// Takes the job's file, or makes one of standard input: all programs want to read it from its
/// beginning, some of them more than once. Throws JobFailure when it is nothing that can be
/// printed.
PrintableDocument takeDocument(const JobArguments& arguments, const TemporaryFolder& folder,
                               Supervisor& supervisor);

}  // namespace intake
