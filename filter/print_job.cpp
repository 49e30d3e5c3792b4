#include "filter/print_job.h"

#include <cstdio>

#include "filter/cancellation.h"
#include "filter/job_settings.h"
#include "filter/recording_file.h"

KestoPrinter* sPrinter = nullptr;

bool PrintJob::openInput(const char* path) {
    return input_.open(path);
}

void PrintJob::createPrinter() {
    printer_ = std::make_unique<TsplPrinter>();
    sPrinter = printer_.get();
}

void PrintJob::readSettings(const char* options) {
    parseSettings(&settings_, options);
}

void PrintJob::startRecording() {
    if (settings_.outputFileName[0] == '\0') {
        return;
    }
    recording_ = openRecordingFile(settings_.outputFileName);
    if (recording_) {
        printer_->getOutputStreams()->push_back(recording_.get());
    }
}

// The message names another limit than the one tested; both are what users of the log know.
bool PrintJob::hasPaperSize() const {
    constexpr double smallest = 0.000001;
    const double width = static_cast<double>(settings_.pageWidth);
    const double height = static_cast<double>(settings_.pageHeight);
    if (smallest >= width || smallest >= height) {
        std::fprintf(stderr, "ERROR: Paper size must not less than 1.0 : (%f, %f)\n", width,
                     height);
        return false;
    }
    return true;
}

void PrintJob::sendPreamble() {
    constexpr int lineFeeds = 64;
    for (int i = 0; i < lineFeeds && !isCancelled(); ++i) {
        printer_->printByte('\n');
    }
}
