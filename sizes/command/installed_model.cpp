#include "sizes/command/installed_model.h"

#include <cstdlib>

#include "sizes/command/child_process.h"
#include "sizes/command/failure.h"

namespace sizes {
namespace {

std::string driverProgram() {
    const char* folder = std::getenv("CUPS_SERVERBIN");
    return std::string(folder != nullptr ? folder : KESTO_CUPS_SERVERBIN) + "/daemon/cups-driverd";
}

}  // namespace

std::string installedDescription(const PrinterModel& model) {
    const std::string address = "drv:///kesto-tspl.drv/" + std::string(model.pcFileName);
    const auto end = runChild({driverProgram(), "cat", address});
    if (!end) {
        throw Failure("CUPS is not installed here: name a PPD file with -b");
    }
    if (!end->isWell || end->output.empty()) {
        throw Failure("the driver is not installed here: name a PPD file with -b");
    }
    return end->output;
}

}  // namespace sizes
