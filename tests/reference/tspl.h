// The TSPL commands of a job. Texts may hold any byte: bitmap data is part of them.
#pragma once

#include <cstdint>
#include <string>

#include "tests/reference/grey_image.h"
#include "tests/reference/page.h"
#include "tests/reference/text.h"

namespace reference {

/// The 64 line feeds that open the output of a job.
std::string preamble();

/// The settings with the page size of a raster page, in millimetres.
Settings withPageSize(const Settings& settings, const PageHeader& header);

/// SIZE for a page of these millimetres.
std::string sizeCommand(float width, float height);

/// GAP or BLINE for a paper type and a gap in millimetres; empty when nothing is sent.
std::string gapCommand(float height, const std::string& paperType);

/// The trace line of the gap rules, if they write one.
Lines gapLog(float height, const std::string& paperType);

/// DIRECTION for a print origin.
std::string directionCommand(const std::string& origin);

/// SPEED for a speed choice; empty when nothing is sent.
std::string speedCommand(const std::string& speed);

/// DENSITY for a darkness; empty when nothing is sent.
std::string densityCommand(int darkness);

/// SET RIBBON for a print method; empty when nothing is sent.
std::string ribbonCommand(const std::string& mediaMethod);

/// SET TEAR, SET PEEL and SET CUTTER for a post-print action; empty when nothing is sent.
std::string postActionCommands(const std::string& postAction);

/// The commands that come before every page, from SIZE to the post-print action. The page
/// size is that of the settings.
std::string setUpBlock(const Settings& settings);

/// The trace lines of sending the set-up block.
Lines setUpLog(const Settings& settings);

/// CLS, which clears the printer's image memory.
std::string clearCommand();

/// BITMAP with its data and line end. Rows are taken `image.width` bytes apart although they
/// lie `image.stride` bytes apart, so a page whose width is no multiple of 4 leans.
std::string bitmapCommand(const GreyImage& image);

/// PRINT for one set of `copies`.
std::string printCommand(std::uint32_t copies);

/// All that is sent for a printed page: set-up block, CLS, BITMAP and PRINT. The SIZE is
/// that of the raster page.
std::string tsplPage(const Settings& settings, const PageHeader& header, const GreyImage& image);

}  // namespace reference
