#pragma once

#include <cstdio>
#include <string>

#include "tests/fuzz/limited_text.h"

/// Takes what the process writes to standard output or standard error from now on, until the end
/// of its life or `take`. Only what goes through the C library's streams is taken, and no more
/// than `room` bytes.
class CapturedStream {
public:
    explicit CapturedStream(std::FILE*& stream, std::size_t room = LimitedText::noLimit)
        : stream_(stream), before_(stream), text_(room) {
        stream_ = text_.open();
    }
    ~CapturedStream() { take(); }
    CapturedStream(const CapturedStream&) = delete;
    CapturedStream& operator=(const CapturedStream&) = delete;

    /// Gives the stream back, and what was written to it meanwhile.
    std::string take() {
        if (stream_ == before_) {
            return {};
        }
        std::fclose(stream_);
        stream_ = before_;
        return text_.text();
    }

private:
    std::FILE*& stream_;
    std::FILE* before_;
    LimitedText text_;
};
