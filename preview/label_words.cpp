#include "preview/label_words.h"

#include <iomanip>
#include <sstream>

namespace preview {
namespace {

// Why the resolution is what it is, where nobody has said it.
const char* reasonOf(tspl::DpiSource source) {
    switch (source) {
        case tspl::DpiSource::Given:
            break;
        case tspl::DpiSource::Bitmaps:
            return " (by its bitmaps)";
        case tspl::DpiSource::LabelBefore:
            return " (as before)";
        case tspl::DpiSource::Usual:
            return " (assumed)";
    }
    return "";
}

}  // namespace

std::string describeSize(const tspl::PrintedLabel& label) {
    const tspl::LabelPicture& picture = label.picture;
    std::ostringstream text;
    text << picture.width() << " x " << picture.height() << " dots at " << picture.dpi() << " dpi"
         << reasonOf(label.dpiSource);
    return text.str();
}

std::string describe(const tspl::PrintedLabel& label) {
    constexpr double percent = 100;
    const tspl::LabelPicture& picture = label.picture;
    const double dots =
        static_cast<double>(picture.width()) * static_cast<double>(picture.height());
    std::ostringstream text;
    text << describeSize(label) << ", " << std::fixed << std::setprecision(1)
         << percent * static_cast<double>(picture.burntDots()) / dots << " % burnt";
    const std::int64_t printed = std::int64_t{label.sets} * label.copies;
    if (printed > 1) {
        text << ", printed " << printed << " times";
    }
    return text.str();
}

}  // namespace preview
