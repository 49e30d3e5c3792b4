#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

/// Takes what the process writes to standard output or standard error from now on, until the end
/// of its life or `take`. Only what goes through the C library's streams is taken.
class CapturedStream {
public:
    explicit CapturedStream(std::FILE*& stream) : stream_(stream), before_(stream) {
        std::FILE* memory = open_memstream(&text_, &size_);
        if (memory == nullptr) {
            std::abort();
        }
        stream_ = memory;
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
        std::string text(text_, size_);
        std::free(text_);
        return text;
    }

private:
    std::FILE*& stream_;
    std::FILE* before_;
    char* text_ = nullptr;
    std::size_t size_ = 0;
};
