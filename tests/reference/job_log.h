// The log lines of a job that do not belong to the printing of a page's image.
#pragma once

#include <string>

#include "tests/reference/page.h"
#include "tests/reference/text.h"

namespace reference {

/// A page size as the PPD file gives it, in points. `found` is false when the PPD file has no
/// size of the chosen name; the lengths are then 0.
struct PpdSize {
    bool found = true;
    float width = 0;
    float length = 0;
    float left = 0;
    float bottom = 0;
    float right = 0;
    float top = 0;
};

/// The settings with the page size of the PPD file, in millimetres.
Settings withPpdSize(const Settings& settings, const PpdSize& size);

/// The lines of reading the settings. `settings` already holds the PPD file's page size.
Lines settingsLog(const Settings& settings, const PpdSize& size);

/// The line of switching recording on.
std::string recordingLine(const std::string& name);

/// The line that ends a job whose paper has no size.
std::string paperSizeLine(const Settings& settings);

/// The line that ends a job at a page of another depth than 8 bits.
std::string depthLine(const PageHeader& header);

/// The lines from the page's size to its header, the trace of the set-up block included.
/// `settings` already holds the raster page's size; `number` counts pages from 1.
Lines pageStartLog(const Settings& settings, const PageHeader& header, int number);

/// All that the filter writes to standard error when it is called with too few arguments;
/// `program` is its name without the folder.
std::string usageText(const std::string& program);

/// All that the filter writes to standard error when its raster file cannot be opened.
std::string rasterFileErrorText();

}  // namespace reference
