#pragma once

#include <string>

#include "intake/road_plan.h"
#include "intake/supervisor.h"
#include "intake/temporary_folder.h"

namespace intake {

/// Starts rastertokestotspl, which reads raster and writes to this process's standard output.
pid_t startPrinting(const RoadPlan& plan, const std::string& description,
                    const std::string& options, int raster, const TemporaryFolder& folder,
                    Supervisor& supervisor);

/// Throws JobFailure when it has ended so.
void failIfPrintingFailed(pid_t filter, const Supervisor& supervisor);

}  // namespace intake
