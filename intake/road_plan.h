#pragma once

#include <string>

#include "intake/command.h"
#include "intake/document.h"
#include "intake/filter_programs.h"
#include "intake/job_arguments.h"
#include "intake/label_choice.h"
#include "intake/option_list.h"
#include "intake/temporary_folder.h"

namespace intake {

/// What is known of a job when its programs are started.
struct RoadPlan {
    const JobArguments& arguments;
    const PrintableDocument& document;
    const FilterPrograms& programs;
    const OptionList& options;
    const std::string& description;  ///< the text of the queue's PPD file
    const Label& label;
    int dpi;
    bool separatesContent;  ///< text and the like from pictures
    bool isSheet;           ///< labels are found on the document's pages and cut out
};

/// What one program of a job is told.
struct StepCall {
    std::string program;      ///< its name
    std::string description;  ///< the PPD file it is given
    std::string contentType;  ///< of what it reads
    std::string copies;
    std::string options;
    std::string file;  ///< empty: standard input
};

/// The command for a step. All steps work for the same raster, and keep their files in the folder.
Command commandFor(const StepCall& call, const RoadPlan& plan, const TemporaryFolder& folder);

}  // namespace intake
