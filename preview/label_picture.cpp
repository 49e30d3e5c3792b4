#include "preview/label_picture.h"

namespace preview {

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

std::uint64_t LabelPicture::burntDots() const {
    std::uint64_t dots = 0;
    for (std::int64_t y = 0; y < height_; ++y) {
        for (std::int64_t x = 0; x < width_; ++x) {
            dots += std::uint64_t{burns(x, y)};
        }
    }
    return dots;
}

}  // namespace preview
