#include "intake/picture_road.h"

#include "intake/conversion.h"
#include "intake/step_options.h"
#include "sizes/job_description.h"

namespace intake {

Command pictureCommand(const RoadPlan& plan, const OptionList& options, bool isPdf,
                       const TemporaryFolder& folder) {
    const sizes::DotSize dots = plan.label.page.dots;
    Command command;
    command.path = plan.programs.pathOf("picturetokestolabel");
    command.arguments = {"picturetokestolabel",
                         "--dots",
                         std::to_string(dots.columns) + "x" + std::to_string(dots.rows),
                         "--dpi",
                         std::to_string(plan.dpi),
                         "--size-name",
                         plan.label.name};
    if (isPdf) {
        command.arguments.emplace_back("--pdf");
    } else {
        command.arguments.insert(command.arguments.end(), {"--copies", plan.arguments.copies});
    }
    for (const Option& option : options.all()) {
        command.arguments.insert(command.arguments.end(), {"-o", option.name + "=" + option.value});
    }
    command.arguments.push_back(plan.document.path);
    command.variables = {{"TMPDIR", folder.path()}, {"MAGICK_TMPDIR", folder.path()}};
    return command;
}

void printPicture(const RoadPlan& plan, const TemporaryFolder& folder, Supervisor& supervisor) {
    const StepOptions options = stepOptions(plan.options, plan.label, true);
    const std::string description =
        folder.write("layout.ppd", sizes::jobDescription(plan.description, plan.label.page,
                                                         plan.label.name, sizes::JobStep::Layout));
    printConverted(
        {pictureCommand(plan, options.picture, false, folder), description, options.laidOut.text()},
        plan, folder, supervisor);
}

}  // namespace intake
