#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <span>
#include <string>

#include "intake/job_failure.h"
#include "intake/picture/decoder.h"
#include "intake/picture/label_drawing.h"
#include "intake/picture/picture_file.h"
#include "tests/fuzz/fuzz_target.h"

// Any file as a picture, placed on a label in one of the ways. The first two bytes of the input are
// the way and the size of the label; the rest is the file.

namespace {

using namespace intake::picture;

// Small pictures keep the fuzzer fast: what is larger is refused the same way.
constexpr long sMostSamples = 1 << 20;
constexpr unsigned sMostLabels = 20;

class MemoryFile {
public:
    explicit MemoryFile(std::span<const std::uint8_t> content)
        : number_(memfd_create("picture", MFD_CLOEXEC)) {
        if (number_ < 0 || write(number_, content.data(), content.size()) !=
                               static_cast<ssize_t>(content.size())) {
            std::abort();
        }
    }
    ~MemoryFile() { close(number_); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    std::string path() const { return "/proc/self/fd/" + std::to_string(number_); }

private:
    int number_;
};

PlacementWish wishOf(std::uint8_t bits) {
    constexpr std::array sizings{Sizing::Fit,     Sizing::Fill,  Sizing::Cropped, Sizing::Auto,
                                 Sizing::AutoFit, Sizing::Share, Sizing::Natural, Sizing::Fit};
    PlacementWish wish;
    wish.sizing = sizings.at(bits & 7U);
    wish.percent = (bits & 8U) != 0 ? 150 : 100;
    wish.isMirrored = (bits & 16U) != 0;
    wish.across = (bits & 32U) != 0 ? 1 : -1;
    if ((bits & 64U) != 0) {
        wish.turn = quarterRight;
    }
    return wish;
}

void draw(PictureFile& file, std::size_t index, const PlacementWish& wish, const LabelDots& label) {
    const PictureOutline& outline = file.pictures()[index];
    const Placement placement = placePicture(outline.seen(), wish, label);
    if (placement.labels() > sMostLabels) {
        return;
    }
    DecodedPicture picture =
        file.decode(index, file.canReduce() ? reductionFor(outline, placement) : 1);
    for (unsigned number = 0; number < placement.labels(); ++number) {
        const GreyImage drawn = drawLabel(picture, outline, placement, number);
        if (drawn.width != label.width || drawn.height != label.height) {
            std::abort();
        }
    }
}

void drawAll(const std::string& path, const PlacementWish& wish, const LabelDots& label) {
    try {
        PictureFile file(path);
        constexpr std::size_t mostPictures = 4;
        for (std::size_t index = 0; index < std::min(file.pictures().size(), mostPictures);
             ++index) {
            draw(file, index, wish, label);
        }
    } catch (const intake::JobFailure&) {
        // What cannot be read is to be said, and that is all.
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    [[maybe_unused]] static const bool isStarted = (startDecoder(sMostSamples), true);
    if (size < 2) {
        return 0;
    }
    const MemoryFile file({data + 2, size - 2});
    const unsigned side = 8U * (1 + (data[1] & 15U));
    drawAll(file.path(), wishOf(data[0]), {side, 1U + data[1], 203});
    return 0;
}
