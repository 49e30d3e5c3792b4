#include "tspl/path_drawing.h"

#include <algorithm>
#include <bit>
#include <memory>
#include <new>
#include <span>
#include <vector>

namespace tspl {
namespace {

constexpr std::int64_t stripRows = 256;
constexpr double finestTolerance = 0.01;  // of a dot

struct SurfaceEnd {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct ContextEnd {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
};
using Surface = std::unique_ptr<cairo_surface_t, SurfaceEnd>;
using Context = std::unique_ptr<cairo_t, ContextEnd>;

// cairo keeps one bit a dot in words of the processor's byte order, the first dot in the bit of the
// lowest value where that is little-endian.
std::uint8_t leftmostFirst(unsigned char byte) {
    if constexpr (std::endian::native == std::endian::big) {
        return byte;
    }
    unsigned turned = 0;
    for (unsigned bit = 0; bit < 8; ++bit) {
        turned = turned << 1U | (unsigned{byte} >> bit & 1U);
    }
    return static_cast<std::uint8_t>(turned);
}

// Most of what an outline lies in is blank, which is passed over.
void drawRow(DotCanvas& canvas, std::int64_t x, std::int64_t y,
             std::span<const unsigned char> row) {
    const auto isBlank = [](unsigned char byte) { return byte == 0; };
    std::vector<std::uint8_t> bits;
    auto end = row.begin();
    while (end != row.end()) {
        const auto begin = std::find_if_not(end, row.end(), isBlank);
        end = std::find_if(begin, row.end(), isBlank);
        bits.resize(static_cast<std::size_t>(end - begin));
        std::transform(begin, end, bits.begin(), leftmostFirst);
        if (!bits.empty()) {
            canvas.drawBits(x + 8 * (begin - row.begin()), y, bits, DrawMode::Or);
        }
    }
}

void drawStrip(DotCanvas& canvas, const Area& strip, const std::function<void(cairo_t*)>& draw) {
    const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_A1, static_cast<int>(strip.width),
                                                     static_cast<int>(strip.height)));
    const Context context(cairo_create(surface.get()));
    cairo_set_antialias(context.get(), CAIRO_ANTIALIAS_NONE);
    cairo_set_tolerance(context.get(), finestTolerance);
    cairo_translate(context.get(), static_cast<double>(-strip.x), static_cast<double>(-strip.y));
    draw(context.get());
    if (cairo_status(context.get()) != CAIRO_STATUS_SUCCESS) {
        throw std::bad_alloc();
    }
    cairo_surface_flush(surface.get());
    const unsigned char* row = cairo_image_surface_get_data(surface.get());
    const auto rowBytes = static_cast<std::size_t>((strip.width + 7) / 8);
    for (std::int64_t y = 0; y < strip.height; ++y) {
        drawRow(canvas, strip.x, strip.y + y, {row, rowBytes});
        row += cairo_image_surface_get_stride(surface.get());
    }
}

}  // namespace

void drawPath(DotCanvas& canvas, const Area& area, const std::function<void(cairo_t*)>& draw) {
    if (area.width <= 0) {
        return;
    }
    for (std::int64_t y = 0; y < area.height; y += stripRows) {
        drawStrip(canvas, {area.x, area.y + y, area.width, std::min(stripRows, area.height - y)},
                  draw);
    }
}

}  // namespace tspl
