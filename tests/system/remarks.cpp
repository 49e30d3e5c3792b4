#include "tests/system/remarks.h"

#include <algorithm>
#include <string_view>

#include "tests/support/raster_reader.h"

namespace {

using reference::PageHeader;

constexpr std::string_view noResolution = "WARN:Page without a resolution: ";
constexpr std::string_view contradiction = "ERROR:Unsupported page geometry: ";
constexpr std::string_view unreadable = "ERROR:Unable to read page ";
constexpr std::string_view pageNumber = "ERROR:Page ";
constexpr std::string_view noRaster = "ERROR:Unable to read the document";

// "ERROR:Page 3 was printed only in part", "ERROR:Page 3 was not printed".
bool isOfPage(std::string_view line) {
    if (!line.starts_with(pageNumber)) {
        return false;
    }
    const std::string_view rest = line.substr(pageNumber.size());
    const std::size_t digits = std::min(rest.find_first_not_of("0123456789"), rest.size());
    const std::string_view words = rest.substr(digits);
    return digits > 0 &&
           (words.starts_with(" was printed") || words.starts_with(" was not printed"));
}

bool isRemark(std::string_view line) {
    const auto begins = [line](std::string_view text) { return line.starts_with(text); };
    return begins(noResolution) || begins(contradiction) || begins(unreadable) ||
           begins(noRaster) || isOfPage(line);
}

// Each with its end, if it has one.
std::vector<std::string_view> linesOf(std::string_view log) {
    std::vector<std::string_view> lines;
    for (std::size_t start = 0; start < log.size();) {
        const std::size_t end = log.find('\n', start);
        const std::size_t next = end == std::string_view::npos ? log.size() : end + 1;
        lines.push_back(log.substr(start, next - start));
        start = next;
    }
    return lines;
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
    Remarks remarks;
    for (const std::string_view line : linesOf(log)) {
        remarks.withoutResolution += line.starts_with(noResolution) ? 1U : 0U;
        remarks.contradictory += line.starts_with(contradiction) ? 1U : 0U;
        remarks.unreadable += line.starts_with(unreadable) ? 1U : 0U;
        remarks.notPrinted += isOfPage(line) ? 1U : 0U;
    }
    return remarks;
}

std::string withoutRemarks(const std::string& log) {
    std::string plain;
    for (const std::string_view line : linesOf(log)) {
        if (!isRemark(line)) {
            plain += line;
        }
    }
    return plain;
}
