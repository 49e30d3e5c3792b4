#include <sys/types.h>

#include <algorithm>
#include <cerrno>
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
#include "tests/fuzz/limited_text.h"
#include "tests/fuzz/memory_file.h"
#include "tests/reference/job.h"
#include "tests/support/raster_reader.h"

// A whole job from any option string, PPD file and raster stream, to a printer and a recording that
// may fail, compared with what the reference makes of it. The input holds four numbers of 16 bits,
// lowest byte first: how many bytes the printer takes and how many the recording takes, 0 for all
// and 0xFFFF for a recording that cannot be opened, and the lengths of the option string and of the
// PPD file. These two follow, and then the raster stream.

namespace {

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// A file that the filter has written.
struct WrittenFile {
    WrittenFile(const char* name, std::size_t room) : path(name), content(room) {}

    std::string path;
    LimitedText content;
};

/// What the streams of a job take, in bytes.
struct Room {
    std::size_t output = LimitedText::noLimit;
    std::size_t recording = LimitedText::noLimit;
    bool recordingOpens = true;
};

// In the order in which they were opened. The addresses of the entries stay: streams write there.
std::list<WrittenFile> sWrittenFiles;
// Set while the filter opens its recording.
const Room* sRecordingRoom = nullptr;

}  // namespace

// Stand in for the driver's own: what the filter leaves behind is kept in memory.
OwnedFile openNewFile(const char* path, mode_t /*permissions*/) {
    if (sRecordingRoom != nullptr && !sRecordingRoom->recordingOpens) {
        errno = EACCES;
        return nullptr;
    }
    const std::size_t room =
        sRecordingRoom != nullptr ? sRecordingRoom->recording : LimitedText::noLimit;
    return OwnedFile(sWrittenFiles.emplace_back(path, room).content.open());
}

OwnedFile replaceOwnFile(const char* path, mode_t permissions) {
    return openNewFile(path, permissions);
}

namespace {

struct Input {
    Room room;
    std::string options;
    std::string ppd;
    std::string raster;
};

std::string taken(std::string& rest, std::size_t length) {
    std::string part = rest.substr(0, length);
    rest.erase(0, length);
    return part;
}

std::size_t takenNumber(std::string& rest) {
    const std::string bytes = taken(rest, 2);
    std::size_t number = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        number += std::size_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
    }
    return number;
}

Room takenRoom(std::string& rest) {
    const auto limit = [](std::size_t number) {
        return number == 0 ? LimitedText::noLimit : number;
    };
    const std::size_t output = takenNumber(rest);
    const std::size_t recording = takenNumber(rest);
    return {limit(output), limit(recording), recording != 0xFFFF};
}

Input inputFrom(const std::uint8_t* data, std::size_t size) {
    std::string rest(data, data + size);
    Input input;
    input.room = takenRoom(rest);
    const std::size_t optionsLength = takenNumber(rest);
    const std::size_t ppdLength = takenNumber(rest);
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

// Of a job that the printer does not take all of, the part up to the page behind which that shows.
reference::Outcome outcomeOf(const reference::Job& job, std::size_t room) {
    reference::Job part = job;
    part.pages.resize(std::min<std::size_t>(job.pages.size(), 1));
    reference::Outcome outcome = reference::runJob(part);
    while (outcome.standardOutput.size() <= room && part.pages.size() < job.pages.size()) {
        part.pages.push_back(job.pages[part.pages.size()]);
        outcome = reference::runJob(part);
    }
    outcome.status = outcome.standardOutput.size() > room ? EXIT_FAILURE : outcome.status;
    return outcome;
}

reference::Outcome outcomeOf(reference::Job job, const Room& room) {
    const bool refused = !job.pages.empty() && contradictsItself(job.pages.back().header);
    job.pages.resize(job.pages.size() - (refused ? 1 : 0));
    reference::Outcome outcome =
        room.output == LimitedText::noLimit ? reference::runJob(job) : outcomeOf(job, room.output);
    outcome.status = refused ? EXIT_FAILURE : outcome.status;
    return outcome;
}

void startRecording(PrintJob& job, const Room& room) {
    sRecordingRoom = &room;
    job.startRecording();
    sRecordingRoom = nullptr;
}

// The steps of the program, without its signals.
int printed(const std::string& path, const std::string& options, const Room& room) {
    PrintJob job;
    if (!job.openInput(path.c_str())) {
        return EXIT_FAILURE;
    }
    job.createPrinter();
    job.readSettings(options.c_str());
    startRecording(job, room);
    if (!job.hasPaperSize()) {
        return EXIT_FAILURE;
    }
    job.sendPreamble();
    return job.printPages() ? EXIT_SUCCESS : EXIT_FAILURE;
}

bool contains(const std::string& log, const char* line) {
    return log.find(line) != std::string::npos;
}

// It is the first file, if there is one: the job opens it before anything else.
void requireRecording(const Room& room, const std::string& sent, const std::string& log) {
    require(contains(log, "ERROR:Unable to open the recording file ") == !room.recordingOpens);
    const bool failed = room.recordingOpens && sent.size() > room.recording;
    require(contains(log, "ERROR:Unable to write the recording file ") == failed);
    if (room.recordingOpens) {
        require(sWrittenFiles.front().content.text() == sent.substr(0, room.recording));
        sWrittenFiles.pop_front();
    }
}

void requireFiles(const reference::Outcome& expected) {
    std::size_t dumps = 0;
    std::optional<std::string> trace;
    for (const WrittenFile& file : sWrittenFiles) {
        if (file.path == "/tmp/xxxxx.log") {
            trace = file.content.text();
            continue;
        }
        require(file.path.starts_with("/var/spool/cups/tmp/") && dumps < expected.dumps.size());
        const reference::Bytes& dump = expected.dumps[dumps++];
        require(file.content.text() == std::string(dump.begin(), dump.end()));
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
    reference::Job job;
    job.settings = settingsOf(settings);
    job.ppdSize.width = settings.pageWidth / 0.3528F;
    job.ppdSize.length = settings.pageHeight / 0.3528F;
    job.pages = *pages;
    const reference::Outcome expected = outcomeOf(job, input.room);

    page_index = 0;
    sWrittenFiles.clear();
    CapturedStream output(stdout, input.room.output);
    const int status = printed(raster.path(), input.options, input.room);
    require(output.take() == expected.standardOutput.substr(0, input.room.output));
    require(status == expected.status);
    const std::string lines = log.take();
    require(contains(lines, "ERROR:Unable to write to the printer: ") ==
            (expected.standardOutput.size() > input.room.output));
    if (settings.outputFileName[0] != '\0') {
        requireRecording(input.room, expected.standardOutput, lines);
    }
    requireFiles(expected);
    return 0;
}
