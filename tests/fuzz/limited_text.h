#pragma once

#include <sys/types.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

/// Takes what is written to a stream, up to a number of bytes: what goes beyond is lost, and
/// writing it is an error. Stays where it is as long as its stream is open.
class LimitedText {
public:
    static constexpr std::size_t noLimit = std::numeric_limits<std::size_t>::max();

    explicit LimitedText(std::size_t room = noLimit) : room_(room) {}
    LimitedText(const LimitedText&) = delete;
    LimitedText& operator=(const LimitedText&) = delete;

    /// A stream that leads here, for the caller to close. What it buffers has not arrived yet.
    std::FILE* open() {
        std::FILE* stream = fopencookie(this, "w", {nullptr, append, nullptr, nullptr});
        if (stream == nullptr) {
            std::abort();
        }
        return stream;
    }
    const std::string& text() const { return text_; }

private:
    static ssize_t append(void* self, const char* bytes, std::size_t size) {
        auto& target = *static_cast<LimitedText*>(self);
        const std::size_t taken = std::min(size, target.room_ - target.text_.size());
        target.text_.append(bytes, taken);
        errno = ENOSPC;
        return static_cast<ssize_t>(taken);
    }

    std::size_t room_;
    std::string text_;
};
