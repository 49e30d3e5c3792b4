#include <algorithm>
#include <array>

#include "tspl/byte_reader.h"
#include "tspl/picture_file.h"

// The format is that of ZSoft's paint program, version 5: rows of runs.

namespace tspl {
namespace {

constexpr std::uint64_t headerBytes = 128;
constexpr std::uint64_t paletteBytes = 768;

struct Header {
    std::int64_t width = 0;
    std::int64_t height = 0;
    unsigned bits = 0;
    std::uint64_t rowBytes = 0;
};

std::optional<Header> readHeader(const ByteReader& file) {
    Header header;
    header.width = std::int64_t{file.word(8)} - file.word(4) + 1;
    header.height = std::int64_t{file.word(10)} - file.word(6) + 1;
    header.bits = file.byte(3);
    header.rowBytes = file.word(66);
    const bool isPcx = file.byte(0) == 10 && file.byte(2) == 1 && file.byte(65) == 1;
    const bool isKnown = header.bits == 1 || header.bits == 8;
    if (!isPcx || !isKnown || header.width <= 0 || header.height <= 0 ||
        header.rowBytes * 8 < static_cast<std::uint64_t>(header.width) * header.bits ||
        header.width > mostPictureDots / header.height) {
        return std::nullopt;
    }
    return header;
}

// Which values are dark: by the palette at the end of the file where there is one, else the dark
// one of two is 0.
std::array<bool, 256> darkValues(const ByteReader& file, const Header& header) {
    std::array<bool, 256> dark{};
    dark[0] = true;
    if (header.bits == 8 && file.size() > headerBytes + paletteBytes) {
        const std::uint64_t palette = file.size() - paletteBytes;
        for (std::uint64_t i = 0; i < dark.size(); ++i) {
            const std::uint64_t at = palette + 3 * i;
            dark[i] = isDark(file.byte(at), file.byte(at + 1), file.byte(at + 2));
        }
    }
    return dark;
}

// Bytes of runs, one after the other.
class Runs {
public:
    explicit Runs(const ByteReader& file) : file_(file) {}

    [[nodiscard]] std::uint8_t next() {
        while (left_ == 0) {
            constexpr unsigned run = 0xC0;
            const std::uint8_t first = file_.byte(at_++);
            left_ = first >= run ? first - run : 1U;
            value_ = first >= run ? file_.byte(at_++) : first;
        }
        --left_;
        return value_;
    }
    [[nodiscard]] bool isBeyondEnd() const { return at_ > file_.size(); }

private:
    const ByteReader& file_;
    std::uint64_t at_ = headerBytes;
    unsigned left_ = 0;
    std::uint8_t value_ = 0;
};

}  // namespace

std::optional<PictureDots> readPcx(std::span<const std::uint8_t> bytes) {
    const ByteReader file(bytes);
    const auto header = readHeader(file);
    if (!header) {
        return std::nullopt;
    }
    const std::array<bool, 256> dark = darkValues(file, *header);
    PictureDots picture{header->width, header->height, {}};
    picture.bits.resize(picture.rowBytes() * static_cast<std::size_t>(picture.height));
    Runs runs(file);
    std::vector<std::uint8_t> row(static_cast<std::size_t>(header->rowBytes));
    for (std::int64_t y = 0; y < picture.height; ++y) {
        std::generate(row.begin(), row.end(), [&runs] { return runs.next(); });
        std::uint8_t* out = picture.bits.data() + static_cast<std::size_t>(y) * picture.rowBytes();
        for (std::uint64_t x = 0; x < static_cast<std::uint64_t>(picture.width); ++x) {
            const unsigned value = header->bits == 8 ? row[x] : row[x / 8] >> (7 - x % 8) & 1U;
            if (dark[value]) {
                out[x / 8] |= static_cast<std::uint8_t>(0x80U >> (x % 8));
            }
        }
        if (runs.isBeyondEnd()) {
            return std::nullopt;
        }
    }
    return picture;
}

}  // namespace tspl
