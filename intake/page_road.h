#pragma once

#include "intake/road_plan.h"
#include "intake/supervisor.h"
#include "intake/temporary_folder.h"

namespace intake {

/// Prints a PDF file, the labels that pdftokestolabels finds on its pages, or a picture whose pages
/// are laid out further, with CUPS's own filters:
/// pdftopdf, gstoraster or pdftoraster, and then rastertokestotspl, which is not started before
/// there is a page for it. Throws JobFailure with the name of the program that failed first.
void printPages(const RoadPlan& plan, const TemporaryFolder& folder, Supervisor& supervisor);

}  // namespace intake
