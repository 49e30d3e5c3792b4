#include "intake/picture/command_line.h"

#include <getopt.h>

#include <array>
#include <charconv>
#include <iostream>
#include <string_view>

namespace intake::picture {
namespace {

constexpr std::string_view sUsage =
    "Usage: picturetokestolabel --dots WIDTHxHEIGHT --dpi N [--size-name NAME] [--copies N]\n"
    "                           [--pdf] [-o NAME=VALUE]... FILE\n"
    "\n"
    "Places a picture on labels of so many dots and writes them as CUPS raster, or as PDF.\n";

// As large as the printing filter takes.
constexpr unsigned sMostDots = 65535;
constexpr unsigned sMostDpi = 2400;
constexpr unsigned sMostCopies = 100000;

// 0 for anything but a number from 1 to the highest.
unsigned numberOf(std::string_view text, unsigned highest) {
    unsigned number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber && number <= highest ? number : 0;
}

void readDots(std::string_view text, LabelDots& dots) {
    const std::size_t cross = std::min(text.find('x'), text.size());
    dots.width = numberOf(text.substr(0, cross), sMostDots);
    dots.height = cross == text.size() ? 0 : numberOf(text.substr(cross + 1), sMostDots);
}

bool readOption(std::string_view text, OptionList& options) {
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos || equals == 0) {
        return false;
    }
    options.set(text.substr(0, equals), text.substr(equals + 1));
    return true;
}

constexpr int sDots = 1;
constexpr int sDpi = 2;
constexpr int sSizeName = 3;
constexpr int sCopies = 4;
constexpr int sPdf = 5;
const std::array sNames{
    option{"dots", required_argument, nullptr, sDots},
    option{"dpi", required_argument, nullptr, sDpi},
    option{"size-name", required_argument, nullptr, sSizeName},
    option{"copies", required_argument, nullptr, sCopies},
    option{"pdf", no_argument, nullptr, sPdf},
    option{nullptr, 0, nullptr, 0},
};

// Whether it could be understood.
bool take(int name, CommandLine& line) {
    const std::string_view value = optarg == nullptr ? "" : optarg;
    switch (name) {
        case sDots:
            readDots(value, line.page.dots);
            return true;
        case sDpi:
            line.page.dots.dpi = numberOf(value, sMostDpi);
            return true;
        case sSizeName:
            line.page.sizeName = value;
            return true;
        case sCopies:
            line.page.copies = numberOf(value, sMostCopies);
            return true;
        case sPdf:
            line.isPdf = true;
            return true;
        case 'o':
            return readOption(value, line.options);
        default:
            return false;
    }
}

bool isComplete(const OutputPage& page) {
    return page.dots.width > 0 && page.dots.height > 0 && page.dots.dpi > 0 && page.copies > 0;
}

std::optional<CommandLine> refuse() {
    std::cerr << sUsage;
    return std::nullopt;
}

}  // namespace

std::optional<CommandLine> readCommandLine(int argc, char* argv[]) {
    CommandLine line;
    line.page.dots = {0, 0, 0};
    for (int name = 0; (name = getopt_long(argc, argv, "o:", sNames.data(), nullptr)) != -1;) {
        if (!take(name, line)) {
            return refuse();
        }
    }
    if (!isComplete(line.page) || optind != argc - 1) {
        return refuse();
    }
    line.file = argv[optind];
    return line;
}

}  // namespace intake::picture
