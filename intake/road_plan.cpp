#include "intake/road_plan.h"

namespace intake {

Command commandFor(const StepCall& call, const RoadPlan& plan, const TemporaryFolder& folder) {
    Command command;
    command.path = plan.programs.pathOf(call.program);
    command.arguments = {call.program,         plan.arguments.job, plan.arguments.user,
                         plan.arguments.title, call.copies,        call.options};
    if (!call.file.empty()) {
        command.arguments.push_back(call.file);
    }
    command.variables = {{"PPD", call.description},
                         {"TMPDIR", folder.path()},
                         {"CONTENT_TYPE", call.contentType},
                         {"FINAL_CONTENT_TYPE", "application/vnd.cups-raster"},
                         {"CUPS_SERVERBIN", serverBin()}};
    return command;
}

}  // namespace intake
