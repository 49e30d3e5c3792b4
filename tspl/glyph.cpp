#include "tspl/glyph.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <map>
#include <string>
#include <tuple>
#include <utility>

#include "tspl/dot_canvas.h"
#include "tspl/downloaded_font.h"
#include "tspl/font_face.h"

namespace tspl {
namespace {

// Of the outlines of an em that fill a square, the part over the base line.
constexpr double ascentOfSquare = 0.88;

std::int32_t rounded(double value) {
    return static_cast<std::int32_t>(std::lround(value));
}

// A character's outline, measured in ems. The face stays as long as anyone knows the font: those of
// the system for good, a downloaded one with its key.
struct Outline {
    cairo_font_face_t* face = nullptr;
    unsigned long index = 0;
    double advance = 0;
    double ascent = 0;
    double lineHeight = 0;
};

cairo_font_face_t* faceOf(const Font& font, char32_t character) {
    return font.downloaded ? font.downloaded->face() : findFace(font.family, character);
}

Outline measured(const Font& font, char32_t character) {
    constexpr double flattestLine = 0.25;
    cairo_font_face_t* face = faceOf(font, character);
    const SizedFont unit(face, 1, 1);
    const unsigned long index = unit.glyphOf(character);
    Outline outline{face, index, unit.advance(index), unit.ascent(),
                    unit.ascent() + unit.descent()};
    // Outlines that fill a square of their own would become flat in the height of a line, and those
    // of a damaged font, whose lines have next to no height, huge.
    const bool fillsSquare = isWide(character) && !font.downloaded;
    if (fillsSquare || outline.lineHeight < flattestLine) {
        outline.ascent = ascentOfSquare;
        outline.lineHeight = 1;
    }
    return outline;
}

// Texts repeat their letters, and to measure one takes longer than to draw it.
const Outline& outlineOf(const Font& font, char32_t character) {
    constexpr std::size_t mostOutlines = 4096;
    thread_local std::map<std::pair<std::string, char32_t>, Outline> outlines;
    if (outlines.size() > mostOutlines) {
        outlines.clear();
    }
    const auto key = std::pair<std::string, char32_t>(font.family, character);
    const auto found = outlines.find(key);
    return found != outlines.end() ? found->second
                                   : outlines.emplace(key, measured(font, character)).first->second;
}

// The size of an em in dots.
struct EmSize {
    double width = 0;
    double height = 0;
};

// The height of a line fills `height`; the letters of a cell are stretched to its width.
EmSize emSize(const Font& font, const Outline& outline, std::int32_t width, std::int32_t height) {
    const double em = height / outline.lineHeight;
    const bool isStretched = !font.isScalable() && outline.advance > 0;
    return {isStretched ? width / outline.advance : em * width / height, em};
}

// A glyph of an outline font and where it stands.
struct PlacedGlyph {
    SizedFont font;
    unsigned long index = 0;
    std::int32_t baseLine = 0;  // rows from the top
};

PlacedGlyph placed(const Font& font, std::int32_t width, std::int32_t height, char32_t character) {
    const Outline& outline = outlineOf(font, character);
    const EmSize em = emSize(font, outline, width, height);
    // Down to the row: rounded up, the base line would push an underscore out of a small cell.
    const auto baseLine = static_cast<std::int32_t>(std::floor(em.height * outline.ascent));
    return {SizedFont(outline.face, em.width, em.height), outline.index, baseLine};
}

std::int32_t cellWidth(const Font& font, std::int32_t width, char32_t character) {
    return font.hasHalfCells && !isWide(character) ? width / 2 : width;
}

// Whole dots around all that the glyph covers; one more on each side, as outlines without hinting
// may touch it.
Area inkArea(const PlacedGlyph& glyph) {
    const cairo_text_extents_t ink = glyph.font.inkOf(glyph.index);
    const auto left = static_cast<std::int64_t>(std::floor(ink.x_bearing)) - 1;
    const auto top = static_cast<std::int64_t>(std::floor(ink.y_bearing)) - 1;
    const auto right = static_cast<std::int64_t>(std::ceil(ink.x_bearing + ink.width)) + 1;
    const auto bottom = static_cast<std::int64_t>(std::ceil(ink.y_bearing + ink.height)) + 1;
    return {left, glyph.baseLine + top, right - left, bottom - top};
}

// The letters of a damaged font may be a thousand times as large as its lines are high. Those of
// others are within some squares of that height, long ligatures too.
bool isHuge(const Area& ink, std::int32_t width, std::int32_t height) {
    constexpr std::int64_t squares = 16;
    constexpr std::int64_t margin = 2;  // of what is empty around the smallest ones
    return ink.width * ink.height > squares * (width + margin) * (height + margin);
}

// A surface of one bit per dot, its lowest bit on the left where the machine's bytes begin with
// the low one.
class BitSurface {
public:
    BitSurface(std::int64_t width, std::int64_t height)
        : surface_(cairo_image_surface_create(CAIRO_FORMAT_A1, static_cast<int>(width),
                                              static_cast<int>(height))) {}

    void draw(const PlacedGlyph& glyph, const Area& area) {
        const CairoPointer<cairo_t> context(cairo_create(surface_.get()));
        cairo_set_antialias(context.get(), CAIRO_ANTIALIAS_NONE);
        cairo_set_scaled_font(context.get(), glyph.font.get());
        const cairo_glyph_t at{glyph.index, static_cast<double>(-area.x),
                               static_cast<double>(glyph.baseLine - area.y)};
        cairo_show_glyphs(context.get(), &at, 1);
        cairo_surface_flush(surface_.get());
    }

    [[nodiscard]] bool burns(std::int64_t x, std::int64_t y) const {
        const unsigned char* row = cairo_image_surface_get_data(surface_.get()) +
                                   y * cairo_image_surface_get_stride(surface_.get());
        const auto bit = static_cast<unsigned>(x % 8);
        const unsigned place = std::endian::native == std::endian::little ? bit : 7 - bit;
        return ((row[x / 8] >> place) & 1U) != 0;
    }

    // A surface that found no memory has no dots.
    [[nodiscard]] bool isFine() const {
        return cairo_image_surface_get_data(surface_.get()) != nullptr;
    }

private:
    CairoPointer<cairo_surface_t> surface_;
};

std::vector<DotRun> runsOf(const BitSurface& surface, const Area& area) {
    std::vector<DotRun> runs;
    for (std::int64_t y = 0; y < area.height; ++y) {
        for (std::int64_t x = 0; x < area.width; ++x) {
            const std::int64_t start = x;
            while (x < area.width && surface.burns(x, y)) {
                ++x;
            }
            if (x > start) {
                runs.push_back({static_cast<std::int32_t>(area.x + start),
                                static_cast<std::int32_t>(area.y + y),
                                static_cast<std::int32_t>(x - start)});
            }
        }
    }
    return runs;
}

Glyph drawn(const Font& font, std::int32_t width, std::int32_t height, char32_t character) {
    Glyph result{advanceOf(font, width, height, character), {}};
    if (isBlank(character)) {
        return result;
    }
    const std::int32_t place = font.isScalable() ? width : result.advance;
    const PlacedGlyph glyph = placed(font, place, height, character);
    const Area area = font.isScalable() ? inkArea(glyph) : Area{0, 0, place, height};
    if (isHuge(area, width, height)) {
        return result;
    }
    BitSurface surface(area.width, area.height);
    if (surface.isFine()) {
        surface.draw(glyph, area);
        result.runs = runsOf(surface, area);
    }
    return result;
}

using GlyphKey =
    std::tuple<std::string, std::int32_t, std::int32_t, std::int32_t, std::int32_t, char32_t>;

}  // namespace

bool isBlank(char32_t character) {
    constexpr char32_t firstHighControl = 0x7F;
    constexpr char32_t fixedBlank = 0xA0;
    return character <= U' ' || (character >= firstHighControl && character <= fixedBlank);
}

bool hasOutline(const Font& font, char32_t character) {
    return outlineOf(font, character).index != 0;
}

std::int32_t advanceOf(const Font& font, std::int32_t width, std::int32_t height,
                       char32_t character) {
    if (!font.isScalable()) {
        return cellWidth(font, width, character);
    }
    // Codes that only steer have no width of their own.
    if (character < U' ') {
        return 0;
    }
    const Outline& outline = outlineOf(font, character);
    return std::max(rounded(emSize(font, outline, width, height).width * outline.advance), 0);
}

const Glyph& drawGlyph(const Font& font, std::int32_t width, std::int32_t height,
                       char32_t character) {
    constexpr std::size_t mostRuns = 1U << 16U;
    thread_local std::map<GlyphKey, Glyph> glyphs;
    thread_local std::size_t runs = 0;
    const GlyphKey key{font.family, font.cellWidth, font.cellHeight, width, height, character};
    if (const auto found = glyphs.find(key); found != glyphs.end()) {
        return found->second;
    }
    if (runs > mostRuns) {
        glyphs.clear();
        runs = 0;
    }
    const Glyph& glyph = glyphs.emplace(key, drawn(font, width, height, character)).first->second;
    runs += glyph.runs.size() + 1;
    return glyph;
}

}  // namespace tspl
