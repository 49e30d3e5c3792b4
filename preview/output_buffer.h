#pragma once

#include <array>
#include <streambuf>
#include <string>

namespace preview {

/// Writes to a descriptor, and remembers why it could not.
class OutputBuffer : public std::streambuf {
public:
    explicit OutputBuffer(int descriptor);
    OutputBuffer(const OutputBuffer&) = delete;
    OutputBuffer& operator=(const OutputBuffer&) = delete;
    ~OutputBuffer() override { send(); }

    /// Why writing failed; empty as long as it did not. Nothing is written after a failure.
    [[nodiscard]] const std::string& error() const { return error_; }

protected:
    int_type overflow(int_type byte) override;
    int sync() override { return send() ? 0 : -1; }

private:
    bool send();

    static constexpr std::size_t bufferBytes = 16384;

    int descriptor_;
    std::array<char, bufferBytes> bytes_{};
    std::string error_;
};

}  // namespace preview
