#include "intake/page_road.h"

#include <string>
#include <string_view>

#include "intake/descriptor.h"
#include "intake/file_copy.h"
#include "intake/job_failure.h"
#include "intake/printing_step.h"
#include "intake/raster_gate.h"
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
          options_(stepOptions(plan.options, plan.label, isPicture())),
          layoutDescription_(describe("layout.ppd", sizes::JobStep::Layout)) {}

    void print() {
        const std::string document = isPicture() ? makePdf() : plan_.document.path;
        convert(layOut(document));
    }

private:
    bool isPicture() const { return plan_.document.kind == DocumentKind::Picture; }

    std::string describe(std::string_view name, sizes::JobStep step) const {
        return folder_.write(name, sizes::jobDescription(plan_.description, plan_.label.page,
                                                         plan_.label.name, step));
    }

    std::string makePdf() {
        std::string picture = folder_.pathOf("picture.pdf");
        runToFile({"imagetopdf", layoutDescription_, "image/png", sOneCopy, options_.picture.text(),
                   plan_.document.path},
                  picture, "the picture is damaged, or of a kind that it does not know");
        return picture;
    }

    // Poppler's converter learns the number of copies from a file only.
    std::string layOut(const std::string& document) {
        std::string pages = folder_.pathOf("pages.pdf");
        runToFile({"pdftopdf", layoutDescription_, "application/pdf", plan_.arguments.copies,
                   options_.layout.text(), document},
                  pages, "the document is damaged, or needs a password");
        return pages;
    }

    void runToFile(const StepCall& call, const std::string& path, std::string_view usualReason) {
        const Descriptor nothing = openFile("/dev/null");
        Pipe pipe = makePipe();
        const pid_t child = supervisor_.start(commandFor(call, plan_, folder_), Role::Converter,
                                              nothing.number(), pipe.writeEnd.number());
        pipe.writeEnd.close();
        copyToFile(pipe.readEnd.number(), path, supervisor_);
        supervisor_.waitForEnd(child);
        failIfFailed(child, usualReason);
        // For want of a page pdftopdf writes nothing, or a line end and no more.
        if (documentAt(path).kind != DocumentKind::Pdf) {
            failWithoutPage();
        }
    }

    void convert(const std::string& pages) {
        const bool isGhostscript = plan_.programs.converter == "gstoraster";
        const std::string description = describe(
            "raster.ppd", isGhostscript ? sizes::JobStep::Ghostscript : sizes::JobStep::Poppler);
        const Descriptor nothing = openFile("/dev/null");
        Pipe raster = makePipe();
        const StepCall call{plan_.programs.converter,   description,
                            "application/vnd.cups-pdf", sOneCopy,
                            options_.laidOut.text(),    pages};
        const pid_t converter = supervisor_.start(commandFor(call, plan_, folder_), Role::Converter,
                                                  nothing.number(), raster.writeEnd.number());
        raster.writeEnd.close();
        if (!waitForPage(raster.readEnd.number(), supervisor_)) {
            supervisor_.waitForEnd(converter);
            failIfFailed(converter, {});
            failWithoutPage();
        }
        print(std::move(raster.readEnd), converter);
    }

    // The filter reads from the converter itself; nothing passes through here.
    void print(Descriptor raster, pid_t converter) {
        const pid_t filter = startPrinting(plan_, layoutDescription_, options_.laidOut.text(),
                                           raster.number(), folder_, supervisor_);
        raster.close();
        while (supervisor_.isRunning(filter)) {
            supervisor_.wait({});
        }
        // What a converter has to say when its reader is gone is not the reason for anything.
        failIfPrintingFailed(filter, supervisor_);
        supervisor_.waitForEnd(converter);
        failIfFailed(converter, {});
    }

    void failIfFailed(pid_t child, std::string_view usualReason) const {
        if (!supervisor_.hasFailed(child)) {
            return;
        }
        std::string text = supervisor_.fateOf(child);
        if (folder_.isFull()) {
            text += ": there is no room for temporary files in " + folder_.path();
        } else if (!usualReason.empty()) {
            text += ": " + std::string(usualReason);
        }
        throw JobFailure(text);
    }

    [[noreturn]] static void failWithoutPage() {
        throw JobFailure("The document has no page to print");
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
