#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace preview {

/// The stream to preview: a file or standard input.
class InputStream {
public:
    /// Standard input.
    InputStream();
    InputStream(const InputStream&) = delete;
    InputStream& operator=(const InputStream&) = delete;
    ~InputStream();

    /// Opens a file instead of what was open before. Returns why it could not; empty when it could.
    std::string open(const std::string& name);

    /// Length of a file in bytes; 0 for what has none.
    [[nodiscard]] std::uint64_t bytes() const;

    /// The next piece of the stream, valid until the next call; empty at the end, and when reading
    /// fails.
    std::span<const std::uint8_t> read();

    /// Why reading failed; empty as long as it did not.
    [[nodiscard]] const std::string& error() const { return error_; }

    /// Whether a stream that is at its end may go on: a file, to which others may write.
    [[nodiscard]] bool mayGrow() const { return fileStatus().has_value(); }
    /// Whether a file has become shorter than what was read of it.
    [[nodiscard]] bool hasShrunk() const;
    /// Whether another file has the name by now.
    [[nodiscard]] bool isReplaced() const;
    /// Goes back to the start of the file.
    void rewind();

    /// Whether reading gives something at once, be it the end or an error.
    [[nodiscard]] bool isReady() const;
    /// Waits a moment: until there is something to read, or, of a file, until it may have grown. A
    /// signal ends the waiting.
    void await() const;

private:
    void close();
    [[nodiscard]] std::optional<struct stat> fileStatus() const;

    int descriptor_ = 0;
    std::string name_;  // empty for standard input
    std::vector<std::uint8_t> piece_;
    std::uint64_t position_ = 0;
    std::string error_;
};

}  // namespace preview
