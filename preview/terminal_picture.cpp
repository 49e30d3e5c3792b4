#include "preview/terminal_picture.h"

#include <sys/ioctl.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace preview {
namespace {

// Lines and strokes thinner than a pixel must not vanish, stray dots may.
constexpr double sMostOfPaper = 1.0 / 8;
constexpr double sLeastOfInk = 1.0 / 2;

struct PixelSize {
    std::int64_t columns = 1;
    std::int64_t rows = 1;
};

std::int64_t scaled(std::int64_t length, std::int64_t wanted, std::int64_t whole) {
    return std::max<std::int64_t>(1, (2 * length * wanted + whole) / (2 * whole));
}

PixelSize pixelsFor(std::int64_t width, std::int64_t height, const TerminalSize& size) {
    PixelSize pixels;
    pixels.columns = std::clamp<std::int64_t>(size.columns, 1, width);
    pixels.rows = scaled(height, pixels.columns, width);
    if (size.lines) {
        const std::int64_t mostRows = std::max<std::int64_t>(2, 2 * *size.lines);
        if (pixels.rows > mostRows) {
            pixels.rows = mostRows;
            pixels.columns = std::min(pixels.columns, scaled(width, mostRows, height));
        }
    }
    return pixels;
}

// Shares of burnt dots in the pixels of a row of them.
std::vector<double> sharesOf(const tspl::LabelPicture& picture, const PixelSize& pixels,
                             std::int64_t row) {
    std::vector<double> shares(static_cast<std::size_t>(pixels.columns), 0);
    if (row >= pixels.rows) {
        return shares;
    }
    const std::int64_t top = row * picture.height() / pixels.rows;
    const std::int64_t bottom = (row + 1) * picture.height() / pixels.rows;
    for (std::int64_t column = 0; column < pixels.columns; ++column) {
        const std::int64_t left = column * picture.width() / pixels.columns;
        const std::int64_t right = (column + 1) * picture.width() / pixels.columns;
        std::int64_t burnt = 0;
        for (std::int64_t y = top; y < bottom; ++y) {
            for (std::int64_t x = left; x < right; ++x) {
                burnt += picture.burns(x, y) ? 1 : 0;
            }
        }
        shares[static_cast<std::size_t>(column)] =
            static_cast<double>(burnt) / static_cast<double>((bottom - top) * (right - left));
    }
    return shares;
}

bool isDecided(double share) {
    return share <= sMostOfPaper || share >= sLeastOfInk;
}

std::string_view shadeOf(double share) {
    constexpr double dark = 0.5;
    constexpr double medium = 0.25;
    if (share >= dark) {
        return "\u2593";
    }
    return share >= medium ? "\u2592" : "\u2591";
}

std::string_view characterOf(double upper, double lower) {
    if (!isDecided(upper) || !isDecided(lower)) {
        return shadeOf((upper + lower) / 2);
    }
    if (upper >= sLeastOfInk) {
        return lower >= sLeastOfInk ? "\u2588" : "\u2580";
    }
    return lower >= sLeastOfInk ? "\u2584" : " ";
}

std::int64_t columnsOfEnvironment() {
    constexpr std::int64_t usual = 80;
    const char* text = std::getenv("COLUMNS");  // NOLINT(concurrency-mt-unsafe): one thread
    const std::string_view digits = text == nullptr ? "" : text;
    std::int64_t columns = 0;
    const char* end = digits.data() + digits.size();
    const auto number = std::from_chars(digits.data(), end, columns);
    return number.ec == std::errc() && number.ptr == end && columns > 0 ? columns : usual;
}

}  // namespace

TerminalSize terminalSize(int descriptor) {
    winsize window{};
    if (ioctl(descriptor, TIOCGWINSZ, &window) != 0 || window.ws_col == 0) {
        return {columnsOfEnvironment(), std::nullopt};
    }
    // A line above the picture tells of it, and one below is the shell's.
    constexpr int otherLines = 2;
    TerminalSize size{window.ws_col, std::nullopt};
    if (window.ws_row > otherLines) {
        size.lines = window.ws_row - otherLines;
    }
    return size;
}

std::string terminalPicture(const tspl::LabelPicture& picture, const TerminalSize& size) {
    const PixelSize pixels = pixelsFor(picture.width(), picture.height(), size);
    std::string text;
    for (std::int64_t row = 0; row < pixels.rows; row += 2) {
        const auto upper = sharesOf(picture, pixels, row);
        const auto lower = sharesOf(picture, pixels, row + 1);
        for (std::size_t column = 0; column < upper.size(); ++column) {
            text += characterOf(upper[column], lower[column]);
        }
        text.erase(text.find_last_not_of(' ') + 1);
        text += '\n';
    }
    return text;
}

}  // namespace preview
