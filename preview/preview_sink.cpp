#include "preview/preview_sink.h"

namespace preview {

double BitmapSummary::burntShare() const {
    constexpr double dotsPerByte = 8;
    if (receivedBytes == 0) {
        return 0;
    }
    return static_cast<double>(burntDots) / (dotsPerByte * static_cast<double>(receivedBytes));
}

}  // namespace preview
