#include "enhance/row_filters.h"

#include <algorithm>
#include <utility>

#include "enhance/numeric.h"
#include "enhance/row_kernels.h"
#include "lanes/choice.h"

FilterTaps::FilterTaps(int ksize)
    : half(std::max(ksize, 0) / 2), last(std::min(half, std::max(ksize, 0) - 1 - half)) {}

AlongRows::AlongRows(const double* kernel, int ksize, int width)
    : taps_(ksize),
      weights_(kernel, taps_.count()),
      width_(static_cast<std::size_t>(width)),
      extended_(inWholeBlocks(width_) + 2 * static_cast<std::size_t>(taps_.half)) {
    for (std::size_t k = 0; k < taps_.count(); ++k) {
        shifted_.push_back(extended_.data() + k);
    }
}

void AlongRows::filter(const unsigned char* row, unsigned char* out) {
    extend(row);
    lanes::best<RowKernels>().filter(shifted_.data(), weights_, width_, out);
}

void AlongRows::filterWide(const unsigned char* row, float* out) {
    extend(row);
    lanes::best<RowKernels>().filterWide(shifted_.data(), weights_, width_, out);
}

void AlongRows::extend(const unsigned char* row) {
    const auto first = extended_.begin() + taps_.half;
    const auto end = first + static_cast<std::ptrdiff_t>(width_);
    lanes::best<RowKernels>().widen(row, width_, extended_.data() + taps_.half);
    std::fill(extended_.begin(), first, *first);
    std::fill(end, extended_.end(), *(end - 1));
}

AlongColumns::AlongColumns(const double* kernel, int ksize, int width, int height, ReadRow readRow)
    : taps_(ksize),
      weights_(kernel, taps_.count()),
      width_(static_cast<std::size_t>(width)),
      height_(height),
      readRow_(std::move(readRow)),
      kept_(inWholeBlocks(width_) * std::max<std::size_t>(taps_.count(), 1)),
      under_(taps_.count()) {}

void AlongColumns::filter(int y, unsigned char* out) {
    for (; read_ < height_ && read_ <= y + taps_.last; ++read_) {
        readRow_(read_, keptRow(read_));
    }
    for (std::size_t k = 0; k < under_.size(); ++k) {
        under_[k] = keptRow(myClamp(y + static_cast<int>(k) - taps_.half, 0, height_ - 1));
    }
    lanes::best<RowKernels>().filter(under_.data(), weights_, width_, out);
}

float* AlongColumns::keptRow(int y) {
    return kept_.data() + static_cast<std::size_t>(y) % std::max<std::size_t>(taps_.count(), 1) *
                              inWholeBlocks(width_);
}
