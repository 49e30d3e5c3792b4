#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace status {

/// What a printer answers to the question ESC ! ?: one byte, whose bits are
///
///     0  the head is open          4  paused
///     1  the paper is jammed       5  printing
///     2  out of labels             6  the cover is open (some printers)
///     3  out of ribbon             7  another error, or too hot
///
/// and which is 0 when the printer is ready. Bits 0 to 5 and 7 are those of the table of <ESC>!? in
/// the TSPL/TSPL2 programming manuals, which list the combinations of bits 0 to 3 as values of
/// their own; bit 6 comes from printers that have a cover beside the head.
class StatusByte {
public:
    constexpr StatusByte() = default;
    constexpr explicit StatusByte(std::uint8_t bits) : bits_(bits) {}

    [[nodiscard]] constexpr std::uint8_t bits() const { return bits_; }

    /// Whether it is an answer at all: idle lines read as 255. Any other is taken at its word; some
    /// printers still say that they are printing when their head has been opened meanwhile.
    [[nodiscard]] bool isPossible() const;

    [[nodiscard]] bool isReady() const { return bits_ == 0; }
    [[nodiscard]] bool isPrinting() const;
    [[nodiscard]] bool isPaused() const;
    /// Whether somebody has to do something at the printer before it can print.
    [[nodiscard]] bool hasError() const;
    /// Whether labels that are sent now would not be printed: an error or a pause.
    [[nodiscard]] bool isStopped() const { return hasError() || isPaused(); }

    /// Keywords of printer-state-reasons (RFC 8011, 5.4.12), each once, always in the same order.
    [[nodiscard]] std::vector<std::string> reasons() const;

    /// The same for people: "The printer is out of labels, and its head is open." Empty when it is
    /// neither stopped nor in error.
    [[nodiscard]] std::string words() const;

    friend constexpr bool operator==(StatusByte, StatusByte) = default;

private:
    std::uint8_t bits_ = 0;
};

/// Every keyword that reasons() can name.
const std::vector<std::string>& allReasons();

}  // namespace status
