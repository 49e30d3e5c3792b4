#include "enhance/row_filters.h"

#include <algorithm>
#include <utility>

#include "enhance/numeric.h"
#include "enhance/row_kernels.h"

FilterTaps::FilterTaps(int ksize) : half(ksize / 2), last(std::min(half, ksize - 1 - half)) {}

AlongRows::AlongRows(const double* kernel, int ksize, int width)
    : kernel_(kernel),
      taps_(ksize),
      width_(static_cast<std::size_t>(width)),
      extended_(width_ + 2 * static_cast<std::size_t>(taps_.half)),
      sums_(width_) {
    for (std::size_t k = 0; k < taps_.count(); ++k) {
        shifted_.push_back(extended_.data() + k);
    }
}

void AlongRows::filter(const unsigned char* row, unsigned char* out) {
    const auto first = extended_.begin() + taps_.half;
    const auto end = first + static_cast<std::ptrdiff_t>(width_);
    widenToDoubles(row, width_, extended_.data() + taps_.half);
    std::fill(extended_.begin(), first, *first);
    std::fill(end, extended_.end(), *(end - 1));
    addWeightedTaps(shifted_.data(), kernel_, taps_.count(), width_, sums_.data());
    roundToBytes(sums_.data(), width_, out);
}

AlongColumns::AlongColumns(const double* kernel, int ksize, int width, int height, ReadRow readRow)
    : kernel_(kernel),
      taps_(ksize),
      width_(static_cast<std::size_t>(width)),
      height_(height),
      readRow_(std::move(readRow)),
      kept_(width_ * std::max<std::size_t>(taps_.count(), 1)),
      row_(width_),
      under_(taps_.count()),
      sums_(width_) {}

void AlongColumns::filter(int y, unsigned char* out) {
    for (; read_ < height_ && read_ <= y + taps_.last; ++read_) {
        readRow_(read_, row_.data());
        widenToDoubles(row_.data(), width_, keptRow(read_));
    }
    for (std::size_t k = 0; k < under_.size(); ++k) {
        under_[k] = keptRow(myClamp(y + static_cast<int>(k) - taps_.half, 0, height_ - 1));
    }
    addWeightedTaps(under_.data(), kernel_, taps_.count(), width_, sums_.data());
    roundToBytes(sums_.data(), width_, out);
}

double* AlongColumns::keptRow(int y) {
    return kept_.data() +
           static_cast<std::size_t>(y) % std::max<std::size_t>(taps_.count(), 1) * width_;
}
