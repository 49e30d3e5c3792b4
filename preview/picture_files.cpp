#include "preview/picture_files.h"

#include "preview/label_words.h"
#include "preview/png_file.h"
#include "tspl/text.h"

namespace preview {

void PictureFiles::onLabel(const tspl::PrintedLabel& label) {
    const std::string name = prefix_ + "-" + std::to_string(label.number) + ".png";
    const std::string error = writePng(name, label.picture);
    written_ = error.empty() ? name : "";
    if (!error.empty()) {
        err_ << "tsplpreview: " << tspl::printable(name) << ": " << error << '\n';
        failed_ = true;
    } else if (out_ != nullptr) {
        *out_ << tspl::printable(name) << ": " << describe(label) << '\n';
    }
}

}  // namespace preview
