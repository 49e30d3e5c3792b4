#include "intake/conversion.h"

#include "intake/descriptor.h"
#include "intake/document_file.h"
#include "intake/file_copy.h"
#include "intake/job_failure.h"
#include "intake/printing_step.h"
#include "intake/raster_gate.h"

namespace intake {
namespace {

[[noreturn]] void failWithoutPage() {
    throw JobFailure("The document has no page to print");
}

void failIfFailed(pid_t child, std::string_view usualReason, const TemporaryFolder& folder,
                  const Supervisor& supervisor) {
    if (!supervisor.hasFailed(child)) {
        return;
    }
    std::string text = supervisor.fateOf(child);
    if (folder.isFull()) {
        text += ": there is no room for temporary files in " + folder.path();
    } else if (supervisor.hasSaidWhy(child)) {
        throw FailureSaid();
    } else if (!usualReason.empty()) {
        text += ": " + std::string(usualReason);
    }
    throw JobFailure(text);
}

// The converter writes to those who print; nothing passes through here.
void printBehind(pid_t converter, Descriptor raster, const Conversion& conversion,
                 const RoadPlan& plan, const TemporaryFolder& folder, Supervisor& supervisor) {
    const PrintingPrograms printing = startPrinting(
        plan, conversion.description, conversion.options, raster.number(), folder, supervisor);
    raster.close();
    // What a converter has to say when its reader is gone is not the reason for anything.
    finishPrinting(printing, supervisor);
    supervisor.waitForEnd(converter);
    failIfFailed(converter, {}, folder, supervisor);
}

}  // namespace

void printConverted(const Conversion& conversion, const RoadPlan& plan,
                    const TemporaryFolder& folder, Supervisor& supervisor) {
    const Descriptor nothing = openFile("/dev/null");
    Pipe raster = makePipe();
    const pid_t converter = supervisor.start(conversion.command, Role::Converter, nothing.number(),
                                             raster.writeEnd.number());
    raster.writeEnd.close();
    if (!waitForPage(raster.readEnd.number(), supervisor)) {
        supervisor.waitForEnd(converter);
        failIfFailed(converter, {}, folder, supervisor);
        failWithoutPage();
    }
    printBehind(converter, std::move(raster.readEnd), conversion, plan, folder, supervisor);
}

void convertToFile(const Command& command, const std::string& path, std::string_view usualReason,
                   const TemporaryFolder& folder, Supervisor& supervisor) {
    const Descriptor nothing = openFile("/dev/null");
    Pipe pipe = makePipe();
    const pid_t child =
        supervisor.start(command, Role::Converter, nothing.number(), pipe.writeEnd.number());
    pipe.writeEnd.close();
    copyToFile(pipe.readEnd.number(), path, supervisor);
    supervisor.waitForEnd(child);
    failIfFailed(child, usualReason, folder, supervisor);
    // For want of a page pdftopdf writes nothing, or a line end and no more.
    if (documentAt(path).kind != DocumentKind::Pdf) {
        failWithoutPage();
    }
}

}  // namespace intake
