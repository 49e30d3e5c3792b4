#include "intake/sheet/sheet_document.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <utility>

#include "intake/job_failure.h"
#include "intake/message_text.h"
#include "intake/sheet/label_page.h"

namespace intake::sheet {
namespace {

struct Page {
    QPDFObjectHandle object;
    unsigned number;
};

[[noreturn]] void failToRead(const QPDFExc& problem) {
    if (problem.getErrorCode() == qpdf_e_password) {
        throw JobFailure("The document needs a password");
    }
    throw JobFailure("The document is damaged: " + printable(problem.getMessageDetail()));
}

void open(QPDF& pdf, const std::string& path) {
    pdf.setSuppressWarnings(true);
    pdf.processFile(path.c_str());
    // What is written is not encrypted, and says nothing of this any more.
    if (!pdf.allowPrintLowRes()) {
        throw JobFailure("The document does not allow printing");
    }
}

std::vector<Page> wantedPages(QPDF& pdf, const SheetDocument::IsWanted& isWanted) {
    // What a page has of those above it in the tree of pages, it is to keep without them.
    pdf.pushInheritedAttributesToPage();
    std::vector<Page> pages;
    unsigned number = 0;
    for (const QPDFObjectHandle& page : pdf.getAllPages()) {
        if (isWanted(++number)) {
            pages.push_back({page, number});
        }
    }
    return pages;
}

// A tree of one level, made at once: page by page this takes the square of the time.
void setPages(QPDF& pdf, const std::vector<QPDFObjectHandle>& pages) {
    QPDFObjectHandle root = pdf.getRoot().getKey("/Pages");
    for (QPDFObjectHandle page : pages) {
        page.replaceKey("/Parent", root);
    }
    root.replaceKey("/Kids", QPDFObjectHandle::newArray(pages));
    root.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(pages.size())));
    pdf.updateAllPagesCache();
}

// A page that is cut has no place for them.
void flattenAnnotations(QPDF& pdf) {
    QPDFAcroFormDocumentHelper(pdf).generateAppearancesIfNeeded();
    QPDFPageDocumentHelper(pdf).flattenAnnotations(an_print, an_invisible | an_hidden);
}

}  // namespace

struct SheetDocument::Pages {
    QPDF pdf;
    std::vector<Page> pages;
    // In the place of each page.
    std::vector<std::vector<QPDFObjectHandle>> written;

    void read(const std::string& path, const IsWanted& isWanted) {
        open(pdf, path);
        pages = wantedPages(pdf, isWanted);
        for (const Page& page : pages) {
            written.push_back({page.object});
        }
        arrange();
        flattenAnnotations(pdf);
    }

    void arrange() {
        std::vector<QPDFObjectHandle> all;
        for (const auto& some : written) {
            all.insert(all.end(), some.begin(), some.end());
        }
        setPages(pdf, all);
    }
};

SheetDocument::SheetDocument(const std::string& path, const IsWanted& isWanted)
    : pages_(std::make_unique<Pages>()) {
    try {
        pages_->read(path, isWanted);
    } catch (const QPDFExc& problem) {
        failToRead(problem);
    }
    if (pages_->pages.empty()) {
        throw JobFailure("The document has no page to print");
    }
}

SheetDocument::~SheetDocument() = default;

int SheetDocument::size() const {
    return static_cast<int>(pages_->pages.size());
}

unsigned SheetDocument::numberOf(int page) const {
    return pages_->pages.at(static_cast<std::size_t>(page)).number;
}

double SheetDocument::unitOf(int page) const {
    QPDFObjectHandle object = pages_->pages.at(static_cast<std::size_t>(page)).object;
    QPDFObjectHandle unit = object.getKey("/UserUnit");
    return unit.isNumber() && unit.getNumericValue() > 0 ? unit.getNumericValue() : 1;
}

void SheetDocument::replace(int page, const std::vector<LabelCut>& labels,
                            const LabelSides& sides) {
    const auto index = static_cast<std::size_t>(page);
    const QPDFObjectHandle form =
        formOfPage(pages_->pdf, pages_->pages.at(index).object, labels.front().page);
    std::vector<QPDFObjectHandle>& written = pages_->written.at(index);
    written.clear();
    for (const LabelCut& label : labels) {
        written.push_back(makeLabelPage(pages_->pdf, form, label, sides));
    }
}

void SheetDocument::write(std::FILE* stream) {
    pages_->arrange();
    QPDFWriter writer(pages_->pdf, "the document", stream, false);
    writer.setPreserveEncryption(false);
    writer.setStreamDataMode(qpdf_s_preserve);
    writer.write();
    // QPDF may have flushed the last of it itself, and does not look whether that went well.
    if (std::fflush(stream) != 0 || std::ferror(stream) != 0) {
        failWithReason("Unable to write the labels");
    }
}

}  // namespace intake::sheet
