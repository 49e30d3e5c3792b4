#include <array>

#include "tspl/byte_reader.h"
#include "tspl/picture_file.h"

// The format is that of Windows' device-independent bitmaps, version 3 and later.

namespace tspl {
namespace {

constexpr std::uint64_t fileHeaderBytes = 14;

struct Header {
    std::uint64_t dots = 0;  ///< where they begin
    std::int64_t width = 0;
    std::int64_t height = 0;
    bool topDown = false;
    unsigned bits = 0;
    std::uint64_t palette = 0;  ///< where it begins

    [[nodiscard]] std::uint64_t rowBytes() const {
        return (static_cast<std::uint64_t>(width) * bits + 31) / 32 * 4;
    }
};

std::optional<Header> readHeader(const ByteReader& file) {
    constexpr std::uint32_t infoBytes = 40;
    const bool isBmp = file.byte(0) == 'B' && file.byte(1) == 'M';
    const std::uint32_t info = file.longWord(fileHeaderBytes);
    if (!isBmp || info < infoBytes || file.word(26) != 1 || file.longWord(30) != 0) {
        return std::nullopt;
    }
    Header header;
    header.dots = file.longWord(10);
    header.width = static_cast<std::int32_t>(file.longWord(18));
    const auto height = static_cast<std::int32_t>(file.longWord(22));
    header.height = height < 0 ? -std::int64_t{height} : height;
    header.topDown = height < 0;
    header.bits = file.word(28);
    header.palette = fileHeaderBytes + info;
    const bool isKnown =
        header.bits == 1 || header.bits == 4 || header.bits == 8 || header.bits == 24;
    if (!isKnown || header.width <= 0 || header.height <= 0 ||
        header.width > mostPictureDots / header.height ||
        header.dots + header.rowBytes() * static_cast<std::uint64_t>(header.height) > file.size()) {
        return std::nullopt;
    }
    return header;
}

class Reader {
public:
    Reader(const ByteReader& file, const Header& header) : file_(file), header_(header) {
        for (std::uint64_t i = 0; i < isDark_.size(); ++i) {
            isDark_[i] = isDarkAt(header.palette + 4 * i);
        }
    }

    [[nodiscard]] bool burns(std::uint64_t row, std::uint64_t x) const {
        if (header_.bits == 24) {
            return isDarkAt(row + 3 * x);
        }
        const std::uint64_t bit = x * header_.bits;
        const unsigned shift = 8 - header_.bits - static_cast<unsigned>(bit % 8);
        return isDark_[(file_.byte(row + bit / 8) >> shift) & ((1U << header_.bits) - 1)];
    }

private:
    [[nodiscard]] bool isDarkAt(std::uint64_t at) const {
        return isDark(file_.byte(at + 2), file_.byte(at + 1), file_.byte(at));
    }

    const ByteReader& file_;
    const Header& header_;
    std::array<bool, 256> isDark_{};
};

}  // namespace

std::optional<PictureDots> readBmp(std::span<const std::uint8_t> bytes) {
    const ByteReader file(bytes);
    const auto header = readHeader(file);
    if (!header) {
        return std::nullopt;
    }
    PictureDots picture{header->width, header->height, {}};
    picture.bits.resize(picture.rowBytes() * static_cast<std::size_t>(picture.height));
    const Reader reader(file, *header);
    for (std::int64_t y = 0; y < picture.height; ++y) {
        const std::int64_t stored = header->topDown ? y : picture.height - 1 - y;
        const std::uint64_t row =
            header->dots + static_cast<std::uint64_t>(stored) * header->rowBytes();
        std::uint8_t* out = picture.bits.data() + static_cast<std::size_t>(y) * picture.rowBytes();
        for (std::uint64_t x = 0; x < static_cast<std::uint64_t>(picture.width); ++x) {
            if (reader.burns(row, x)) {
                out[x / 8] |= static_cast<std::uint8_t>(0x80U >> (x % 8));
            }
        }
    }
    return picture;
}

}  // namespace tspl
