#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <cairo.h>

namespace tspl {

/// Gives back what the drawing library hands out.
struct CairoDeleter {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_font_face_t* face) const { cairo_font_face_destroy(face); }
    void operator()(cairo_scaled_font_t* font) const { cairo_scaled_font_destroy(font); }
};

template <class Type>
using CairoPointer = std::unique_ptr<Type, CairoDeleter>;

/// An outline font at a size, without hinting and without grey: what it draws depends on its
/// outlines alone.
class SizedFont {
public:
    /// `width` and `height` are those of its em in dots, more than 0.
    SizedFont(cairo_font_face_t* face, double width, double height);

    /// The glyph of a character; 0 for one that the font does not have.
    [[nodiscard]] unsigned long glyphOf(char32_t character) const;

    /// How far the glyph moves on, in dots, not rounded.
    [[nodiscard]] double advance(unsigned long glyph) const;

    /// How far lines of the font reach over and under the base line, in dots.
    [[nodiscard]] double ascent() const { return extents().ascent; }
    [[nodiscard]] double descent() const { return extents().descent; }

    /// Where the glyph is black, from its place on the base line.
    [[nodiscard]] cairo_text_extents_t inkOf(unsigned long glyph) const;

    [[nodiscard]] cairo_scaled_font_t* get() const { return font_.get(); }

private:
    [[nodiscard]] cairo_font_extents_t extents() const;

    CairoPointer<cairo_scaled_font_t> font_;
};

/// The outline font of this system by the name of its family that has a character. Where that
/// family has none or is missing, another one that has; any at all when none does. Faces are
/// kept, as to find one takes milliseconds; valid as long as the thread lives.
cairo_font_face_t* findFace(const std::string& family, char32_t character);

}  // namespace tspl
