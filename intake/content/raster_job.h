#pragma once

namespace intake::content {

/// Copies raster from one descriptor to another and separates the content of its pages of 8-bit K;
/// other pages go through as they are. Throws JobFailure when a page ends early or nobody takes
/// what is written; the rows that came before have been handed on.
void separateRaster(int input, int output);

}  // namespace intake::content
