#include "preview/pdf_pages.h"

#include "tspl/text.h"

namespace preview {

void PdfPages::begin() {
    if (const std::string error = file_.open(); error.empty()) {
        writer_.emplace(file_.file());
    } else {
        fail(error);
    }
}

void PdfPages::onLabel(const tspl::PrintedLabel& label) {
    if (!writer_ && !broken_) {
        begin();
    }
    if (broken_) {
        return;
    }
    writer_->addPage(label.picture);
    if (!writer_->error().empty()) {
        fail(writer_->error());
    }
}

void PdfPages::complete(std::ostream* out) {
    if (broken_) {
        return;
    }
    if (!writer_) {
        fail("there is no label for it");
        return;
    }
    writer_->finish();
    const std::string error = writer_->error().empty() ? file_.complete() : writer_->error();
    if (!error.empty()) {
        fail(error);
    } else if (out != nullptr) {
        *out << tspl::printable(name_) << ": " << writer_->pages()
             << (writer_->pages() == 1 ? " page" : " pages") << '\n';
    }
}

// Told once: what follows would not be in the file either.
void PdfPages::fail(const std::string& why) {
    err_ << "tsplpreview: " << tspl::printable(name_) << ": " << why << '\n';
    broken_ = true;
    failed_ = true;
}

}  // namespace preview
