#pragma once

#include <string>

#include "tests/reference/job.h"
#include "tests/support/raster_writer.h"
#include "tests/support/temporary_folder.h"
#include "tests/system/filter_process.h"

/// A 203 dpi page of `height` rows × `width` dots with photograph-like grey: a gradient with
/// noise on it, the same for the same `seed`.
reference::Page greyPage(unsigned width, unsigned height, unsigned seed = 1);

/// A job of a gap-label queue with 4 × 6 inch paper and these pages.
reference::Job labelJob(std::vector<reference::Page> pages);

/// The call that prints a job: raster on standard input, the queue's PPD written to `folder`.
FilterCall callFor(const reference::Job& job, const TemporaryFolder& folder);

/// Prints a job through the real filter, raster on standard input, and compares everything
/// that it leaves behind with the reference.
void expectPrintsAsReference(const reference::Job& job, RasterForm form = RasterForm::Plain);

/// As above, with a raster stream of the caller's.
void expectPrintsAsReference(const reference::Job& job, const std::string& raster,
                             const std::string& program = testedFilter());
