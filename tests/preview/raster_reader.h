#pragma once

#include <string>
#include <vector>

#include "tests/reference/page.h"

/// The pages of a raster file, read by libcups. Of the header only what the finished image and
/// the sent stream depend on.
std::vector<reference::Page> readRaster(const std::string& path);
