#include "filter/tspl_printer.h"

#include <algorithm>
#include <cstdio>

#include "filter/cancellation.h"
#include "filter/tspl_commands.h"
#include "lanes/byte_marks.h"
#include "lanes/byte_words.h"

namespace {

constexpr std::size_t blockBytes = sizeof(lanes::Bytes);

// A pixel of 0 is a set bit, and so is every bit behind the last pixel.
void sendPackedRow(KestoPrinter& printer, const unsigned char* pixels, std::size_t width) {
    for (; width >= blockBytes; width -= blockBytes, pixels += blockBytes) {
        const unsigned dots = lanes::packedMarks(lanes::isZero(lanes::loadBytes(pixels)));
        printer.printByte(static_cast<unsigned char>(dots));
        printer.printByte(static_cast<unsigned char>(dots >> 8));
    }
    while (width != 0) {
        const std::size_t part = std::min<std::size_t>(width, 8);
        printer.printByte(packedTopBits(isZero(loadPartOfWord(pixels, part))));
        pixels += part;
        width -= part;
    }
}

}  // namespace

void TsplPrinter::doPrintImage(const unsigned char* pixels, std::size_t /*bytesPerLine*/,
                               std::size_t height, std::size_t width) {
    if (isCancelled()) {
        return;
    }
    const auto rows = static_cast<std::int32_t>(height);
    setBitmapCmdHead(0, 0, static_cast<int>((width + 7) / 8), rows, 0);
    for (std::int32_t row = 0; row < rows; ++row) {
        sendPackedRow(*this, pixels, width);
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
