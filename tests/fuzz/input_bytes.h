#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// An input that is read from its front; behind its end everything is 0.
class InputBytes {
public:
    InputBytes(const std::uint8_t* data, std::size_t size) : rest_(data, size) {}

    bool isAtEnd() const { return rest_.empty(); }

    std::uint8_t byte() {
        if (rest_.empty()) {
            return 0;
        }
        const std::uint8_t first = rest_.front();
        rest_ = rest_.subspan(1);
        return first;
    }

    /// -32768 to 32767.
    int number() {
        const unsigned low = byte();
        const unsigned high = byte();
        return static_cast<std::int16_t>(low | high << 8U);
    }

    std::vector<std::uint8_t> bytes(std::size_t count) {
        std::vector<std::uint8_t> result;
        result.reserve(count);
        while (result.size() < count) {
            result.push_back(byte());
        }
        return result;
    }

private:
    std::span<const std::uint8_t> rest_;
};
