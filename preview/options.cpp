#include "preview/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include "preview/picture_names.h"
#include "preview/version.h"
#include "tspl/text.h"

namespace preview {
namespace {

constexpr int usageError = 2;
constexpr int lowestDpi = 50;
constexpr int highestDpi = 2400;

const std::string sDescription =
    "Shows what a TSPL label printer would print: one PNG picture for every label of a stream.";

const std::string sFooter =
    "Without -o the pictures are named after FILE and written to the current folder; with -o and\n"
    "several files they are called PREFIX-FILE-1.png and so on.\n"
    "Exit status: 0 when all went well, 1 when --check has something to complain of or a file\n"
    "cannot be read or written, 2 for a wrong command line.";

// What is wrong with a command line quotes it, and so may hold anything.
std::string printableLines(const std::string& text) {
    std::istringstream lines(text);
    std::string result;
    for (std::string line; std::getline(lines, line);) {
        result += tspl::printable(line) + '\n';
    }
    return result;
}

int complain(const CLI::App& app, const CLI::ParseError& error) {
    std::ostringstream text;
    app.exit(error, text, text);
    std::cerr << printableLines(text.str());
    return usageError;
}

// Help and version.
int inform(const CLI::App& app, const CLI::ParseError& end) {
    app.exit(end);
    std::cout.flush();
    return std::cout.good() ? EXIT_SUCCESS : EXIT_FAILURE;
}

const CLI::Validator sNotEmpty(
    [](const std::string& text) { return std::string(text.empty() ? "must not be empty" : ""); },
    "");

const CLI::Validator sNoStream(
    [](const std::string& text) { return std::string(text == "-" ? "must be a file" : ""); }, "");

const CLI::Validator sLabels(
    [](const std::string& text) {
        return std::string(parseLabelRange(text) ? "" : "is no label like 5 or 3-7");
    },
    "");

struct RawOptions {
    std::vector<std::string> files;
    std::string prefix;
    std::string pdf;
    std::string labels;
    bool follow = false;
    bool feedDirection = false;
    bool terminal = false;
    int dpi = 0;
    std::string burn = "zeros";
    bool list = false;
    bool json = false;
    bool check = false;
};

void describe(CLI::App& app, RawOptions& raw) {
    app.set_version_flag("--version", std::string("tsplpreview ") + version);
    app.footer(sFooter);
    app.add_option("FILE", raw.files, "TSPL streams; standard input without one or for -");
    app.add_option("-o,--output", raw.prefix,
                   "Write the pictures as PREFIX-1.png, PREFIX-2.png and so on")
        ->type_name("PREFIX")
        ->check(sNotEmpty);
    app.add_option("--pdf", raw.pdf, "Write the labels at their true size to a PDF file")
        ->type_name("PDF")
        ->check(sNotEmpty)
        ->check(sNoStream);
    app.add_option("--label", raw.labels, "Show label N only, or labels N-M")
        ->type_name("N[-M]")
        ->check(sLabels);
    auto* feedDirection =
        app.add_flag("--feed-direction", raw.feedDirection,
                     "Show labels as they leave the printer: those of DIRECTION 1 turned");
    auto* terminal = app.add_flag("--terminal", raw.terminal,
                                  "Show the pictures as characters, as large as the window");
    auto* follow =
        app.add_flag("--follow", raw.follow, "Read on when the file grows, until a signal ends it");
    app.add_option("--dpi", raw.dpi,
                   "Resolution of the printer; else worked out from SIZE and the bitmaps")
        ->type_name("DPI")
        ->check(CLI::Range(lowestDpi, highestDpi));
    app.add_option("--burn", raw.burn, "Which bits of a bitmap burn a dot: zeros (usual) or ones")
        ->type_name("BITS")
        ->check(CLI::IsMember({"zeros", "ones"}));
    auto* list = app.add_flag("--list", raw.list, "List the commands, one per line");
    auto* json = app.add_flag("--json", raw.json, "The same as JSON objects, one per line");
    auto* check =
        app.add_flag("--check", raw.check,
                     "Only complain, of all that is wrong; a failure when there is anything");
    for (auto* flag : {feedDirection, terminal, follow, list, json, check}) {
        flag->disable_flag_override();
    }
    list->excludes(json);
    terminal->excludes(json)->excludes(check);
}

Listing listingOf(const RawOptions& raw) {
    if (raw.list) {
        return Listing::Text;
    }
    if (raw.json) {
        return Listing::Json;
    }
    return raw.check ? Listing::Check : Listing::None;
}

std::vector<Source> sourcesOf(const RawOptions& raw, bool prefixGiven) {
    const std::vector<std::string> files =
        raw.files.empty() ? std::vector<std::string>{"-"} : raw.files;
    const auto names = pictureNames(files, prefixGiven ? std::optional(raw.prefix) : std::nullopt);
    std::vector<Source> sources;
    for (std::size_t i = 0; i < files.size(); ++i) {
        sources.push_back({files[i], names[i]});
    }
    return sources;
}

Options finished(const RawOptions& raw, bool prefixGiven) {
    Options options;
    options.sources = sourcesOf(raw, prefixGiven);
    options.listing = listingOf(raw);
    options.complaintsFail = raw.check;
    options.follows = raw.follow;
    options.inFeedDirection = raw.feedDirection;
    options.showsOnTerminal = raw.terminal;
    if (!raw.pdf.empty()) {
        options.pdf = raw.pdf;
    }
    options.writesPictures = prefixGiven || (options.listing == Listing::None &&
                                             !options.showsOnTerminal && !options.pdf);
    options.labels = parseLabelRange(raw.labels);
    options.printer.onesBurn = raw.burn == "ones";
    if (raw.dpi != 0) {
        options.printer.dpi = raw.dpi;
    }
    return options;
}

// What no option can see of another one.
void checkTogether(const RawOptions& raw) {
    if (std::count(raw.files.begin(), raw.files.end(), "-") > 1) {
        throw CLI::ValidationError("FILE", "standard input can be read only once");
    }
    if (raw.follow && raw.files.size() > 1) {
        throw CLI::ValidationError("--follow", "takes a single file");
    }
}

void checkOutputs(const Options& options) {
    for (const Source& source : options.sources) {
        if (options.pdf && options.writesPictures && isPictureName(source.pictures, *options.pdf)) {
            throw CLI::ValidationError("--pdf", "is the name of a picture: " + *options.pdf);
        }
    }
}

}  // namespace

std::variant<Options, int> parseOptions(int argc, char* argv[]) {
    CLI::App app(sDescription, "tsplpreview");
    RawOptions raw;
    describe(app, raw);
    try {
        app.parse(argc, argv);
        checkTogether(raw);
        Options options = finished(raw, app.count("--output") > 0);
        checkOutputs(options);
        return options;
    } catch (const CLI::ParseError& end) {
        return end.get_exit_code() == 0 ? inform(app, end) : complain(app, end);
    }
}

}  // namespace preview
