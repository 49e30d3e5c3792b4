#include <cstdlib>

#include "image/raster_image.h"

void RasterImage::DrawLine(int startX, int endX, int startY, int endY, std::uint8_t index) {
    if (!dib) {
        return;
    }
    const std::int64_t dx = std::llabs(std::int64_t{endX} - startX);
    const std::int64_t dy = std::llabs(std::int64_t{endY} - startY);
    const int stepX = endX >= startX ? 1 : -1;
    const int stepY = endY >= startY ? 1 : -1;
    const bool flat = dx >= dy;
    const std::int64_t run = flat ? dx : dy;
    const std::int64_t rise = flat ? dy : dx;

    std::int64_t x = startX;
    std::int64_t y = startY;
    std::int64_t error = run / 2;
    for (std::int64_t i = 0; i <= run; ++i) {
        SetPixelIndex(x, y, index);
        error += rise;
        const bool aside = error >= run;
        error -= aside ? run : 0;
        x += flat || aside ? stepX : 0;
        y += !flat || aside ? stepY : 0;
    }
}
