#pragma once

#include "intake/picture/grey_image.h"
#include "intake/picture/picture_file.h"
#include "intake/picture/placement.h"

namespace intake::picture {

/// Draws one of the labels that a picture takes, as it leaves the printer.
GreyImage drawLabel(DecodedPicture& picture, const PictureOutline& outline,
                    const Placement& placement, unsigned label);

/// By how much a decoder may make a picture smaller on its own, 1, 2, 4 or 8, before it is scaled
/// for good: so that at least one and a half times the dots are left, or, of a large picture, at
/// least all of them, and whole samples for each dot where there were.
unsigned reductionFor(const PictureOutline& outline, const Placement& placement);

}  // namespace intake::picture
