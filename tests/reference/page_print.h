// The way of one page through the printer: dump, processing, dump, commands.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/reference/grey_image.h"
#include "tests/reference/page.h"
#include "tests/reference/page_process.h"
#include "tests/reference/text.h"

namespace reference {

/// What the printer keeps from page to page.
struct PrinterState {
    /// The last finished image, printed again when a page cannot be loaded.
    std::optional<GreyImage> finished;
    /// Number of the next dump file, counted whether or not it can be written.
    long dumpIndex = 0;
    bool dumpFolderWritable = true;
};

/// What printing one page leaves behind.
struct PrintedPage {
    /// BITMAP and PRINT, empty when there is no image to print.
    std::string output;
    /// Log lines; `<address>` stands for the two addresses of the processing buffer and
    /// `<time>` for the date and time in the name of a dump that cannot be written.
    Lines log;
    /// Content of the dump files written, in order.
    std::vector<Bytes> dumps;
};

/// Prints a page.
PrintedPage printPage(const Page& page, const PageProperties& properties, PrinterState& printer);

}  // namespace reference
