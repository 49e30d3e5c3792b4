#include "sizes/command/command_line.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "sizes/size_spelling.h"

namespace sizes {
namespace {

constexpr int usageError = 2;

const std::string sDescription =
    "Makes a queue description (PPD file) that offers each SIZE besides the sizes of the model, "
    "and\n"
    "has the first one as its default.";

const std::string sFooter =
    "For example, as root:\n\n"
    "  mkdir -p /etc/kesto-tspl\n"
    "  kesto-tspl-size -m label203 -o /etc/kesto-tspl/60x30.ppd 60x30mm\n"
    "  lpadmin -p labels -E -v socket://printer.example -P /etc/kesto-tspl/60x30.ppd";

struct RawOptions {
    std::string model{printerModels().front().name};
    std::string base;
    std::string output;
    bool list = false;
    bool media = false;
    std::vector<std::string> sizes;
};

std::string checkedModel(const std::string& name) {
    return findModel(name) != nullptr ? "" : "unknown model: " + name;
}

std::string checkedSize(const std::string& size) {
    return parsePlainSize(size) ? "" : "not a size: '" + size + "'";
}

void describe(CLI::App& app, RawOptions& raw) {
    app.footer(sFooter);
    app.add_option("SIZE", raw.sizes, "WIDTHxHEIGHT with a unit: 60x30mm or 2.25x1.25in")
        ->required()
        ->type_name("")
        ->check(checkedSize);
    app.add_option("-m", raw.model,
                   "The printer and its resolution: label203 (the default), label203mm, label300, "
                   "label300mm or stencil300")
        ->type_name("MODEL")
        ->check(checkedModel);
    app.add_option("-b", raw.base,
                   "Start from this file, not from the model's: a queue's own, for example")
        ->type_name("PPD");
    app.add_option("-o", raw.output, "Write to FILE, not to standard output")->type_name("FILE");
    auto* list = app.add_flag("--list", raw.list, "Only say what would be printed for every SIZE");
    // For those who work on the driver: neither the help nor the man page tells of it.
    auto* media = app.add_flag("--media", raw.media)->group("");
    for (auto* flag : {list, media}) {
        flag->disable_flag_override();
    }
}

Product productOf(const RawOptions& raw) {
    if (raw.list) {
        return Product::List;
    }
    return raw.media ? Product::Media : Product::Description;
}

Options finished(const CLI::App& app, RawOptions raw) {
    Options options;
    options.product = productOf(raw);
    options.model = findModel(raw.model);
    if (app.count("-b") > 0) {
        options.base = std::move(raw.base);
    }
    if (app.count("-o") > 0) {
        options.output = std::move(raw.output);
    }
    options.sizes = std::move(raw.sizes);
    return options;
}

}  // namespace

std::variant<Options, int> parseCommandLine(int argc, char* argv[]) {
    CLI::App app(sDescription, "kesto-tspl-size");
    RawOptions raw;
    describe(app, raw);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& help) {
        return app.exit(help);
    } catch (const CLI::ParseError& error) {
        std::cerr << "kesto-tspl-size: " << error.what()
                  << "\nRun with --help for more information.\n";
        return usageError;
    }
    return finished(app, std::move(raw));
}

}  // namespace sizes
