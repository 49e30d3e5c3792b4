#include "preview/picture_files.h"

#include <iomanip>
#include <sstream>

#include "preview/png_file.h"
#include "tspl/text.h"

namespace preview {
namespace {

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

}  // namespace

void PictureFiles::onLabel(const tspl::PrintedLabel& label) {
    const std::string name = prefix_ + "-" + std::to_string(label.number) + ".png";
    const std::string error = writePng(name, label.picture);
    if (!error.empty()) {
        err_ << "tsplpreview: " << tspl::printable(name) << ": " << error << '\n';
        failed_ = true;
    } else if (out_ != nullptr) {
        *out_ << tspl::printable(name) << ": " << describe(label) << '\n';
    }
}

}  // namespace preview
