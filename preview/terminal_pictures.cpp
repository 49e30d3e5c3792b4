#include "preview/terminal_pictures.h"

#include "preview/label_words.h"

namespace preview {

void TerminalPictures::onLabel(const tspl::PrintedLabel& label) {
    out_ << source_ << "label " << label.number << ": " << describe(label) << '\n'
         << terminalPicture(label.picture, terminalSize(descriptor_));
}

}  // namespace preview
