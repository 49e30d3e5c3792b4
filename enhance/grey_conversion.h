#pragma once

#include "enhance/qm_image.h"

/// A grey image of the same size. Colours are weighted 0.299 red, 0.587 green, 0.114 blue (ITU-R
/// BT.601 luma) in single precision and rounded; a fourth channel is ignored.
QMImage cvtGray(const QMImage& src);
