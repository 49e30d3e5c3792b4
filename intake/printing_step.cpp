#include "intake/printing_step.h"

#include <unistd.h>

#include "intake/job_failure.h"

namespace intake {

pid_t startPrinting(const RoadPlan& plan, const std::string& description,
                    const std::string& options, int raster, const TemporaryFolder& folder,
                    Supervisor& supervisor) {
    const StepCall call{
        "rastertokestotspl", description, "application/vnd.cups-raster", "1", options, {}};
    return supervisor.start(commandFor(call, plan, folder), Role::Printing, raster, STDOUT_FILENO);
}

void failIfPrintingFailed(pid_t filter, const Supervisor& supervisor) {
    if (supervisor.hasFailed(filter)) {
        throw JobFailure(supervisor.fateOf(filter));
    }
}

}  // namespace intake
