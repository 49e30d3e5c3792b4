#include "intake/sheet_command.h"

#include "sizes/dot_grid.h"

namespace intake {

namespace {

std::string sizeText(const sizes::PointSize& size) {
    constexpr int decimals = 6;
    return sizes::lengthText(size.width, decimals) + "x" + sizes::lengthText(size.height, decimals);
}

}  // namespace

Command sheetCommand(const RoadPlan& plan, const OptionList& options,
                     const TemporaryFolder& folder) {
    Command command;
    command.path = plan.programs.pathOf("pdftokestolabels");
    command.arguments = {"pdftokestolabels", "--label",
                         sizeText(sizes::labelPoints(plan.label.nominal)), "--page",
                         sizeText(plan.label.page.points)};
    for (const Option& option : options.all()) {
        command.arguments.insert(command.arguments.end(), {"-o", option.name + "=" + option.value});
    }
    command.arguments.push_back(plan.document.path);
    command.variables = {{"TMPDIR", folder.path()}};
    return command;
}

}  // namespace intake
