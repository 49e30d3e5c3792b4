#pragma once

#include <string>

namespace intake::picture {

/// Whether the chain of a TIFF file's directories, one for each page, leads to its end: the library
/// takes one that breaks off for a file with fewer pages. False also for one without an end.
bool isTiffChainWhole(const std::string& path);

}  // namespace intake::picture
