#include "preview/label_words.h"

#include <iomanip>
#include <sstream>

namespace preview {

std::string describe(const tspl::PrintedLabel& label) {
    constexpr double percent = 100;
    const tspl::LabelPicture& picture = label.picture;
    const double dots =
        static_cast<double>(picture.width()) * static_cast<double>(picture.height());
    std::ostringstream text;
    text << picture.width() << " x " << picture.height() << " dots at " << picture.dpi() << " dpi, "
         << std::fixed << std::setprecision(1)
         << percent * static_cast<double>(picture.burntDots()) / dots << " % burnt";
    const std::int64_t printed = std::int64_t{label.sets} * label.copies;
    if (printed > 1) {
        text << ", printed " << printed << " times";
    }
    return text.str();
}

}  // namespace preview
