#pragma once

#include <cstdio>

#include "intake/sheet/command_line.h"

namespace intake::sheet {

/// Writes the labels on a file's pages to a stream, each on a page of its own, and what was found
/// to the log. Pages on which nothing like a label is, and pages that are of the label's size
/// already, are written whole: as they are when no page has a label to cut out, else on pages of
/// the same size as the labels, since pdftopdf scales all pages of a document or none. Throws
/// JobFailure.
void cutLabels(const CommandLine& line, std::FILE* output);

}  // namespace intake::sheet
