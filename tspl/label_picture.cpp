#include "tspl/label_picture.h"

#include <algorithm>
#include <cstdlib>

namespace tspl {

bool LabelPicture::burns(std::int64_t x, std::int64_t y) const {
    const std::int64_t left = x - placement_.shiftX;
    const std::int64_t top = y - placement_.shiftY;
    const std::int64_t right = width_ - 1 - left;
    if (left < 0 || right < 0 || top < 0 || top >= height_) {
        return false;
    }
    // Turning swaps both directions, mirroring one of them back.
    return canvas_.burns(placement_.turned != placement_.mirrored ? right : left,
                         placement_.turned ? height_ - 1 - top : top);
}

void LabelPicture::turnUpright() {
    if (placement_.turned) {
        placement_ = {placement_.mirrored, false, -placement_.shiftX, -placement_.shiftY};
    }
}

std::uint64_t LabelPicture::burntDots() const {
    // What is left of the label when it is shifted over its edges, on the canvas.
    Area area = {std::max<std::int64_t>(0, -placement_.shiftX),
                 std::max<std::int64_t>(0, -placement_.shiftY),
                 width_ - std::abs(placement_.shiftX), height_ - std::abs(placement_.shiftY)};
    if (area.width <= 0 || area.height <= 0) {
        return 0;
    }
    if (placement_.turned != placement_.mirrored) {
        area.x = width_ - area.x - area.width;
    }
    if (placement_.turned) {
        area.y = height_ - area.y - area.height;
    }
    return canvas_.burntDots(area);
}

}  // namespace tspl
