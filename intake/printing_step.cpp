#include "intake/printing_step.h"

#include <unistd.h>

#include "intake/descriptor.h"
#include "intake/job_failure.h"

namespace intake {
namespace {

Command separatorFor(const RoadPlan& plan, const TemporaryFolder& folder) {
    Command command;
    command.path = plan.programs.pathOf("rastertokestocontent");
    command.arguments = {"rastertokestocontent"};
    command.variables = {{"TMPDIR", folder.path()}};
    return command;
}

void failIfFailed(pid_t child, const Supervisor& supervisor) {
    if (supervisor.hasFailed(child)) {
        throw JobFailure(supervisor.fateOf(child));
    }
}

}  // namespace

PrintingPrograms startPrinting(const RoadPlan& plan, const std::string& description,
                               const std::string& options, int raster,
                               const TemporaryFolder& folder, Supervisor& supervisor) {
    PrintingPrograms programs;
    Pipe separated;
    if (plan.separatesContent) {
        separated = makePipe();
        const Command separator = separatorFor(plan, folder);
        programs.separator =
            supervisor.start(separator, Role::Converter, raster, separated.writeEnd.number());
        separated.writeEnd.close();
        raster = separated.readEnd.number();
    }
    const StepCall call{
        "rastertokestotspl", description, "application/vnd.cups-raster", "1", options, {}};
    programs.filter =
        supervisor.start(commandFor(call, plan, folder), Role::Printing, raster, STDOUT_FILENO);
    return programs;
}

// When the filter fails, what stands before it may do so for want of a reader.
void finishPrinting(const PrintingPrograms& programs, Supervisor& supervisor) {
    supervisor.waitForEnd(programs.filter);
    failIfFailed(programs.filter, supervisor);
    if (programs.separator != 0) {
        supervisor.waitForEnd(programs.separator);
        failIfFailed(programs.separator, supervisor);
    }
}

}  // namespace intake
