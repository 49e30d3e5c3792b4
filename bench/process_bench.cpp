// Whole processes side by side, measured in turns within one run: the floor, the filter with
// every halftone type and setting, and CUPS's own label filter on the one-bit version of the
// same pages. Prints a table in which every time is the smallest of several. Where other machines
// of the same host are busy, a second may be slower than the one before by a half: so the floor
// runs before every program once more, and the middle one of the ratios of such pairs is printed,
// too.
//
//     process_bench FILTER FLOOR PPD LABEL-FILTER LABEL-PPD-FOLDER WORK-FOLDER [--quick]

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/raster_file.h"
#include "bench/timed_run.h"
#include "lanes/choice.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* dumpFolder = "/var/spool/cups/tmp";

struct Programs {
    std::string filter;
    std::string floor;
    std::string ppd;
    std::string labelFilter;
    std::string labelPpds;
    std::string work;
};

/// One line of the table.
struct Row {
    std::string name;
    Command command;
    Output output;
    Cost best = {1e9, 1e9};
    std::vector<double> ratios = {};  ///< to the floor run just before
};

/// Pages that all rows of one block of the table work on.
struct Block {
    RasterForm form;
    Output output;
    bool everything;  ///< all settings, or only a few
    int repetitions;
};

Command filterCommand(const Programs& programs, const std::string& options,
                      const std::string& raster) {
    return {{programs.filter, "1", "bench", "bench", "1", options, raster}, programs.ppd};
}

Command labelCommand(const Programs& programs, const std::string& ppd, const std::string& raster) {
    return {{programs.labelFilter, "1", "bench", "bench", "1", "", raster},
            programs.labelPpds + "/" + ppd};
}

std::vector<std::pair<std::string, std::string>> filterSettings(bool everything) {
    std::vector<std::pair<std::string, std::string>> settings = {
        {"None (threshold)", "HalftoneType=None"},
        {"FloydSteinberg (ordered)", "HalftoneType=FloydSteinberg"},
        {"Ordered (Burkes)", "HalftoneType=Ordered"},
        {"Tattoo (stencil)", "HalftoneType=Tattoo"},
    };
    if (everything) {
        settings.insert(settings.end() - 1,
                        {{"Burkes (Stucki)", "HalftoneType=Burkes"},
                         {"Stucki (Jarvis-J.-N.)", "HalftoneType=Stucki"},
                         {"JarvisJudiceNinke (Sierra)", "HalftoneType=JarvisJudiceNinke"},
                         {"Sierra (Stevenson-Arce)", "HalftoneType=Sierra"},
                         {"StevensonArce (Bayer)", "HalftoneType=StevensonArce"}});
        settings.insert(settings.end(),
                        {{"Tattoo_X8 (stencil)", "HalftoneType=Tattoo_X8"},
                         {"None, brightness 10", "HalftoneType=None Brightness=10"},
                         {"None, mirror", "HalftoneType=None MirrorImage=True"},
                         {"None, negative", "HalftoneType=None NegativeImage=True"},
                         {"None, all three",
                          "HalftoneType=None Brightness=10 MirrorImage=True NegativeImage=True"}});
    }
    return settings;
}

std::vector<Row> rowsOf(const Programs& programs, const Block& block, const std::string& raster,
                        const std::string& bitRaster) {
    std::vector<Row> rows;
    const auto add = [&](const std::string& name, Command command) {
        rows.push_back({name, std::move(command), block.output});
    };
    add("floor", {{programs.floor, raster, dumpFolder}, ""});
    for (const auto& [name, options] : filterSettings(block.everything)) {
        add(name, filterCommand(programs, options, raster));
    }
    if (block.everything) {
        add("rastertolabel EPL2, 1 bit", labelCommand(programs, "zebraep2.ppd", bitRaster));
        add("rastertolabel ZPL, 1 bit", labelCommand(programs, "zebra.ppd", bitRaster));
    }
    return rows;
}

std::vector<fs::path> dumps() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(dumpFolder)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// Removes what has come into the dump folder since `before`.
void removeNewDumps(const std::vector<fs::path>& before) {
    for (const fs::path& file : dumps()) {
        if (!std::binary_search(before.begin(), before.end(), file)) {
            fs::remove(file);
        }
    }
}

Cost costOf(const Row& row, const std::string& outputPath) {
    const std::vector<fs::path> before = dumps();
    const Cost cost = timedRun(row.command, row.output, outputPath);
    removeNewDumps(before);
    return cost;
}

void measure(Row& row, const Row& floor, const std::string& outputPath) {
    const Cost least = costOf(floor, outputPath);
    const Cost cost = costOf(row, outputPath);
    row.ratios.push_back(cost.seconds / least.seconds);
    row.best.seconds = std::min(row.best.seconds, cost.seconds);
    row.best.peakMegabytes = std::min(row.best.peakMegabytes, cost.peakMegabytes);
}

double middleOf(std::vector<double> numbers) {
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::nth_element(numbers.begin(), middle, numbers.end());
    return *middle;
}

void printRows(const std::vector<Row>& rows, const Block& block) {
    const auto pageBytes = static_cast<double>(block.form.size.pixels());
    const double pixels = pageBytes * block.form.pages;
    std::printf("\n%u page%s of %u x %u, %s, %s, into a %s\n", block.form.pages,
                block.form.pages == 1 ? "" : "s", block.form.size.width, block.form.size.height,
                block.form.content == PageContent::LineArt ? "line art" : "photograph",
                block.form.compressed ? "compressed" : "uncompressed",
                block.output == Output::File ? "file" : "pipe");
    std::printf("%-28s %10s %10s %8s %8s %9s %8s\n", "", "ms", "ns/pixel", "x floor", "in pairs",
                "peak MB", "x page");
    for (const Row& row : rows) {
        std::printf("%-28s %10.2f %10.2f %8.2f %8.2f %9.1f %8.1f\n", row.name.c_str(),
                    row.best.seconds * 1e3, row.best.seconds * 1e9 / pixels,
                    row.best.seconds / rows.front().best.seconds, middleOf(row.ratios),
                    row.best.peakMegabytes, row.best.peakMegabytes * 1e6 / pageBytes);
    }
    std::fflush(stdout);
}

void run(const Programs& programs, const Block& block) {
    const std::string raster = programs.work + "/pages.raster";
    const std::string bitRaster = programs.work + "/bits.raster";
    writeRaster(raster, block.form);
    RasterForm bits = block.form;
    bits.bitsPerPixel = 1;
    writeRaster(bitRaster, bits);
    std::vector<Row> rows = rowsOf(programs, block, raster, bitRaster);
    for (int i = 0; i < block.repetitions; ++i) {
        for (Row& row : rows) {
            measure(row, rows.front(), programs.work + "/output");
        }
    }
    printRows(rows, block);
}

std::vector<Block> blocksOf(bool quick) {
    constexpr PageSize label = {812, 1218};
    constexpr PageSize parcel = {1200, 1800};
    constexpr PageSize a4 = {2480, 3508};
    constexpr auto photograph = PageContent::Photograph;
    constexpr auto lineArt = PageContent::LineArt;
    if (quick) {
        return {
            {{label, 1, photograph, 8, false}, Output::File, true, 15},
            {{a4, 4, photograph, 8, false}, Output::File, true, 3},
        };
    }
    return {
        {{label, 1, photograph, 8, false}, Output::File, true, 30},
        {{label, 20, photograph, 8, false}, Output::File, true, 5},
        {{parcel, 1, photograph, 8, false}, Output::File, true, 10},
        {{parcel, 20, photograph, 8, false}, Output::File, true, 4},
        {{a4, 1, photograph, 8, false}, Output::File, true, 5},
        {{a4, 20, photograph, 8, false}, Output::File, true, 4},
        {{a4, 20, photograph, 8, false}, Output::Pipe, true, 10},
        {{a4, 20, photograph, 8, true}, Output::File, false, 4},
        {{a4, 20, lineArt, 8, false}, Output::File, false, 4},
        {{a4, 20, lineArt, 8, true}, Output::File, false, 4},
        {{label, 1, lineArt, 8, true}, Output::Pipe, false, 30},
    };
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc < 7) {
        std::fputs(
            "Usage: process_bench FILTER FLOOR PPD LABEL-FILTER LABEL-PPD-FOLDER WORK-FOLDER "
            "[--quick]\n",
            stderr);
        return EXIT_FAILURE;
    }
    std::printf("kernels for: %s\n", lanes::levelName());
    const Programs programs = {argv[1], argv[2], argv[3], argv[4], argv[5], argv[6]};
    for (const Block& block : blocksOf(argc > 7 && std::string(argv[7]) == "--quick")) {
        run(programs, block);
    }
    return EXIT_SUCCESS;
}
