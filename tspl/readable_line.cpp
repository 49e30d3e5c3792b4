#include "tspl/readable_line.h"

namespace tspl {

void drawReadableLine(Printer& printer, const Command& command, CodeDrawing& /*drawing*/,
                      const ReadableLine& line) {
    if (!line.text.empty()) {
        printer.remark(command, "the text line of " + command.name + " is not drawn");
    }
}

}  // namespace tspl
