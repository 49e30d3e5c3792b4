#include "intake/picture/tiff_chain.h"

#include <cstdint>
#include <optional>
#include <set>
#include <span>

#include "intake/picture/mapped_file.h"

namespace intake::picture {
namespace {

using Bytes = std::span<const unsigned char>;

// TIFF has numbers of 32 bits where BigTIFF has 64.
class TiffFile {
public:
    explicit TiffFile(Bytes bytes)
        : bytes_(bytes),
          isBigEndian_(bytes.size() > 1 && bytes[0] == 'M'),
          isBig_(number(2, 2).value_or(0) == sBig) {}

    std::optional<std::uint64_t> firstDirectory() const {
        return isBig_ ? number(8, 8) : number(4, 4);
    }

    std::optional<std::uint64_t> directoryAfter(std::uint64_t place) const {
        const auto entries = number(place, isBig_ ? 8 : 2);
        if (!entries || *entries > bytes_.size()) {
            return std::nullopt;
        }
        return isBig_ ? number(place + 8 + *entries * 20, 8) : number(place + 2 + *entries * 12, 4);
    }

private:
    static constexpr std::uint64_t sBig = 43;

    std::optional<std::uint64_t> number(std::uint64_t place, unsigned count) const {
        if (place > bytes_.size() || count > bytes_.size() - place) {
            return std::nullopt;
        }
        std::uint64_t result = 0;
        for (unsigned index = 0; index < count; ++index) {
            result = (result << 8U) | bytes_[place + (isBigEndian_ ? index : count - 1 - index)];
        }
        return result;
    }

    Bytes bytes_;
    bool isBigEndian_;
    bool isBig_;
};

}  // namespace

bool isTiffChainWhole(const std::string& path) {
    const MappedFile file(path);
    const TiffFile tiff(file.bytes());
    std::set<std::uint64_t> seen;
    auto place = tiff.firstDirectory();
    while (place && *place != 0 && seen.insert(*place).second) {
        place = tiff.directoryAfter(*place);
    }
    return place == std::optional<std::uint64_t>(0);
}

}  // namespace intake::picture
