#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace preview {

/// The stream to preview: a file or standard input.
class InputStream {
public:
    /// Standard input.
    InputStream() = default;
    InputStream(const InputStream&) = delete;
    InputStream& operator=(const InputStream&) = delete;
    ~InputStream();

    /// Opens a file instead of standard input. Returns why it could not; empty when it could.
    std::string open(const std::string& name);

    /// Length of a file in bytes; 0 for what has none.
    [[nodiscard]] std::uint64_t bytes() const;

    /// Takes a piece of a stream; false when no more is wanted.
    using Take = std::function<bool(std::span<const std::uint8_t>)>;

    /// Hands the stream on in pieces. Returns why reading failed; empty at the end.
    std::string readAll(const Take& take) const;

private:
    int descriptor_ = 0;
};

}  // namespace preview
