#include <sys/types.h>

#include <cmath>
#include <cstdlib>
#include <list>
#include <memory>
#include <optional>
#include <string>

#include "driver/kesto_printer.h"
#include "driver/own_file.h"
#include "filter/job_settings.h"
#include "filter/print_job.h"
#include "tests/fuzz/captured_stream.h"
#include "tests/fuzz/fuzz_target.h"
#include "tests/fuzz/memory_file.h"
#include "tests/reference/job.h"
#include "tests/support/raster_reader.h"

// A whole job from any option string, PPD file and raster stream, compared with what the reference
// makes of it. The input holds two lengths of 16 bits, lowest byte first, the option string and
// the PPD file of these lengths, and the raster stream.

namespace {

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// A file that the filter has written.
struct WrittenFile {
    std::string path;
    char* bytes = nullptr;
    std::size_t size = 0;

    std::string content() const { return {bytes, size}; }
};

// In the order in which they were opened. The addresses of the entries stay: streams write there.
std::list<WrittenFile> sWrittenFiles;

void forgetWrittenFiles() {
    for (const WrittenFile& file : sWrittenFiles) {
        std::free(file.bytes);
    }
    sWrittenFiles.clear();
}

}  // namespace

// Stand in for the driver's own: what the filter leaves behind is kept in memory.
OwnedFile openNewFile(const char* path, mode_t /*permissions*/) {
    WrittenFile& file = sWrittenFiles.emplace_back();
    file.path = path;
    return OwnedFile(open_memstream(&file.bytes, &file.size));
}

OwnedFile replaceOwnFile(const char* path, mode_t permissions) {
    return openNewFile(path, permissions);
}

namespace {

struct Input {
    std::string options;
    std::string ppd;
    std::string raster;
};

std::string taken(std::string& rest, std::size_t length) {
    std::string part = rest.substr(0, length);
    rest.erase(0, length);
    return part;
}

std::size_t takenLength(std::string& rest) {
    const std::string bytes = taken(rest, 2);
    std::size_t length = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        length += std::size_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
    }
    return length;
}

Input inputFrom(const std::uint8_t* data, std::size_t size) {
    std::string rest(data, data + size);
    const std::size_t optionsLength = takenLength(rest);
    const std::size_t ppdLength = takenLength(rest);
    Input input;
    input.options = taken(rest, optionsLength);
    input.ppd = taken(rest, ppdLength);
    input.raster = rest;
    return input;
}

struct RasterCloser {
    void operator()(cups_raster_t* raster) const { cupsRasterClose(raster); }
};
using Raster = std::unique_ptr<cups_raster_t, RasterCloser>;

bool isPrinted(const reference::PageHeader& header) {
    return header.bitsPerPixel == 8 && header.height != 0 && header.bytesPerLine != 0 &&
           !contradictsItself(header);
}

// The pages up to the first that ends the job; none of a stream with so many or such large pages
// that it would take long.
std::optional<std::vector<reference::Page>> pagesOf(int file) {
    constexpr std::uint64_t mostBytes = 1U << 14U;
    constexpr std::size_t mostPages = 8;
    std::vector<reference::Page> pages;
    const Raster raster(cupsRasterOpen(file, CUPS_RASTER_READ));
    cups_page_header2_t header;
    while (cupsRasterReadHeader2(raster.get(), &header) != 0) {
        reference::Page page;
        page.header = headerFrom(header);
        const std::uint64_t bytes = std::uint64_t{header.cupsBytesPerLine} * header.cupsHeight;
        if (!isPrinted(page.header)) {
            pages.push_back(page);
            return pages;
        }
        if (bytes > mostBytes || pages.size() == mostPages) {
            return std::nullopt;
        }
        page.rows.resize(bytes);
        page.readable =
            cupsRasterReadPixels(raster.get(), page.rows.data(), static_cast<unsigned>(bytes)) != 0;
        pages.push_back(page);
    }
    return pages;
}

reference::Settings settingsOf(const Settings& settings) {
    reference::Settings plain;
    plain.pageSize = settings.PageSize;
    plain.resolution = settings.Resolution;
    plain.mediaMethod = settings.MediaMethod;
    plain.paperType = settings.PaperType;
    plain.gapsHeight = settings.GapsHeight;
    plain.postAction = settings.PostAction;
    plain.occurrence = settings.Occurrence;
    plain.origin = settings.Origin;
    plain.mirrorImage = settings.MirrorImage;
    plain.negativeImage = settings.NegativeImage;
    plain.halftoneType = static_cast<int>(settings.halftoneType);
    plain.printSpeed = settings.PrintSpeed;
    plain.darkness = settings.Darkness;
    plain.brightness = settings.Brightness;
    plain.forceRotation = settings.ForceRotation;
    plain.outputFileName = settings.outputFileName;
    return plain;
}

// The steps of the program, without its signals.
int printed(const std::string& path, const std::string& options) {
    PrintJob job;
    if (!job.openInput(path.c_str())) {
        return EXIT_FAILURE;
    }
    job.createPrinter();
    job.readSettings(options.c_str());
    job.startRecording();
    if (!job.hasPaperSize()) {
        return EXIT_FAILURE;
    }
    job.sendPreamble();
    return job.printPages() ? EXIT_SUCCESS : EXIT_FAILURE;
}

void requireFiles(const reference::Outcome& expected, const std::string& output, bool recorded) {
    std::size_t dumps = 0;
    std::optional<std::string> trace;
    for (const WrittenFile& file : sWrittenFiles) {
        if (file.path.starts_with("/var/spool/cups/tmp/")) {
            require(dumps < expected.dumps.size());
            const reference::Bytes& dump = expected.dumps[dumps++];
            require(file.content() == std::string(dump.begin(), dump.end()));
        } else if (file.path == "/tmp/xxxxx.log") {
            trace = file.content();
        } else {
            require(recorded && file.content() == output);
        }
    }
    require(dumps == expected.dumps.size());
    require(trace == expected.trace);
}

// Lengths so small that their way through the reference's points could cross the limit.
bool isBorderline(float millimetres) {
    return !std::isfinite(millimetres) || (millimetres > 0 && millimetres < 1e-5F);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static MemoryFile ppd;
    static MemoryFile raster;
    const Input input = inputFrom(data, size);
    ppd.fill(input.ppd);
    raster.fill(input.raster);
    setenv("PPD", ppd.path().c_str(), 1);

    InputFile file;
    require(file.open(raster.path().c_str()));
    const auto pages = pagesOf(file.descriptor());
    if (!pages) {
        return 0;
    }
    CapturedStream log(stderr);
    Settings settings{};
    parseSettings(&settings, input.options.c_str());
    if (isBorderline(settings.pageWidth) || isBorderline(settings.pageHeight)) {
        return 0;
    }
    const bool recorded = settings.outputFileName[0] != '\0';
    reference::Job job;
    job.settings = settingsOf(settings);
    job.ppdSize.width = settings.pageWidth / 0.3528F;
    job.ppdSize.length = settings.pageHeight / 0.3528F;
    job.pages = *pages;
    const bool refused = !pages->empty() && contradictsItself(pages->back().header);
    if (refused) {
        job.pages.pop_back();
    }
    reference::Outcome expected = reference::runJob(job);
    expected.status = refused ? EXIT_FAILURE : expected.status;

    page_index = 0;
    CapturedStream output(stdout);
    const int status = printed(raster.path(), input.options);
    const std::string stream = output.take();
    require(status == expected.status);
    require(stream == expected.standardOutput);
    requireFiles(expected, stream, recorded);
    forgetWrittenFiles();
    return 0;
}
