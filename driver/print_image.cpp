#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "driver/blank_lines.h"
#include "driver/kesto_printer.h"
#include "driver/log.h"
#include "image/malloc_buffer.h"

namespace {

constexpr unsigned topEdge = 2;
constexpr unsigned bottomEdge = 8;

constexpr const char* originTemplate = "/var/spool/cups/tmp/origin_%d-%d-%d_%d_%d_%d_%ld.bmp";
constexpr const char* ditheredTemplate = "/var/spool/cups/tmp/dithered_%d-%d-%d_%d_%d_%d_%ld.bmp";

MallocBuffer allocate(std::size_t size) {
    return MallocBuffer(static_cast<unsigned char*>(std::malloc(size)));
}

// What page processing is to have of the buffer for its result, which nobody reads. Only a page
// whose rows are longer than it is wide goes through the buffer, and a stencil reads the gaps
// between its rows; all other pages leave that much memory untouched.
std::span<unsigned char> usedPart(unsigned char* buffer, std::size_t size, bool hasGaps) {
    if (!hasGaps) {
        return {};
    }
    std::memset(buffer, 0, size);
    return {buffer, size};
}

}  // namespace

void KestoPrinter::printImage(const unsigned char* data, std::size_t bytesPerLine,
                              std::size_t height, std::size_t width) {
    kestoLogCommon(kestoLogTrace,
                   "printImage: Start processing image, input width: %zu, height: %zu, "
                   "bytes per line: %zu",
                   width, height, bytesPerLine);
    pageOutcome_ = PageOutcome::LeftOut;
    const std::size_t size = bytesPerLine * height;
    MallocBuffer scratch = allocate(size);  // held while the page lasts, and never looked at
    if (!scratch) {
        kestoLogCommon(kestoLogError,
                       "printImage: Memory allocation failed, unable to process image, "
                       "exiting processing");
        kestoLogCommon(kestoLogTrace, "printImage: Image processing completed");
        return;
    }
    kestoLogCommon(kestoLogTrace, "printImage: Memory allocated successfully, size: %zu bytes",
                   size);
    const BlankEdges edges = countBlankEdges(data, bytesPerLine, height, width);
    dumpImage(originTemplate, "original", {data, bytesPerLine, height, width});
    const MallocBuffer processed = allocate(2 * size);
    if (processed) {
        kestoLogCommon(kestoLogTrace,
                       "printImage: Memory for processing result allocated successfully, "
                       "size: %zu bytes",
                       size);
        PageProcess(halftoneType_, data, static_cast<int>(bytesPerLine), static_cast<int>(width),
                    static_cast<int>(height),
                    usedPart(processed.get(), 2 * size, bytesPerLine > width));
        logProcessedPage(processed.get(), bytesPerLine, height, width, edges);
        dumpImage(ditheredTemplate, "processed", finishedRows());
        printFinishedImage();
    } else {
        kestoLogCommon(kestoLogError,
                       "printImage: Memory allocation for processing result failed, unable to "
                       "continue processing");
    }
    scratch.reset();
    kestoLogCommon(kestoLogTrace, "printImage: Freed the allocated memory, address: %p",
                   static_cast<void*>(scratch.get()));
    if (processed) {
        kestoLogCommon(kestoLogTrace,
                       "printImage: Freed the memory for processing result, address: %p",
                       static_cast<void*>(processed.get()));
    }
    kestoLogCommon(kestoLogTrace, "printImage: Image processing completed");
}

// The row length goes in as the examined width and the width as the row distance: the two are
// equal on the pages that queues send.
KestoPrinter::BlankEdges KestoPrinter::countBlankEdges(const unsigned char* data,
                                                       std::size_t bytesPerLine, std::size_t height,
                                                       std::size_t width) const {
    BlankEdges edges;
    if ((removeBlankEdges_ & bottomEdge) != 0) {
        edges.bottom =
            kestoImageCountBlankLinesFromBack(data, bytesPerLine, height, skipRightPixels_, width);
        kestoLogCommon(kestoLogTrace,
                       "printImage: Removal of bottom blank edges detected, number of bottom "
                       "blank lines: %zu",
                       edges.bottom);
    }
    if ((removeBlankEdges_ & topEdge) != 0) {
        edges.top =
            kestoImageCountBlankLinesFromFront(data, bytesPerLine, height, skipRightPixels_, width);
        kestoLogCommon(kestoLogTrace,
                       "printImage: Removal of top blank edges detected, number of top blank "
                       "lines: %zu",
                       edges.top);
    }
    return edges;
}

// The blank edges only show in the log: the whole finished image is printed. Row length and
// width stand in each other's place in the second line.
void KestoPrinter::logProcessedPage(const unsigned char* processed, std::size_t bytesPerLine,
                                    std::size_t height, std::size_t width, BlankEdges edges) const {
    std::size_t adjustedHeight = height;
    if (edges.bottom > edges.top) {
        adjustedHeight = edges.bottom - edges.top;
        processed += edges.top * bytesPerLine;
        kestoLogCommon(kestoLogTrace,
                       "printImage: Adjusted image height to %zu, pointer offset by %zu bytes",
                       adjustedHeight, edges.top * bytesPerLine);
    }
    kestoLogCommon(kestoLogTrace,
                   "printImage: Processed image information - pointer address: %lu, width: %zu, "
                   "height: %zu, bytes per line: %zu, number of top blank lines: %zu, number of "
                   "bottom blank lines: %zu, adjusted height: %zu",
                   static_cast<unsigned long>(reinterpret_cast<std::uintptr_t>(processed)),
                   bytesPerLine, height, width, edges.top, edges.bottom, adjustedHeight);
}

void KestoPrinter::dumpImage(const char* pathTemplate, const char* kind, const PixelRows& rows) {
    setDumpTemplate(pathTemplate);
    kestoLogCommon(kestoLogTrace,
                   "printImage: Saving %s image, file path will be generated based on time", kind);
    if (rows.data != nullptr) {
        saveImage(rows.data, rows.bytesPerLine, rows.height, rows.width, 8);
    }
}

// Without data for an image that is not there, or that a step without memory left empty or packed.
KestoPrinter::PixelRows KestoPrinter::finishedRows() const {
    if (pimage_ == nullptr || !pimage_->IsValid() || pimage_->GetHeader().biBitCount != 8) {
        return {};
    }
    return {pimage_->GetBits(0), pimage_->GetEffWidth(),
            static_cast<std::size_t>(pimage_->GetHeight()),
            static_cast<std::size_t>(pimage_->GetWidth())};
}

void KestoPrinter::printFinishedImage() {
    kestoLogCommon(kestoLogTrace, "printImage: Starting to print the processed image");
    const PixelRows rows = finishedRows();
    if (rows.data == nullptr) {
        pageOutcome_ = PageOutcome::LeftOut;
        kestoLogCommon(kestoLogError, "printImage: pimage is NULL, unable to print the image");
        return;
    }
    doPrintImage(rows.data, rows.bytesPerLine, rows.height, rows.width);
}
