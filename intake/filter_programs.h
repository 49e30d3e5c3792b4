#pragma once

#include <string>

#include "intake/document_kind.h"

namespace intake {

/// The names of the programs that print a document, all in the scheduler's folder of filters.
struct FilterPrograms {
    std::string folder;
    std::string converter;  ///< gstoraster, else pdftoraster

    std::string pathOf(const std::string& name) const { return folder + "/" + name; }
};

/// Looks for those that a kind of document needs, when its pages are laid out and converted or when
/// they are not, below $CUPS_SERVERBIN or where CUPS was
/// installed. Throws JobFailure with the name of the one that is missing.
FilterPrograms findPrograms(DocumentKind kind, bool isLaidOut);

/// The folder of the scheduler's programs.
std::string serverBin();

}  // namespace intake
