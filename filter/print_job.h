#pragma once

#include <cups/raster.h>

#include <memory>

#include "filter/current_printer.h"
#include "filter/input_file.h"
#include "filter/page_buffer.h"
#include "filter/settings.h"
#include "filter/tspl_printer.h"

/// Everything that one job owns, and its steps in the order in which the filter takes them.
/// Steps that can fail say why on standard error or in the log.
class PrintJob {
public:
    PrintJob() = default;
    /// Keeps `sPrinter` from outliving what it writes to.
    ~PrintJob() { sPrinter = nullptr; }
    PrintJob(const PrintJob&) = delete;
    PrintJob& operator=(const PrintJob&) = delete;

    /// Reads from `path`, or from standard input for null.
    bool openInput(const char* path);
    int inputDescriptor() const { return input_.descriptor(); }
    /// Makes the printer and publishes it as `sPrinter`.
    void createPrinter();
    /// Takes the settings from the PPD and the job's option string.
    void readSettings(const char* options);
    /// Adds the recording file to the printer's streams when the settings name one.
    void startRecording();
    /// Whether the PPD gave a paper size.
    bool hasPaperSize() const;
    /// Opens the stream with 64 line feeds, which end whatever a broken job left behind. A job
    /// that is cancelled by then sends nothing.
    void sendPreamble();
    /// Prints every page of the raster and hands all of it on (page_loop.cpp). False when a page
    /// ends the job or the printer cannot be written to. A cancelled job has succeeded.
    bool printPages();

private:
    struct RasterCloser {
        void operator()(cups_raster_t* raster) const { cupsRasterClose(raster); }
    };

    bool printRaster();
    bool readHeader();
    bool printPage();
    void setUpPage();
    void readAndPrintPixels();
    void reportPage() const;
    bool flushOutput();
    void flushRecording();

    // Released from the last to the first: page, raster, input, the recording, the printer.
    std::unique_ptr<TsplPrinter> printer_;
    OwnedFile recording_;
    Settings settings_{};
    int pageCount_ = 0;
    bool outputFailed_ = false;
    cups_page_header2_t header_{};
    InputFile input_;
    std::unique_ptr<cups_raster_t, RasterCloser> raster_;
    PageBuffer page_;
};
