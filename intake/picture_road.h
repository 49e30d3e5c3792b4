#pragma once

#include "intake/road_plan.h"
#include "intake/supervisor.h"
#include "intake/temporary_folder.h"

namespace intake {

/// Prints a picture: picturetokestolabel makes the label's dots of it, and rastertokestotspl prints
/// them. Throws JobFailure, or FailureSaid when the picture cannot be printed.
void printPicture(const RoadPlan& plan, const TemporaryFolder& folder, Supervisor& supervisor);

/// The command that makes labels of the job's picture: as a PDF file for a program that lays them
/// out further, else as raster.
Command pictureCommand(const RoadPlan& plan, const OptionList& options, bool isPdf,
                       const TemporaryFolder& folder);

}  // namespace intake
