#include "preview/text_listing.h"

#include <iomanip>
#include <sstream>

#include "tspl/text.h"

namespace preview {
namespace {

constexpr int offsetColumns = 10;

}  // namespace

std::string describe(const tspl::BitmapSummary& bitmap) {
    constexpr double percent = 100;
    std::ostringstream text;
    text << bitmap.width << " x " << bitmap.height << " dots, " << bitmap.receivedBytes;
    if (bitmap.receivedBytes < bitmap.expectedBytes) {
        text << " of " << bitmap.expectedBytes;
    }
    text << (bitmap.expectedBytes == 1 ? " byte, " : " bytes, ") << std::fixed
         << std::setprecision(1) << percent * bitmap.burntShare() << " % of the dots burnt";
    return text.str();
}

void TextListing::onStream(const std::string& name) {
    out_ << tspl::printable(name) << ":\n";
}

void TextListing::onEntry(const tspl::Entry& entry) {
    out_ << std::setw(offsetColumns) << entry.offset << "  " << tspl::printable(entry.text);
    if (entry.bitmap) {
        out_ << "  (" << describe(*entry.bitmap) << ')';
    }
    if (!entry.remark.empty()) {
        out_ << "  [" << entry.remark << ']';
    }
    out_ << '\n';
}

}  // namespace preview
