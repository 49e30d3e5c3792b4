#include "filter/tspl_printer.h"

#include <cstdio>

#include "filter/cancellation.h"
#include "filter/tspl_page_commands.h"

namespace {

void sendPackedRow(KestoPrinter& printer, const unsigned char* pixels, std::int32_t width) {
    unsigned packed = 0;
    for (std::int32_t c = 0; c < width; ++c) {
        packed |= pixels[c] == 0 ? 0x80U >> (c % 8) : 0;
        if (c % 8 == 7) {
            printer.printByte(static_cast<unsigned char>(packed));
            packed = 0;
        }
    }
    if (width % 8 != 0) {
        printer.printByte(static_cast<unsigned char>(packed | 0xFFU >> (width % 8)));
    }
}

}  // namespace

void TsplPrinter::doPrintImage(const unsigned char* pixels, std::size_t /*bytesPerLine*/,
                               std::size_t height, std::size_t width) {
    if (isCancelled()) {
        return;
    }
    const auto columns = static_cast<std::int32_t>(width);
    const auto rows = static_cast<std::int32_t>(height);
    setBitmapCmdHead(0, 0, static_cast<int>((width + 7) / 8), rows, 0);
    for (std::int32_t row = 0; row < rows; ++row) {
        sendPackedRow(*this, pixels, columns);
        pixels += width;
    }
    printStr("\r\n");
    // Handed on before the decision to print: a slow printer may take the data for long, and the
    // job be cancelled meanwhile.
    for (std::FILE* stream : outputStreams_) {
        std::fflush(stream);
    }
    if (!isCancelled()) {
        setPrint(1, static_cast<int>(getPageHeader()->NumCopies));
    }
}
