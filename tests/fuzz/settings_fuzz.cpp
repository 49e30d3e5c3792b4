#include <cstdlib>
#include <cstring>
#include <string>

#include "filter/job_settings.h"
#include "tests/fuzz/captured_stream.h"
#include "tests/fuzz/fuzz_target.h"
#include "tests/fuzz/memory_file.h"

// The settings of a job from any option string, up to the first NUL byte of the input, and any
// PPD file, the rest.

namespace {

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

template <std::size_t size>
void requireTerminated(const char (&field)[size]) {
    require(std::memchr(field, '\0', size) != nullptr);
}

void requireSound(const Settings& settings) {
    requireTerminated(settings.PageSize);
    requireTerminated(settings.Resolution);
    requireTerminated(settings.MediaMethod);
    requireTerminated(settings.PaperType);
    requireTerminated(settings.PostAction);
    requireTerminated(settings.Occurrence);
    requireTerminated(settings.Origin);
    requireTerminated(settings.PrintSpeed);
    requireTerminated(settings.outputFileName);
    const auto halftone = static_cast<int>(settings.halftoneType);
    require(halftone >= 0 && halftone <= 9);
    require(settings.DirectBuffer == 0);
    require(settings.StoredGraphics == 0);
    require(settings.OptionDisplayUnit == 0);
}

// No field may keep what the memory held before.
Settings parsedOver(int filler, const std::string& options) {
    Settings settings;
    std::memset(static_cast<void*>(&settings), filler, sizeof settings);
    parseSettings(&settings, options.c_str());
    requireSound(settings);
    return settings;
}

void requireEqual(const Settings& a, const Settings& b) {
    require(std::strcmp(a.PageSize, b.PageSize) == 0);
    require(std::strcmp(a.Resolution, b.Resolution) == 0);
    require(std::strcmp(a.MediaMethod, b.MediaMethod) == 0);
    require(std::strcmp(a.PaperType, b.PaperType) == 0);
    require(std::strcmp(a.PostAction, b.PostAction) == 0);
    require(std::strcmp(a.Occurrence, b.Occurrence) == 0);
    require(std::strcmp(a.Origin, b.Origin) == 0);
    require(std::strcmp(a.PrintSpeed, b.PrintSpeed) == 0);
    // The names of recordings hold the time.
    require((a.outputFileName[0] == '\0') == (b.outputFileName[0] == '\0'));
    // Bytes, for a length can be no number.
    require(std::memcmp(&a.pageWidth, &b.pageWidth, sizeof a.pageWidth) == 0);
    require(std::memcmp(&a.pageHeight, &b.pageHeight, sizeof a.pageHeight) == 0);
    require(a.GapsHeight == b.GapsHeight && a.MirrorImage == b.MirrorImage &&
            a.NegativeImage == b.NegativeImage && a.halftoneType == b.halftoneType &&
            a.Darkness == b.Darkness && a.Brightness == b.Brightness &&
            a.ForceRotation == b.ForceRotation);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static MemoryFile ppd;
    const std::string input(data, data + size);
    const std::string options = input.c_str();
    ppd.fill(options.size() < input.size() ? input.substr(options.size() + 1) : std::string());
    setenv("PPD", ppd.path().c_str(), 1);

    CapturedStream log(stderr);
    const Settings settings = parsedOver(0xAA, options);
    const std::string text = log.take();
    // A line end at the end of every line, and none of them without its level.
    require(text.starts_with("DEBUG:") && text.ends_with('\n'));

    CapturedStream logAgain(stderr);
    requireEqual(settings, parsedOver(0x55, options));
    return 0;
}
