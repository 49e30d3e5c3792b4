#include "intake/picture/file_details.h"

#include <unistd.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <string_view>
#include <vector>

#include "intake/descriptor.h"
#include "intake/job_failure.h"

namespace intake::picture {
namespace {

using Bytes = std::vector<unsigned char>;

// Less than that when the file ends before.
Bytes bytesAt(const Descriptor& file, std::uint64_t begin, std::size_t count) {
    Bytes bytes(count);
    const ssize_t got = pread(file.number(), bytes.data(), count, static_cast<off_t>(begin));
    bytes.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return bytes;
}

std::uint32_t number(std::span<const unsigned char> bytes, bool isBigEndian) {
    std::uint32_t result = 0;
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        const std::uint32_t byte = isBigEndian ? bytes[index] : bytes[bytes.size() - 1 - index];
        result = (result << 8U) | byte;
    }
    return result;
}

// Chunk after chunk: a length, a name, so many bytes and a checksum.
class PngDetails {
public:
    explicit PngDetails(const Descriptor& file) : file_(file) {}

    FileDetails read() {
        constexpr std::uint64_t signature = 8;
        constexpr unsigned mostChunks = 100000;
        std::uint64_t place = signature;
        for (unsigned chunk = 0; chunk < mostChunks; ++chunk) {
            const Bytes head = bytesAt(file_, place, sHead);
            if (head.size() < sHead) {
                break;
            }
            const std::uint32_t length = number(std::span(head).first(4), true);
            take({reinterpret_cast<const char*>(&head[4]), 4}, place + sHead, length);
            place += sHead + length + sChecksum;
        }
        return details_;
    }

private:
    static constexpr std::size_t sHead = 8;
    static constexpr std::size_t sChecksum = 4;

    void take(std::string_view name, std::uint64_t begin, std::uint32_t length) {
        constexpr std::uint32_t longest = 65536;
        if (name == "IHDR") {
            const Bytes header = bytesAt(file_, begin, 10);
            if (header.size() == 10) {
                bits_ = header[8];
                isColour_ = header[9] == 2;
            }
        } else if (name == "tRNS" && isColour_ && length == 6) {
            takeColour(bytesAt(file_, begin, length));
        } else if (name == "eXIf" && length <= longest) {
            details_.orientation = exifOrientation(bytesAt(file_, begin, length));
        }
    }

    void takeColour(const Bytes& colour) {
        if (colour.size() < 6) {
            return;
        }
        const unsigned spread = bits_ == 16 ? 1 : 257;
        std::array<std::uint16_t, 3> key{};
        for (std::size_t sample = 0; sample < key.size(); ++sample) {
            const std::uint32_t value = number(std::span(colour).subspan(2 * sample, 2), true);
            key[sample] = static_cast<std::uint16_t>(value * spread);
        }
        details_.transparent = key;
    }

    const Descriptor& file_;
    FileDetails details_;
    unsigned bits_ = 8;
    bool isColour_ = false;
};

// The samples of 16 bits have five bits each, or as many as their masks; the decoder leaves them at
// the upper end of a byte.
std::array<SampleRange, 3> rangesOf(const Bytes& head) {
    constexpr std::size_t compression = 30;
    constexpr std::size_t firstMask = 54;
    constexpr std::uint32_t withMasks = 3;
    const bool hasMasks = number(std::span(head).subspan(compression, 4), false) == withMasks;
    std::array<SampleRange, 3> ranges{};
    for (std::size_t channel = 0; channel < ranges.size(); ++channel) {
        constexpr std::uint32_t fiveBits = 31;
        const std::uint32_t mask =
            hasMasks ? number(std::span(head).subspan(firstMask + 4 * channel, 4), false)
                     : fiveBits;
        const auto bits = static_cast<unsigned>(std::clamp(std::popcount(mask), 1, 8));
        ranges.at(channel) = {8 - bits, (1U << bits) - 1};
    }
    return ranges;
}

FileDetails bmpDetails(const Descriptor& file) {
    constexpr std::size_t sizeOfHeader = 14;
    constexpr std::size_t bitsOfDot = 28;
    constexpr std::size_t behindMasks = 66;
    // The first header that has a mask for transparency.
    constexpr std::uint32_t withAlpha = 56;
    Bytes head = bytesAt(file, 0, behindMasks);
    head.resize(behindMasks);
    const std::uint32_t size = number(std::span(head).subspan(sizeOfHeader, 4), false);
    FileDetails details;
    details.hasNoAlpha = size < withAlpha;
    details.mayHaveNoAlpha = true;
    if (number(std::span(head).subspan(bitsOfDot, 2), false) == 16) {
        details.ranges = rangesOf(head);
    }
    return details;
}

// The words of a PNM file's head: numbers, with blanks and remarks between them.
class PnmHead {
public:
    explicit PnmHead(std::string_view text) : text_(text) {}

    // 0 when there is none.
    unsigned number() {
        skip();
        unsigned result = 0;
        const auto [end, error] =
            std::from_chars(text_.data() + place_, text_.data() + text_.size(), result);
        place_ = static_cast<std::size_t>(end - text_.data());
        return error == std::errc() ? result : 0;
    }

    std::size_t place() const { return place_; }

private:
    static bool isBlank(char c) {
        return std::string_view(" \t\n\v\f\r").find(c) != std::string_view::npos;
    }

    void skip() {
        while (place_ < text_.size() && (isBlank(text_[place_]) || text_[place_] == '#')) {
            const bool isRemark = text_[place_] == '#';
            place_ = isRemark ? std::min(text_.find('\n', place_), text_.size()) : place_ + 1;
        }
    }

    std::string_view text_;
    std::size_t place_ = 2;
};

// The decoder takes numbers that it cannot read for others.
void failIfImproper(PnmHead head, char kind) {
    constexpr unsigned most = 65535;
    const bool hasSize = head.number() > 0 && head.number() > 0;
    const bool isBilevel = kind == '1' || kind == '4';
    const unsigned highest = isBilevel ? 1 : head.number();
    if (!hasSize || highest == 0 || highest > most) {
        throw JobFailure("The picture cannot be read: its size or its highest value is none");
    }
}

bool endsInDigit(const Descriptor& file) {
    const off_t size = lseek(file.number(), 0, SEEK_END);
    const Bytes last = bytesAt(file, static_cast<std::uint64_t>(std::max<off_t>(size, 1)) - 1, 1);
    return !last.empty() && last[0] >= '0' && last[0] <= '9';
}

FileDetails pnmDetails(const Descriptor& file) {
    // Remarks may be as long as their writers like.
    constexpr std::size_t longestHead = 1U << 20U;
    const Bytes bytes = bytesAt(file, 0, longestHead);
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    const char kind = text.size() > 1 ? text[1] : '7';
    if (kind == '7') {
        return {};
    }
    PnmHead head(text);
    failIfImproper(head, kind);
    if (kind != '5' && kind != '6') {
        FileDetails details;
        details.lacksLineEnd = kind != '4' && endsInDigit(file);
        return details;
    }
    NarrowSamples samples;
    samples.isColour = kind == '6';
    samples.width = head.number();
    samples.height = head.number();
    samples.highest = head.number();
    samples.begin = head.place() + 1;
    FileDetails details;
    if (samples.highest < 255) {
        details.narrow = samples;
        details.ranges.emplace().fill({0, samples.highest});
    }
    return details;
}

}  // namespace

FileDetails detailsOf(const std::string& path, const Document& document) {
    const Descriptor file = openFile(path);
    if (document.decoder == "PNG") {
        return PngDetails(file).read();
    }
    if (document.decoder == "BMP") {
        return bmpDetails(file);
    }
    return document.decoder == "PNM" ? pnmDetails(file) : FileDetails();
}

std::optional<int> exifOrientation(std::span<const unsigned char> data) {
    constexpr std::array<unsigned char, 6> name{'E', 'x', 'i', 'f', 0, 0};
    if (data.size() > name.size() && std::ranges::equal(data.first(name.size()), name)) {
        data = data.subspan(name.size());
    }
    constexpr std::size_t header = 8;
    if (data.size() < header || data[0] != data[1] || (data[0] != 'I' && data[0] != 'M')) {
        return std::nullopt;
    }
    const bool isBigEndian = data[0] == 'M';
    const auto at = [&](std::size_t place, std::size_t count) {
        return number(data.subspan(place, count), isBigEndian);
    };
    const std::size_t directory = at(4, 4);
    if (directory + 2 > data.size()) {
        return std::nullopt;
    }
    const std::size_t count = at(directory, 2);
    constexpr std::size_t sizeOfEntry = 12;
    for (std::size_t entry = directory + 2;
         entry + sizeOfEntry <= data.size() && entry < directory + 2 + count * sizeOfEntry;
         entry += sizeOfEntry) {
        constexpr std::uint32_t orientation = 0x0112;
        constexpr std::uint32_t shortNumber = 3;
        if (at(entry, 2) == orientation && at(entry + 2, 2) == shortNumber) {
            const auto found = static_cast<int>(at(entry + 8, 2));
            return found >= 1 && found <= 8 ? std::optional(found) : std::nullopt;
        }
    }
    return std::nullopt;
}

}  // namespace intake::picture
