#pragma once

#include <string>
#include <string_view>

#include "sizes/dot_grid.h"

namespace sizes {

/// The programs that make a job's raster; each needs to be told of the page in its own way.
enum class JobStep {
    Layout,       ///< CUPS's filters that lay documents out on pages: pdftopdf, imagetopdf, ...
    Ghostscript,  ///< gstoraster
    Poppler,      ///< pdftoraster
};

/// A copy of a queue's description (the text of its PPD file) for one step of one job. Its only
/// page size has the name `name` and is the default; custom sizes are gone. A document that was
/// laid out on the page gets exactly the dots of `page` from either converter, whatever the size.
/// A description without page sizes comes back without.
///
/// - Layout: the paper has the page's exact points, and all of it is printed on.
/// - Poppler's converter cuts the points of the document's page to whole ones and looks for a size
///   within 1 % of these; when it finds none, which is usual below 100 points, it prints a page of
///   the whole points. So the paper has the whole points, which it always finds, and the imageable
///   area, from which it counts dots, reaches out over the right and lower edges of the paper to
///   the exact points. Pages lie at the area's upper left.
/// - Ghostscript's converter rounds the height of the paper to whole points before it lays the page
///   on it, so that up to two rows at the top or at the bottom are lost. So the paper has a whole
///   height, and its imageable area the exact one. This size, too, is found within 1 % only: a page
///   below 50 points (18 mm) may get the exact paper, and lose these rows.
std::string jobDescription(std::string_view ppd, const LabelPage& page, std::string_view name,
                           JobStep step);

}  // namespace sizes
