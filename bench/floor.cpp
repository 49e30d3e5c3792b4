// What any filter with this one's duties has to do: decodes a raster with libcups, writes each
// page twice as a file of its size into a folder, and an eighth of it to standard output.
//
//     floor RASTER FOLDER

#include <cups/raster.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

bool writePage(const std::string& path, const std::vector<unsigned char>& page) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) {
        return false;
    }
    std::fwrite(page.data(), page.size(), 1, file);
    return std::fclose(file) == 0;
}

bool writePages(cups_raster_t* raster, const std::string& folder) {
    cups_page_header2_t header;
    std::vector<unsigned char> page;
    for (int number = 1; cupsRasterReadHeader2(raster, &header) != 0; ++number) {
        page.resize(std::size_t{header.cupsBytesPerLine} * header.cupsHeight);
        if (cupsRasterReadPixels(raster, page.data(), static_cast<unsigned>(page.size())) == 0) {
            return false;
        }
        const std::string base = folder + "/floor-" + std::to_string(number);
        if (!writePage(base + "-raw", page) || !writePage(base + "-finished", page)) {
            return false;
        }
        std::fwrite(page.data(), page.size() / 8, 1, stdout);
    }
    return std::fflush(stdout) == 0;
}

}  // namespace

int main(int argc, char* argv[]) {
    const int input = argc == 3 ? open(argv[1], O_RDONLY) : -1;
    if (input < 0) {
        std::fputs("Usage: floor RASTER FOLDER\n", stderr);
        return EXIT_FAILURE;
    }
    cups_raster_t* raster = cupsRasterOpen(input, CUPS_RASTER_READ);
    const bool written = writePages(raster, argv[2]);
    cupsRasterClose(raster);
    close(input);
    return written ? EXIT_SUCCESS : EXIT_FAILURE;
}
