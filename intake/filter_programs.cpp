#include "intake/filter_programs.h"

#include <unistd.h>

#include <cstdlib>

#include "intake/job_failure.h"

namespace intake {
namespace {

bool isThere(const FilterPrograms& programs, const std::string& name) {
    return access(programs.pathOf(name).c_str(), X_OK) == 0;
}

void require(const FilterPrograms& programs, const std::string& name) {
    if (!isThere(programs, name)) {
        throw JobFailure("The filter " + name + " is missing in " + programs.folder);
    }
}

std::string findConverter(const FilterPrograms& programs) {
    for (const char* name : {"gstoraster", "pdftoraster"}) {
        if (isThere(programs, name)) {
            return name;
        }
    }
    throw JobFailure("Neither the filter gstoraster nor pdftoraster is in " + programs.folder);
}

}  // namespace

std::string serverBin() {
    const char* folder = std::getenv("CUPS_SERVERBIN");
    return folder == nullptr || *folder == '\0' ? KESTO_CUPS_SERVERBIN : folder;
}

FilterPrograms findPrograms(const ProgramNeeds& needs) {
    FilterPrograms programs{serverBin() + "/filter", {}};
    require(programs, "rastertokestotspl");
    if (needs.separatesContent) {
        require(programs, "rastertokestocontent");
    }
    if (needs.kind == DocumentKind::Picture) {
        require(programs, "picturetokestolabel");
    }
    if (needs.cutsLabels) {
        require(programs, "pdftokestolabels");
    }
    if (needs.isLaidOut) {
        require(programs, "pdftopdf");
        programs.converter = findConverter(programs);
    }
    return programs;
}

}  // namespace intake
