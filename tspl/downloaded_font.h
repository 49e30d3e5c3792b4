#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tspl/font_face.h"

namespace tspl {

/// A font of outlines, TrueType or OpenType, whose file a stream brings along.
class DownloadedFont {
public:
    using Bytes = std::vector<std::uint8_t>;

    /// Null for bytes that are no such font, or one without outlines. They are read as long as the
    /// font lives, and must not change.
    static std::shared_ptr<const DownloadedFont> read(const std::shared_ptr<const Bytes>& bytes);

    DownloadedFont(const DownloadedFont&) = delete;
    DownloadedFont& operator=(const DownloadedFont&) = delete;
    /// Gives the bytes back at once, although the drawing library keeps fonts for later use.
    ~DownloadedFont();

    /// A name that no other font has while the program runs, and no family either.
    [[nodiscard]] const std::string& key() const { return key_; }

    /// Valid as long as the font.
    [[nodiscard]] cairo_font_face_t* face() const { return face_.get(); }

private:
    explicit DownloadedFont(CairoPointer<cairo_font_face_t> face);

    std::string key_;
    CairoPointer<cairo_font_face_t> face_;
};

}  // namespace tspl
