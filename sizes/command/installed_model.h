#pragma once

#include <string>

#include "sizes/printer_model.h"

namespace sizes {

/// The description of an installed model, as the scheduler would hand it out: asks CUPS's program
/// for that, in the folder $CUPS_SERVERBIN or else the one that CUPS was built for.
/// @throw Failure when CUPS or the driver is not installed
std::string installedDescription(const PrinterModel& model);

}  // namespace sizes
