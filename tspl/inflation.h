#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

struct z_stream_s;

namespace tspl {

/// Takes zlib data apart as they come in, a piece at a time.
class Inflation {
public:
    using Take = std::function<void(std::span<const std::uint8_t>)>;

    Inflation();
    ~Inflation();
    Inflation(const Inflation&) = delete;
    Inflation& operator=(const Inflation&) = delete;

    /// Hands on what the next data hold, in pieces of at most 64 KiB, until `take` has had
    /// `mostBytes` in all; what is more than that, or behind the end of the zlib data, is left out.
    void feed(std::span<const std::uint8_t> data, std::uint64_t mostBytes, const Take& take);

    /// Bytes that came out so far.
    [[nodiscard]] std::uint64_t bytes() const { return bytes_; }
    /// Whether something other than zlib data came, or data that their checksum is not that of.
    [[nodiscard]] bool isBroken() const { return isBroken_; }
    /// Whether there was more in the data than was to come out.
    [[nodiscard]] bool holdsMore() const { return holdsMore_; }
    /// Bytes of data up to the end of the zlib data, or so far where that did not come.
    [[nodiscard]] std::uint64_t taken() const;

private:
    std::span<const std::uint8_t> inflateInto(std::span<std::uint8_t> room);

    std::unique_ptr<z_stream_s> stream_;
    std::uint64_t bytes_ = 0;
    bool isBroken_ = false;
    bool isAtEnd_ = false;
    bool holdsMore_ = false;
};

}  // namespace tspl
