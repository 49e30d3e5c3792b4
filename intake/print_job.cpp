#include "intake/print_job.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <utility>

#include "intake/cups_options.h"
#include "intake/job_failure.h"
#include "intake/known_media.h"
#include "intake/page_road.h"
#include "intake/picture_road.h"
#include "intake/queue_choice.h"
#include "intake/raster_road.h"
#include "intake/spooler.h"
#include "intake/step_options.h"

namespace intake {
namespace {

std::string readDescriptionFile() {
    const char* path = std::getenv("PPD");
    if (path == nullptr || *path == '\0') {
        throw JobFailure("The queue has no description: PPD is not set");
    }
    std::ifstream file(path, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    if (!file) {
        throw JobFailure("Unable to read the queue's description " + std::string(path));
    }
    return text;
}

}  // namespace

PrintJob::PrintJob(JobArguments arguments) : arguments_(std::move(arguments)) {}

void PrintJob::takeDocument() {
    document_ = intake::takeDocument(arguments_, folder_, supervisor_);
}

void PrintJob::readQueue() {
    options_ = readOptions(arguments_.options);
    description_ = readDescriptionFile();
    queue_ = readDescription(description_, options_, knownMedia);
    if (queue_.dpi == 0) {
        throw JobFailure("The queue's description names no resolution");
    }
}

void PrintJob::findPrograms() {
    const bool isPdf = document_.kind == DocumentKind::Pdf;
    const bool isLaidOut =
        isPdf || (document_.kind == DocumentKind::Picture && needsLayout(options_));
    isSheet_ = isPdf && findsLabels(description_, options_);
    separatesContent_ = separatesContent(description_, options_);
    programs_ = intake::findPrograms({document_.kind, isLaidOut, separatesContent_, isSheet_});
}

void PrintJob::chooseLabel() {
    const auto ask = [this] { return askForSize(arguments_.job, queue_, knownMedia); };
    const SizeRequest request = readRequest(options_, queue_, knownMedia, ask);
    auto label = intake::chooseLabel(request, queue_, knownMedia);
    if (!label) {
        throw JobFailure("The queue's description has no page size that can be printed");
    }
    label_ = *std::move(label);
}

void PrintJob::print() {
    const RoadPlan plan{arguments_, document_,  programs_,         options_, description_,
                        label_,     queue_.dpi, separatesContent_, isSheet_};
    if (document_.kind == DocumentKind::Raster) {
        return printRaster(plan, folder_, supervisor_);
    }
    if (!label_.difference.empty()) {
        logLine("INFO", label_.difference);
    }
    if (document_.kind == DocumentKind::Picture && !needsLayout(options_)) {
        return printPicture(plan, folder_, supervisor_);
    }
    printPages(plan, folder_, supervisor_);
}

}  // namespace intake
