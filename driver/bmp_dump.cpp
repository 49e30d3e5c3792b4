#include <cstdio>
#include <ctime>
#include <memory>
#include <span>

#include "driver/bmp_file.h"
#include "driver/kesto_printer.h"
#include "driver/own_file.h"

std::uint64_t page_index = 0;

namespace {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

}  // namespace

void KestoPrinter::saveImage(const unsigned char* data, std::size_t bytesPerLine,
                             std::size_t height, std::size_t width, unsigned short bitCount) const {
    char path[sizeof imagePath_ + 128];
    formatNextDumpPath(path);
    const std::unique_ptr<std::FILE, FileCloser> file(openOwnFile(path, ownerOnly));
    if (!file) {
        std::fprintf(stderr, "KestoPrinter::saveImage: unable to open the file %s\n", path);
        return;
    }
    const BmpLayout layout = {bitCount == 8, static_cast<std::uint32_t>(width),
                              static_cast<std::uint32_t>(height)};
    writeBmpHeader(file.get(), layout);
    if (layout.grey) {
        // The pixels go out as they lie in memory, without the padding and the row order that
        // the header promises: readers of the dumps know them this way.
        writeGreyRamp(file.get());
        std::fwrite(data, width * height, 1, file.get());
        return;
    }
    if (bitCount == 1) {
        writeBlackAndWhite(file.get());
    }
    writeMonoRows(file.get(), data, bytesPerLine, layout);
}

// The running number is used up even when the file cannot be opened.
void KestoPrinter::formatNextDumpPath(std::span<char> path) const {
    const std::time_t now = std::time(nullptr);
    const std::tm local = *std::localtime(&now);
#pragma GCC diagnostic push
// The template is one of this class's own, chosen at run time.
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    std::snprintf(path.data(), path.size(), imagePath_, local.tm_year + 1900, local.tm_mon + 1,
                  local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec,
                  static_cast<long>(page_index++));
#pragma GCC diagnostic pop
}
