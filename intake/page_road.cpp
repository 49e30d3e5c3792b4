#include "intake/page_road.h"

#include <string>
#include <string_view>

#include "intake/conversion.h"
#include "intake/picture_road.h"
#include "intake/sheet_command.h"
#include "intake/step_options.h"
#include "sizes/job_description.h"

namespace intake {
namespace {

const char* const sOneCopy = "1";

class PageRoad {
public:
    PageRoad(const RoadPlan& plan, const TemporaryFolder& folder, Supervisor& supervisor)
        : plan_(plan),
          folder_(folder),
          supervisor_(supervisor),
          options_(optionsOf(plan)),
          layoutDescription_(describe("layout.ppd", sizes::JobStep::Layout)) {}

    void print() { convert(layOut(makePdf())); }

private:
    static bool isPicture(const RoadPlan& plan) {
        return plan.document.kind == DocumentKind::Picture;
    }

    static StepOptions optionsOf(const RoadPlan& plan) {
        const StepOptions steps = stepOptions(plan.options, plan.label, isPicture(plan));
        return plan.isSheet ? withSheets(steps) : steps;
    }

    std::string describe(std::string_view name, sizes::JobStep step) const {
        return folder_.write(name, sizes::jobDescription(plan_.description, plan_.label.page,
                                                         plan_.label.name, step));
    }

    std::string makePdf() {
        if (isPicture(plan_)) {
            return makePdfOfPicture();
        }
        return plan_.isSheet ? cutLabels() : plan_.document.path;
    }

    std::string makePdfOfPicture() {
        std::string picture = folder_.pathOf("picture.pdf");
        convertToFile(pictureCommand(plan_, options_.picture, true, folder_), picture, {}, folder_,
                      supervisor_);
        return picture;
    }

    std::string cutLabels() {
        std::string labels = folder_.pathOf("labels.pdf");
        convertToFile(sheetCommand(plan_, options_.sheet, folder_), labels, {}, folder_,
                      supervisor_);
        return labels;
    }

    // Poppler's converter learns the number of copies from a file only.
    std::string layOut(const std::string& document) {
        std::string pages = folder_.pathOf("pages.pdf");
        const StepCall call{"pdftopdf",
                            layoutDescription_,
                            "application/pdf",
                            plan_.arguments.copies,
                            options_.layout.text(),
                            document};
        convertToFile(commandFor(call, plan_, folder_), pages,
                      "the document is damaged, or needs a password", folder_, supervisor_);
        return pages;
    }

    void convert(const std::string& pages) {
        const bool isGhostscript = plan_.programs.converter == "gstoraster";
        const std::string description = describe(
            "raster.ppd", isGhostscript ? sizes::JobStep::Ghostscript : sizes::JobStep::Poppler);
        const std::string options = options_.laidOut.text();
        const StepCall call{plan_.programs.converter,
                            description,
                            "application/vnd.cups-pdf",
                            sOneCopy,
                            options,
                            pages};
        printConverted({commandFor(call, plan_, folder_), layoutDescription_, options}, plan_,
                       folder_, supervisor_);
    }

    const RoadPlan& plan_;
    const TemporaryFolder& folder_;
    Supervisor& supervisor_;
    StepOptions options_;
    std::string layoutDescription_;
};

}  // namespace

void printPages(const RoadPlan& plan, const TemporaryFolder& folder, Supervisor& supervisor) {
    PageRoad(plan, folder, supervisor).print();
}

}  // namespace intake
