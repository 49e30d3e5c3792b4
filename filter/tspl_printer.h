#pragma once

#include "driver/kesto_printer.h"

/// A printer that speaks TSPL: sends each page as one BITMAP and one PRINT.
class TsplPrinter : public KestoPrinter {
protected:
    /// Sends the page packed to one bit per pixel, 1 for index 0, rows filled up with 1 bits to
    /// whole bytes, and prints as many copies as the page header asks for.
    ///
    /// Of a cancelled job no bitmap is begun. One that is under way is sent to its end, because a
    /// printer takes what follows a cut one for its missing dots; it is not printed.
    ///
    /// Rows are read `width` bytes apart, whatever `bytesPerLine` says: a page whose width is
    /// not a multiple of 4 leans on the print.
    void doPrintImage(const unsigned char* pixels, std::size_t bytesPerLine, std::size_t height,
                      std::size_t width) override;
};
