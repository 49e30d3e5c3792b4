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

/// What of a job says which programs it needs.
struct ProgramNeeds {
    DocumentKind kind;
    bool isLaidOut;         ///< pages are laid out and converted
    bool separatesContent;  ///< text and the like are told from pictures
    bool cutsLabels;        ///< labels are found on pages and cut out
};

/// Looks for those that a job needs below $CUPS_SERVERBIN or where CUPS was installed. Throws
/// JobFailure with the name of the one that is missing.
FilterPrograms findPrograms(const ProgramNeeds& needs);

/// The folder of the scheduler's programs.
std::string serverBin();

}  // namespace intake
