#pragma once

#include <string>

#include "intake/road_plan.h"
#include "intake/supervisor.h"
#include "intake/temporary_folder.h"

namespace intake {

/// What prints: the filter, and what separates the content in front of it, when that is wanted.
struct PrintingPrograms {
    pid_t filter = 0;
    pid_t separator = 0;  ///< 0: none
};

/// Starts rastertokestotspl, which writes to this process's standard output, and in front of it
/// rastertokestocontent where content is to be separated. The first of them reads the raster.
PrintingPrograms startPrinting(const RoadPlan& plan, const std::string& description,
                               const std::string& options, int raster,
                               const TemporaryFolder& folder, Supervisor& supervisor);

/// Sleeps until all have ended. Throws JobFailure when one has failed.
void finishPrinting(const PrintingPrograms& programs, Supervisor& supervisor);

}  // namespace intake
