#include "intake/sheet/command_line.h"

#include <getopt.h>

#include <array>
#include <charconv>
#include <iostream>
#include <string_view>

namespace intake::sheet {
namespace {

constexpr std::string_view sUsage =
    "Usage: pdftokestolabels --label WIDTHxHEIGHT [--page WIDTHxHEIGHT] [-o NAME=VALUE]... FILE\n"
    "\n"
    "Cuts the labels of so many points out of the pages of a PDF file and writes them as PDF,\n"
    "on pages of the label's size or of another one.\n";

// 200 inches, the longest side of a page.
constexpr double sLongestSide = 14400;

// 0 for anything but the length of a side.
double lengthOf(std::string_view text) {
    double length = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), length, std::chars_format::fixed);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber && length >= 1 && length <= sLongestSide ? length : 0;
}

// Whether it could be understood.
bool readSize(std::string_view text, sizes::PointSize& size) {
    const std::size_t cross = std::min(text.find('x'), text.size());
    size.width = lengthOf(text.substr(0, cross));
    size.height = cross == text.size() ? 0 : lengthOf(text.substr(cross + 1));
    return size.width > 0 && size.height > 0;
}

bool readOption(std::string_view text, OptionList& options) {
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos || equals == 0) {
        return false;
    }
    options.set(text.substr(0, equals), text.substr(equals + 1));
    return true;
}

constexpr int sLabel = 1;
constexpr int sPage = 2;
const std::array sNames{
    option{"label", required_argument, nullptr, sLabel},
    option{"page", required_argument, nullptr, sPage},
    option{nullptr, 0, nullptr, 0},
};

// Whether it could be understood.
bool take(int name, CommandLine& line) {
    switch (name) {
        case sLabel:
            return readSize(optarg, line.sides.label);
        case sPage:
            return readSize(optarg, line.sides.page);
        case 'o':
            return readOption(optarg, line.options);
        default:
            return false;
    }
}

std::optional<CommandLine> refuse() {
    std::cerr << sUsage;
    return std::nullopt;
}

}  // namespace

std::optional<CommandLine> readCommandLine(int argc, char* argv[]) {
    CommandLine line;
    for (int name = 0; (name = getopt_long(argc, argv, "o:", sNames.data(), nullptr)) != -1;) {
        if (!take(name, line)) {
            return refuse();
        }
    }
    if (line.sides.label.width <= 0 || optind != argc - 1) {
        return refuse();
    }
    if (line.sides.page.width <= 0) {
        line.sides.page = line.sides.label;
    }
    line.file = argv[optind];
    return line;
}

}  // namespace intake::sheet
