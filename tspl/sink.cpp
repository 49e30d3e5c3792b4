#include "tspl/sink.h"

namespace tspl {

double BitmapSummary::burntShare() const {
    constexpr double dotsPerByte = 8;
    const std::uint64_t pictureBytes = unpackedBytes.value_or(receivedBytes);
    if (pictureBytes == 0) {
        return 0;
    }
    return static_cast<double>(burntDots) / (dotsPerByte * static_cast<double>(pictureBytes));
}

}  // namespace tspl
