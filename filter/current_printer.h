#pragma once

#include "driver/kesto_printer.h"

/// The job's one printer, through which the TSPL commands are written; null before it is
/// created and once the job is over. Not owned.
extern KestoPrinter* sPrinter;
