#include "intake/picture/decoder.h"

#include <magick/api.h>

namespace intake::picture {
namespace {

constexpr magick_int64_t sMebibyte = magick_int64_t{1} << 20;
// A dot takes eight bytes, or ten in a picture with a palette.
constexpr magick_int64_t sMostMemory = 256 * sMebibyte;
// In $TMPDIR, for what does not fit into that memory.
constexpr magick_int64_t sMostDisk = 1024 * sMebibyte;
constexpr magick_int64_t sLongestSide = 65535;

}  // namespace

void startDecoder(long samples) {
    // SIGTERM ends the process, as its starter expects, and not the library.
    InitializeMagickEx(nullptr, MAGICK_OPT_NO_SIGNAL_HANDER, nullptr);
    SetMagickResourceLimit(PixelsResource, samples);
    SetMagickResourceLimit(WidthResource, sLongestSide);
    SetMagickResourceLimit(HeightResource, sLongestSide);
    SetMagickResourceLimit(MemoryResource, sMostMemory);
    SetMagickResourceLimit(MapResource, 0);
    SetMagickResourceLimit(DiskResource, sMostDisk);
    // A label is not worth a second one, and a busy print server has others to do.
    SetMagickResourceLimit(ThreadsResource, 1);
}

RoomForReduction::RoomForReduction()
    : samples_(static_cast<long>(GetMagickResourceLimit(PixelsResource))),
      memory_(static_cast<long>(GetMagickResourceLimit(MemoryResource))) {
    constexpr long times = 4;
    SetMagickResourceLimit(PixelsResource, samples_ * times);
    SetMagickResourceLimit(MemoryResource, memory_ * times);
}

RoomForReduction::~RoomForReduction() {
    SetMagickResourceLimit(PixelsResource, samples_);
    SetMagickResourceLimit(MemoryResource, memory_);
}

}  // namespace intake::picture
