#pragma once

#include "tspl/printer.h"

namespace tspl {

// What draws a code of a command whose rule is met. Each throws CodeFault when it is not drawn.

void drawBarcode(Printer& printer, const Command& command);
void drawQrCode(Printer& printer, const Command& command);
void drawDataMatrix(Printer& printer, const Command& command);
void drawPdf417(Printer& printer, const Command& command);
void drawMicroPdf417(Printer& printer, const Command& command);
void drawAztec(Printer& printer, const Command& command);
void drawMaxiCode(Printer& printer, const Command& command);
void drawDataBar(Printer& printer, const Command& command);
void drawCodablock(Printer& printer, const Command& command);

}  // namespace tspl
