#include "tspl/inflation.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <new>

namespace tspl {

Inflation::Inflation() : stream_(std::make_unique<z_stream>()) {
    if (inflateInit(stream_.get()) != Z_OK) {
        throw std::bad_alloc();
    }
}

Inflation::~Inflation() {
    inflateEnd(stream_.get());
}

void Inflation::feed(std::span<const std::uint8_t> data, std::uint64_t mostBytes,
                     const Take& take) {
    std::array<std::uint8_t, 65536> piece;
    stream_->next_in = const_cast<Bytef*>(data.data());  // zlib's name for it is from before const
    stream_->avail_in = static_cast<uInt>(data.size());
    bool isFull = false;
    while (!isBroken_ && !isAtEnd_ && bytes_ < mostBytes && (stream_->avail_in > 0 || isFull)) {
        const auto room = std::min<std::uint64_t>(piece.size(), mostBytes - bytes_);
        stream_->next_out = piece.data();
        stream_->avail_out = static_cast<uInt>(room);
        const int result = ::inflate(stream_.get(), Z_NO_FLUSH);
        const std::uint64_t made = room - stream_->avail_out;
        isFull = stream_->avail_out == 0;
        isAtEnd_ = result == Z_STREAM_END;
        isBroken_ = result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR;
        bytes_ += made;
        take(std::span(piece).first(static_cast<std::size_t>(made)));
    }
}

}  // namespace tspl
