#include "tests/system/remarks.h"

#include <iterator>
#include <regex>

#include "tests/support/raster_reader.h"

namespace {

using reference::PageHeader;

constexpr const char* noResolution = "WARN:Page without a resolution: [^\n]*\n";
constexpr const char* contradiction = "ERROR:Unsupported page geometry: [^\n]*\n";
constexpr const char* unreadable = "ERROR:Unable to read page [^\n]*\n";
constexpr const char* notPrinted = "ERROR:Page [0-9]+ was (not )?printed[^\n]*\n";
constexpr const char* noRaster = "ERROR:Unable to read the document[^\n]*\n";

std::size_t count(const std::string& log, const char* line) {
    const std::regex pattern(line);
    return static_cast<std::size_t>(
        std::distance(std::sregex_iterator(log.begin(), log.end(), pattern), {}));
}

bool isBegun(const PageHeader& header) {
    return header.bitsPerPixel == 8 && header.height != 0 && header.bytesPerLine != 0;
}

}  // namespace

Remarks remarksOn(const std::vector<reference::Page>& pages) {
    Remarks remarks;
    for (const auto& [header, rows, readable] : pages) {
        if (contradictsItself(header)) {
            ++remarks.contradictory;
        }
        if (contradictsItself(header) || !isBegun(header)) {
            break;
        }
        remarks.withoutResolution += header.xDpi == 0 || header.yDpi == 0 ? 1 : 0;
        remarks.unreadable += readable ? 0 : 1;
        remarks.notPrinted += readable && header.width == 0 ? 1 : 0;
    }
    return remarks;
}

Remarks remarksIn(const std::string& log) {
    return {count(log, noResolution), count(log, contradiction), count(log, unreadable),
            count(log, notPrinted)};
}

std::string withoutRemarks(const std::string& log) {
    std::string plain = log;
    for (const char* line : {noResolution, contradiction, unreadable, notPrinted, noRaster}) {
        plain = std::regex_replace(plain, std::regex(line), "");
    }
    return plain;
}
