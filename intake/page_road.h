#pragma once

#include "intake/road_plan.h"
#include "intake/supervisor.h"
#include "intake/temporary_folder.h"

namespace intake {

/// Prints a PDF file or a picture with CUPS's own filters: imagetopdf for a picture, pdftopdf,
/// gstoraster or pdftoraster, and then rastertokestotspl, which is not started before there is a
/// page for it. Throws JobFailure with the name of the program that failed first.
void printPages(const RoadPlan& plan, const TemporaryFolder& folder, Supervisor& supervisor);

}  // namespace intake
