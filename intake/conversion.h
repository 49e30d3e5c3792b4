#pragma once

#include <string>
#include <string_view>

#include "intake/road_plan.h"
#include "intake/supervisor.h"
#include "intake/temporary_folder.h"

namespace intake {

/// A program that makes raster, and what the printing filter is told.
struct Conversion {
    Command command;
    std::string description;  ///< the PPD file of the printing filter
    std::string options;      ///< of the printing filter
};

/// Starts the program, and rastertokestotspl behind it as soon as there is a page for it. Throws
/// JobFailure with the name of the one that failed first, or when there is no page.
void printConverted(const Conversion& conversion, const RoadPlan& plan,
                    const TemporaryFolder& folder, Supervisor& supervisor);

/// Runs a program that makes a PDF file of what it reads, to its end. Throws JobFailure when it
/// fails, for the reason that is the usual one if nobody knows better, or makes no page.
void convertToFile(const Command& command, const std::string& path, std::string_view usualReason,
                   const TemporaryFolder& folder, Supervisor& supervisor);

}  // namespace intake
