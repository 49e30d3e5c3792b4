#pragma once

#include <cups/ppd.h>

#include "filter/settings.h"

/// Fills `settings` from the PPD named by the environment variable PPD and from the job's
/// option string, which overrides the PPD's defaults, and logs them. Without a PPD every field
/// holds its default and the page size is 0.
void parseSettings(Settings* settings, const char* options);

/// Sets the page size in mm from the PPD's chosen "PageSize"; 0 × 0 when there is none.
void getPageWidthPageHeight(ppd_file_t* ppd, Settings* settings);
