#include <cstdio>
#include <cstring>

#include "driver/log.h"
#include "filter/cancellation.h"
#include "filter/output_check.h"
#include "filter/page_geometry.h"
#include "filter/page_trace.h"
#include "filter/print_job.h"
#include "filter/tspl_commands.h"

namespace {

float millimetres(unsigned dots, unsigned dpi) {
    return static_cast<float>(dots * 25.4 / dpi);
}

bool isSupported(const cups_page_header2_t& header) {
    if (header.cupsBitsPerPixel != 8) {
        kestoLogCommon(kestoLogError,
                       "Unsupported bits per pixel : %d ! Requires 8 bits per pixel!",
                       static_cast<int>(header.cupsBitsPerPixel));
        return false;
    }
    return true;
}

// Such a page would be read far beyond the rows that the raster holds for it.
bool isAddressable(const cups_page_header2_t& header) {
    if (!hasPrintableGeometry(header)) {
        kestoLogCommon(kestoLogError,
                       "Unsupported page geometry: %u dots wide, %u bytes per line, %u lines!",
                       header.cupsWidth, header.cupsBytesPerLine, header.cupsHeight);
        return false;
    }
    return true;
}

// The SIZE of such a page is no length, which is for the printer to make something of.
void warnOfNoResolution(const cups_page_header2_t& header) {
    if (header.HWResolution[0] == 0 || header.HWResolution[1] == 0) {
        kestoLogCommon(kestoLogWarning, "Page without a resolution: %u x %u dpi!",
                       header.HWResolution[0], header.HWResolution[1]);
    }
}

}  // namespace

bool PrintJob::printPages() {
    raster_.reset(cupsRasterOpen(input_.descriptor(), CUPS_RASTER_READ));
    if (!raster_ && !isCancelled()) {
        kestoLogCommon(kestoLogError, "Unable to read the document: it is no raster");
    }
    const bool printed = printRaster();
    const bool sent = flushOutput();
    if (isCancelled()) {
        kestoLogCommon(kestoLogTrace, "The job was cancelled");
        return true;
    }
    return printed && sent;
}

bool PrintJob::printRaster() {
    while (readHeader()) {
        if (!isSupported(header_)) {
            return false;
        }
        if (header_.cupsHeight == 0 || header_.cupsBytesPerLine == 0) {
            return true;
        }
        if (!isAddressable(header_) || !printPage() || !flushOutput()) {
            return false;
        }
    }
    return true;
}

// Pages that libcups had at hand when the job was cancelled are not begun.
bool PrintJob::readHeader() {
    return cupsRasterReadHeader2(raster_.get(), &header_) != 0 && !isCancelled();
}

bool PrintJob::printPage() {
    tracePageSize(header_);
    if (!page_.growTo(pageBytes(header_))) {
        kestoLogCommon(kestoLogError, "Unable to print page %d: no memory for its %u bytes",
                       pageCount_ + 1, pageBytes(header_));
        return false;
    }
    setUpPage();
    logPageHeader(++pageCount_, header_);
    readAndPrintPixels();
    return true;
}

void PrintJob::setUpPage() {
    warnOfNoResolution(header_);
    settings_.pageWidth = millimetres(header_.cupsWidth, header_.HWResolution[0]);
    settings_.pageHeight = millimetres(header_.cupsHeight, header_.HWResolution[1]);
    kestoLogCommon(kestoLogTrace, "pageWidth: %f,pageHeight: %f",
                   static_cast<double>(settings_.pageWidth),
                   static_cast<double>(settings_.pageHeight));
    jobSetup(&settings_);
    printer_->setPageHeader(&header_);
    printer_->setBrightness(settings_.Brightness);
    printer_->setHalftoneType(settings_.halftoneType);
    printer_->setMirrorPrint(settings_.MirrorImage != 0);
    printer_->setNegativePrint(settings_.NegativeImage != 0);
    setCls();
}

// A page whose pixels cannot be read is dropped, and the next one is tried.
void PrintJob::readAndPrintPixels() {
    const unsigned read = cupsRasterReadPixels(raster_.get(), page_.data(), pageBytes(header_));
    if (isCancelled()) {
        return;
    }
    if (read == 0) {
        kestoLogCommon(kestoLogError,
                       "Unable to read page %d: the raster ends inside it or is damaged",
                       pageCount_);
        return;
    }
    printer_->printImage(page_.data(), header_.cupsBytesPerLine, header_.cupsHeight,
                         header_.cupsWidth);
    reportPage();
}

void PrintJob::reportPage() const {
    const auto report = [this](const char* fate) {
        kestoLogCommon(kestoLogError, "Page %d was %s", pageCount_, fate);
    };
    switch (printer_->getPageOutcome()) {
        case KestoPrinter::PageOutcome::Printed:
            return;
        case KestoPrinter::PageOutcome::WithoutHalftone:
            return report("printed without its halftone");
        case KestoPrinter::PageOutcome::Repeated:
            return report("not printed; the page before it was, once more");
        case KestoPrinter::PageOutcome::LeftOut:
            return report("not printed");
    }
}

// Whether the printer still takes what it is sent. Commands are written without a look at the
// outcome, so that one failed stream does not keep the others from being served; here, at the end
// of a page, is where a failure shows. When nobody is left to read a cancelled job, nothing is
// wrong.
bool PrintJob::flushOutput() {
    if (recording_) {
        flushRecording();
    }
    if (outputFailed_) {
        return false;
    }
    if (const int reason = flushStream(stdout); reason != 0) {
        outputFailed_ = true;
        kestoLogCommon(isCancelled() ? kestoLogTrace : kestoLogError,
                       "Unable to write to the printer: %s", std::strerror(reason));
    }
    return !outputFailed_;
}

// The print goes on without a recording that has failed.
void PrintJob::flushRecording() {
    if (const int reason = flushStream(recording_.get()); reason != 0) {
        kestoLogCommon(kestoLogError, "Unable to write the recording file %s: %s",
                       settings_.outputFileName, std::strerror(reason));
        printer_->getOutputStreams()->remove(recording_.get());
        recording_.reset();
    }
}
