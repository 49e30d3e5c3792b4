#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "tspl/command.h"
#include "tspl/inflation.h"
#include "tspl/printer.h"

namespace tspl {

/// Draws a BITMAP while its data come in.
class BitmapDrawing {
public:
    BitmapDrawing() = default;

    /// Begins a bitmap. One that is stored in the printer, or has no mode that a printer has, is
    /// not drawn.
    BitmapDrawing(Printer& printer, const BitmapHead& head);

    /// Takes the next data; `position` counts their bytes from 0.
    void take(Printer& printer, std::uint64_t position, std::span<const std::uint8_t> data);

    /// Takes the end of the data: says what is missing, and lists the bitmap.
    void end(Printer& printer, std::uint64_t received);

private:
    void drawPlain(Printer& printer, std::uint64_t position, std::span<const std::uint8_t> data);
    void inflate(Printer& printer, std::span<const std::uint8_t> data);
    void draw(Printer& printer, std::uint64_t position, std::span<const std::uint8_t> burning);
    void complainOfLength(Printer& printer, std::uint64_t received) const;
    [[nodiscard]] std::optional<std::uint64_t> unpackedBytes() const;

    BitmapHead head_;
    std::string remark_;       ///< why it is not drawn; empty where it is
    std::uint64_t burnt_ = 0;  ///< dots
    std::vector<std::uint8_t> burning_;
    std::unique_ptr<Inflation> inflation_;  ///< of compressed data
};

}  // namespace tspl
