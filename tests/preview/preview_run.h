#pragma once

#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"
#include "tests/system/filter_process.h"

/// A call of the previewer with `folder` as its current folder.
FilterCall previewCall(const TemporaryFolder& folder, std::vector<std::string> arguments,
                       const std::string& standardInput = "");

/// Runs the previewer to its end.
FilterResult runPreview(const TemporaryFolder& folder, std::vector<std::string> arguments,
                        const std::string& standardInput = "");

/// A call of a shell script in `folder`, in which "$PREVIEW" is the previewer.
FilterCall shellCall(const TemporaryFolder& folder, const std::string& script);

/// Lets a call run as a user who may not write to `folder` nor read what only its owner may.
void runAsStranger(FilterCall& call, const TemporaryFolder& folder);

/// What --check says of a stream on its standard input, for a printer of 203 dpi.
FilterResult runCheck(const std::string& stream);

/// The stream that the filter sends for a job. What it leaves in the spooler's folders is removed.
std::string filterStream(const FilterCall& call);

/// A label of 16 × 8 dots at 203 dpi with these 16 bytes as its bitmap.
std::string smallLabel(const std::string& bitmap, const std::string& print = "PRINT 1,1\r\n");

/// A label of noise, which no picture file makes smaller; its sides in dots, the width a multiple
/// of 8.
std::string noiseLabel(int width, int height);

/// The bitmap of a letter F of 16 × 8 dots; a 0 bit burns.
inline const std::string letterBitmap(
    "\xff\xff\x80\x7f\x9f\xff\x9f\xff\x83\xff\x9f\xff\x9f\xff\xff\xff", 16);

/// Its rows, '#' for each of its 21 burnt dots.
inline const std::vector<std::string> letterRows = {
    "................", ".########.......", ".##.............", ".##.............",
    ".#####..........", ".##.............", ".##.............", "................"};
