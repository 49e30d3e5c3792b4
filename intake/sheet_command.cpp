#include "intake/sheet_command.h"

#include "sizes/dot_grid.h"

namespace intake {

Command sheetCommand(const RoadPlan& plan, const OptionList& options,
                     const TemporaryFolder& folder) {
    const sizes::PointSize label = sizes::labelPoints(plan.label.nominal);
    Command command;
    command.path = plan.programs.pathOf("pdftokestolabels");
    command.arguments = {"pdftokestolabels", "--label",
                         sizes::lengthText(label.width) + "x" + sizes::lengthText(label.height)};
    for (const Option& option : options.all()) {
        command.arguments.insert(command.arguments.end(), {"-o", option.name + "=" + option.value});
    }
    command.arguments.push_back(plan.document.path);
    command.variables = {{"TMPDIR", folder.path()}};
    return command;
}

}  // namespace intake
