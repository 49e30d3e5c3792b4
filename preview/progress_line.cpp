#include "preview/progress_line.h"

#include <iomanip>

namespace preview {
namespace {

constexpr auto sInterval = std::chrono::milliseconds(200);
constexpr double sBytesPerMegabyte = 1e6;

}  // namespace

void ProgressLine::show(std::uint64_t bytesRead) {
    const auto now = Clock::now();
    if (!enabled_ || now < next_) {
        return;
    }
    next_ = now + sInterval;
    shown_ = true;
    out_ << "\rtsplpreview: " << std::fixed << std::setprecision(1)
         << static_cast<double>(bytesRead) / sBytesPerMegabyte;
    if (streamBytes_ > 0) {
        out_ << " of " << static_cast<double>(streamBytes_) / sBytesPerMegabyte;
    }
    out_ << " MB, " << labels_ << (labels_ == 1 ? " label" : " labels") << "\x1b[K" << std::flush;
}

void ProgressLine::hide() {
    if (shown_) {
        out_ << "\r\x1b[K" << std::flush;
        shown_ = false;
    }
}

void ProgressLine::onLabel(const tspl::PrintedLabel&) {
    hide();
    ++labels_;
}

}  // namespace preview
