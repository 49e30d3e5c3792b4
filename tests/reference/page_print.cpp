#include "tests/reference/page_print.h"

#include "tests/reference/blank_rows.h"
#include "tests/reference/bmp.h"
#include "tests/reference/tspl.h"

namespace reference {

namespace {

void trace(PrintedPage& result, const std::string& message) {
    result.log.push_back(debugLine("printImage: " + message));
}

std::size_t pageBytes(const PageHeader& header) {
    return std::size_t{header.bytesPerLine} * header.height;
}

/// The blank-row counts at the two ends, 0 unless measured.
struct BlankRows {
    std::size_t top = 0;
    std::size_t bottom = 0;
};

BlankRows measureBlankRows(PrintedPage& result, const Page& page,
                           const PageProperties& properties) {
    // The rows are looked at as if bytesPerLine were their width and width their distance.
    const PageHeader& header = page.header;
    const BlankArea area{header.bytesPerLine, header.height, properties.skipRightPixels,
                         header.width};
    BlankRows blank;
    if ((properties.removeBlankEdges & 8U) != 0) {
        blank.bottom = blankRowsFromBack(page.rows, area);
        trace(result, formatted("Removal of bottom blank edges detected, number of bottom blank "
                                "lines: %zu",
                                blank.bottom));
    }
    if ((properties.removeBlankEdges & 2U) != 0) {
        blank.top = blankRowsFromFront(page.rows, area);
        trace(result, formatted("Removal of top blank edges detected, number of top blank "
                                "lines: %zu",
                                blank.top));
    }
    return blank;
}

void saveDump(PrintedPage& result, PrinterState& printer, const char* name, const Bytes& dump) {
    const long index = printer.dumpIndex++;
    if (printer.dumpFolderWritable) {
        result.dumps.push_back(dump);
        return;
    }
    result.log.push_back(
        formatted("KestoPrinter::saveImage: unable to open the file "
                  "/var/spool/cups/tmp/%s_<time>_%ld.bmp",
                  name, index));
}

void dumpRawPage(PrintedPage& result, PrinterState& printer, const Page& page) {
    trace(result, "Saving original image, file path will be generated based on time");
    const PageHeader& header = page.header;
    saveDump(result, printer, "origin", greyDump(page.rows, header.width, header.height));
}

void dumpFinishedPage(PrintedPage& result, PrinterState& printer) {
    trace(result, "Saving processed image, file path will be generated based on time");
    if (printer.finished) {
        const GreyImage& image = *printer.finished;
        saveDump(result, printer, "dithered",
                 greyDump(image.bytes, static_cast<std::uint32_t>(image.width),
                          static_cast<std::uint32_t>(image.height)));
    }
}

void process(PrintedPage& result, PrinterState& printer, const Page& page,
             const PageProperties& properties) {
    const ProcessedPage processed = processPage(page, properties);
    append(result.log, processed.log);
    if (processed.finished) {
        printer.finished = processed.finished;
    }
}

void traceAdjustment(PrintedPage& result, const PageHeader& header, const BlankRows& blank) {
    std::size_t height = header.height;
    if (blank.bottom > blank.top) {
        height = blank.bottom - blank.top;
        trace(result, formatted("Adjusted image height to %zu, pointer offset by %zu bytes", height,
                                blank.top * header.bytesPerLine));
    }
    // The values named width and bytes per line change places here.
    trace(result,
          formatted("Processed image information - pointer address: <address>, width: %u, "
                    "height: %u, bytes per line: %u, number of top blank lines: %zu, number of "
                    "bottom blank lines: %zu, adjusted height: %zu",
                    header.bytesPerLine, header.height, header.width, blank.top, blank.bottom,
                    height));
}

void sendImage(PrintedPage& result, const PrinterState& printer, const PageHeader& header) {
    trace(result, "Starting to print the processed image");
    if (!printer.finished) {
        result.log.push_back(errorLine("printImage: pimage is NULL, unable to print the image"));
        return;
    }
    result.output = bitmapCommand(*printer.finished) + printCommand(header.copies);
}

}  // namespace

PrintedPage printPage(const Page& page, const PageProperties& properties, PrinterState& printer) {
    const PageHeader& header = page.header;
    PrintedPage result;
    trace(result, formatted("Start processing image, input width: %u, height: %u, bytes per "
                            "line: %u",
                            header.width, header.height, header.bytesPerLine));
    trace(result, formatted("Memory allocated successfully, size: %zu bytes", pageBytes(header)));
    const BlankRows blank = measureBlankRows(result, page, properties);
    dumpRawPage(result, printer, page);
    trace(result, formatted("Memory for processing result allocated successfully, size: %zu bytes",
                            pageBytes(header)));
    process(result, printer, page, properties);
    traceAdjustment(result, header, blank);
    dumpFinishedPage(result, printer);
    sendImage(result, printer, header);
    trace(result, "Freed the allocated memory, address: (nil)");
    trace(result, "Freed the memory for processing result, address: <address>");
    trace(result, "Image processing completed");
    return result;
}

}  // namespace reference
