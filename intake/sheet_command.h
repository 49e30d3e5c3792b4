#pragma once

#include "intake/road_plan.h"

namespace intake {

/// The command that makes a PDF file of the labels on the pages of the job's document.
Command sheetCommand(const RoadPlan& plan, const OptionList& options,
                     const TemporaryFolder& folder);

}  // namespace intake
