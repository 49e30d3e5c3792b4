#include <fcntl.h>
#include <libgen.h>
#include <sys/statvfs.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <ctime>
#include <span>
#include <utility>

#include "driver/bmp_file.h"
#include "driver/kesto_printer.h"
#include "driver/log.h"
#include "driver/own_file.h"

std::uint64_t page_index = 0;

namespace {

// The running number is used up even when the file cannot be opened.
void formatNextPath(const char* pathTemplate, std::span<char> path) {
    const std::time_t now = std::time(nullptr);
    const std::tm local = *std::localtime(&now);
#pragma GCC diagnostic push
// The template is one of the printer's own, chosen at run time.
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    std::snprintf(path.data(), path.size(), pathTemplate, local.tm_year + 1900, local.tm_mon + 1,
                  local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec,
                  static_cast<long>(page_index++));
#pragma GCC diagnostic pop
}

// Whether a file of this size would leave the spooler and its filters, which print nothing without
// it, 64 MiB of the disk. Where that cannot be told, opening the file will show.
bool leavesSpace(const char* path, std::uint64_t size) {
    constexpr std::uint64_t spaceForOthers = std::uint64_t{64} << 20;
    char folder[PATH_MAX];
    std::snprintf(folder, sizeof folder, "%s", path);
    struct statvfs disk = {};
    const bool known = statvfs(dirname(folder), &disk) == 0 && disk.f_blocks != 0;
    return !known || std::uint64_t{disk.f_bavail} * disk.f_frsize >= size + spaceForOthers;
}

}  // namespace

void KestoPrinter::saveImage(const unsigned char* data, std::size_t bytesPerLine,
                             std::size_t height, std::size_t width, unsigned short bitCount) {
    const BmpLayout layout = {bitCount == 8, static_cast<std::uint32_t>(width),
                              static_cast<std::uint32_t>(height)};
    char path[sizeof imagePath_ + 128];
    const OwnedFile file = openDump(path, layout.fileSize());
    if (!file) {
        std::fprintf(stderr, "KestoPrinter::saveImage: unable to open the file %s\n", path);
        return;
    }
    writeBmpHeader(file.get(), layout);
    if (layout.grey) {
        // The pixels go out as they lie in memory, without the padding and the row order that
        // the header promises: readers of the dumps know them this way.
        // A file system finds space for the whole file at once sooner than piece by piece.
        posix_fallocate(fileno(file.get()), 0,
                        static_cast<off_t>(layout.dataOffset() + width * height));
        writeGreyRamp(file.get());
        std::fwrite(data, width * height, 1, file.get());
        return;
    }
    if (bitCount == 1) {
        writeBlackAndWhite(file.get());
    }
    writeMonoRows(file.get(), data, bytesPerLine, layout);
}

// A number whose name is taken, by a job of the same second for one, is passed over.
OwnedFile KestoPrinter::openDump(std::span<char> path, std::uint64_t size) {
    OwnedFile file;
    int names = 0;
    do {
        formatNextPath(imagePath_, path);
        if (!leavesSpace(path.data(), size)) {
            if (!std::exchange(spaceIsShort_, true)) {
                kestoLogCommon(kestoLogError,
                               "Pages are not dumped: less than 64 MiB of the disk "
                               "would stay free");
            }
            return nullptr;
        }
        file = openNewFile(path.data(), ownerOnly);
    } while (!file && errno == EEXIST && ++names < mostNames);
    return file;
}
