#pragma once

#include "tspl/printer.h"

namespace tspl {

// What draws a code of a command whose rule is met. Each throws CodeFault when it is not drawn.

void drawBarcode(Printer& printer, const Command& command);
void drawQrCode(Printer& printer, const Command& command);
void drawDataMatrix(Printer& printer, const Command& command);

}  // namespace tspl
