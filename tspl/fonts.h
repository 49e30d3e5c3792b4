#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tspl {

class DownloadedFont;

/// A font of the printer, as it is drawn: by one that is alike, or by the one that the stream
/// brings along.
struct Font {
    /// Of the font that is drawn: by its name on this system, or by the key of the downloaded one.
    const char* family = "";
    /// The cell of a character in dots at a multiplication of 1; 0 where the font is scalable, and
    /// its size is given in points.
    std::int32_t cellWidth = 0;
    std::int32_t cellHeight = 0;
    /// Whether characters from East Asia fill the cell and all others half of it.
    bool hasHalfCells = false;
    /// The code page that it brings along; empty where the one of CODEPAGE is used.
    const char* codePage = "";
    /// Null for fonts of this system.
    std::shared_ptr<const DownloadedFont> downloaded = nullptr;

    [[nodiscard]] bool isScalable() const { return cellWidth == 0; }
};

/// The font that is built into printers by this name, without its quotation marks; nothing for any
/// other name, that of a font which a stream downloads included.
std::optional<Font> fontOf(std::string_view name);

/// Whether the name is that of a file, such as "ARIAL.TTF".
bool isFontFile(std::string_view name);

/// Whether the name is that of a file of outlines: they are scalable.
bool isOutlineFile(std::string_view name);

/// The font that a stream brings along, itself.
Font fontOf(const std::shared_ptr<const DownloadedFont>& font);

/// The font that stands for a file of outlines, and for a file of cells that are not known.
Font standInOf(std::string_view fileName);

/// Whether a character from East Asia is as wide as it is high.
bool isWide(char32_t character);

}  // namespace tspl
