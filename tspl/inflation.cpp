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
    while (!isBroken_ && !isAtEnd_ && (stream_->avail_in > 0 || isFull)) {
        const auto wanted =
            static_cast<std::size_t>(std::min<std::uint64_t>(piece.size(), mostBytes - bytes_));
        const auto made = inflateInto(std::span(piece).first(std::max<std::size_t>(wanted, 1)));
        isFull = stream_->avail_out == 0;
        if (wanted == 0) {
            // Behind the picture the checksum is looked at, or the first byte too many and nothing
            // after it: so it means the same wherever the data are cut.
            holdsMore_ = !made.empty();
            isAtEnd_ = isAtEnd_ || holdsMore_;
            isBroken_ = isBroken_ && made.empty();
        } else {
            bytes_ += made.size();
            take(made);
        }
    }
}

std::uint64_t Inflation::taken() const {
    return stream_->total_in;
}

std::span<const std::uint8_t> Inflation::inflateInto(std::span<std::uint8_t> room) {
    stream_->next_out = room.data();
    stream_->avail_out = static_cast<uInt>(room.size());
    const int result = ::inflate(stream_.get(), Z_NO_FLUSH);
    isAtEnd_ = result == Z_STREAM_END;
    isBroken_ = result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR;
    return room.first(room.size() - stream_->avail_out);
}

}  // namespace tspl
