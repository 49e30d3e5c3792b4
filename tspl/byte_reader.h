#pragma once

#include <cstdint>
#include <span>

namespace tspl {

/// Numbers in a file, low byte first. What lies behind its end is 0.
class ByteReader {
public:
    explicit ByteReader(std::span<const std::uint8_t> file) : file_(file) {}

    [[nodiscard]] std::uint8_t byte(std::uint64_t at) const {
        return at < file_.size() ? file_[static_cast<std::size_t>(at)] : std::uint8_t{0};
    }
    [[nodiscard]] std::uint16_t word(std::uint64_t at) const {
        return static_cast<std::uint16_t>(byte(at) | byte(at + 1) << 8);
    }
    [[nodiscard]] std::uint32_t longWord(std::uint64_t at) const {
        return word(at) | std::uint32_t{word(at + 2)} << 16U;
    }
    [[nodiscard]] std::uint64_t size() const { return file_.size(); }

private:
    std::span<const std::uint8_t> file_;
};

/// Whether a colour is nearer to black than to white, by its luma (Rec. 601).
constexpr bool isDark(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return 299 * red + 587 * green + 114 * blue < 1000 * 128;
}

}  // namespace tspl
