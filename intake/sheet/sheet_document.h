#pragma once

#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "intake/sheet/label_matrix.h"

namespace intake::sheet {

/// A label that is to be cut out of a page.
struct LabelCut {
    PageView page;
    Rectangle place;   ///< on the page as it is seen, in points
    int quarters = 0;  ///< how far to turn it clockwise
};

/// A PDF file whose pages are replaced by parts of them. What is drawn stays what it is: text,
/// lines and pictures.
class SheetDocument {
public:
    using IsWanted = std::function<bool(unsigned page)>;

    /// Reads a file, mending what can be mended, and keeps those of its pages that are wanted,
    /// counted from 1. Forms and remarks that are printed become part of their pages. Throws
    /// JobFailure.
    SheetDocument(const std::string& path, const IsWanted& isWanted);
    ~SheetDocument();
    SheetDocument(const SheetDocument&) = delete;
    SheetDocument& operator=(const SheetDocument&) = delete;

    /// How many pages there are, and the number in the file of one of them.
    int size() const;
    unsigned numberOf(int page) const;
    /// How many points the unit of a page has.
    double unitOf(int page) const;

    /// Puts labels in the place of a page, one page for each. Pages keep their numbers.
    void replace(int page, const std::vector<LabelCut>& labels, const LabelSides& sides);

    /// Writes the file. Throws JobFailure when that fails.
    void write(std::FILE* stream);

private:
    struct Pages;
    std::unique_ptr<Pages> pages_;
};

}  // namespace intake::sheet
