#pragma once

#include <memory>
#include <span>
#include <vector>

#include "intake/sheet/ink_map.h"
#include "intake/sheet/label_matrix.h"
#include "intake/sheet/upright.h"

namespace intake::sheet {

/// A bitmap of a page.
class PageBitmap {
public:
    virtual ~PageBitmap() = default;
    virtual GreyPage dots() const = 0;
};

/// The pages of a PDF file as they are seen: drawn, and as text.
class SeenDocument {
public:
    /// The bytes must stay. Throws JobFailure when they cannot be read.
    explicit SeenDocument(std::span<const char> file);
    ~SeenDocument();
    SeenDocument(const SeenDocument&) = delete;
    SeenDocument& operator=(const SeenDocument&) = delete;

    /// How many pages there are.
    int size() const;
    /// What shows of a page and how it is turned. Its unit is not known here.
    PageView view(int page) const;
    /// Draws a page in the resolution that parts are found in, or less when it is very large.
    /// `unit` is the points of the page's unit. Nothing when the page cannot be drawn.
    std::unique_ptr<PageBitmap> draw(int page, double unit) const;
    /// The words of a page, in points.
    std::vector<Word> words(int page, double unit) const;

private:
    struct Pages;
    std::unique_ptr<Pages> pages_;
};

}  // namespace intake::sheet
