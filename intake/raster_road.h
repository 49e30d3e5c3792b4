#pragma once

#include "intake/road_plan.h"
#include "intake/supervisor.h"
#include "intake/temporary_folder.h"

namespace intake {

/// Prints a document that is raster already: every page is brought to the form that
/// rastertokestotspl prints straight and positive, without being scaled. Throws JobFailure at the
/// first page that cannot be; pages before it stay sent.
void printRaster(const RoadPlan& plan, const TemporaryFolder& folder, Supervisor& supervisor);

}  // namespace intake
