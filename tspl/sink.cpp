#include "tspl/sink.h"

namespace tspl {

double BitmapSummary::burntShare() const {
    constexpr double dotsPerByte = 8;
    if (receivedBytes == 0) {
        return 0;
    }
    return static_cast<double>(burntDots) / (dotsPerByte * static_cast<double>(receivedBytes));
}

}  // namespace tspl
