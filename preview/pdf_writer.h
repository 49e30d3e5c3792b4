#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tspl/label_picture.h"

namespace preview {

/// Writes a PDF file (ISO 32000-1) with a label on each page, row by row: what it keeps is a row
/// and, of each page, where its four objects lie.
///
/// A label is a mask of 1 bit per dot, through which black is painted, without smoothing, on a page
/// of its true size.
class PdfWriter {
public:
    /// Begins the file. `file` must outlive the writer.
    explicit PdfWriter(std::FILE* file);

    void addPage(const tspl::LabelPicture& picture);
    /// Writes the end of the file; it has at least one page.
    void finish();

    /// Why writing failed; empty as long as it did not. Nothing is written after a failure.
    [[nodiscard]] const std::string& error() const { return error_; }
    [[nodiscard]] std::uint64_t pages() const { return pages_; }

private:
    void put(std::string_view text);
    void beginObject(std::uint64_t number);
    void putObject(std::uint64_t number, const std::string& body);
    std::uint64_t putMask(const tspl::LabelPicture& picture);
    void putPageList();
    void putPlaces();

    std::FILE* file_;
    std::uint64_t written_ = 0;
    std::uint64_t pages_ = 0;
    // Of each object, by its number.
    std::vector<std::uint64_t> places_;
    std::string error_;
};

}  // namespace preview
