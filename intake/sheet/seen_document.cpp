#include "intake/sheet/seen_document.h"

#include <poppler-document.h>
#include <poppler-page-renderer.h>
#include <poppler-page.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "intake/job_failure.h"

namespace intake::sheet {
namespace {

constexpr double sPointsPerInch = 72;
constexpr double sDotsPerPoint = 1;
// A sheet of A1. Of larger ones the dots are larger.
constexpr double sMostDots = 4e6;

void keepQuiet(const std::string& /*text*/, void* /*closure*/) {}

class Bitmap : public PageBitmap {
public:
    Bitmap(const poppler::image& image, double dotsPerPoint)
        : image_(image), dotsPerPoint_(dotsPerPoint) {}

    GreyPage dots() const override {
        return {reinterpret_cast<const unsigned char*>(image_.const_data()), image_.width(),
                image_.height(), image_.bytes_per_row(), dotsPerPoint_};
    }

private:
    poppler::image image_;
    double dotsPerPoint_;
};

poppler::image drawGrey(const poppler::page& page, double dpi) {
    poppler::page_renderer renderer;
    renderer.set_image_format(poppler::image::format_gray8);
    renderer.set_render_hint(poppler::page_renderer::antialiasing);
    renderer.set_render_hint(poppler::page_renderer::text_antialiasing);
    return renderer.render_page(&page, dpi, dpi);
}

int quartersOf(const poppler::page& page) {
    switch (page.orientation()) {
        case poppler::page::landscape:
            return 1;
        case poppler::page::upside_down:
            return 2;
        case poppler::page::seascape:
            return 3;
        default:
            return 0;
    }
}

}  // namespace

struct SeenDocument::Pages {
    std::unique_ptr<poppler::document> document;

    std::unique_ptr<poppler::page> page(int index) const {
        return std::unique_ptr<poppler::page>(document->create_page(index));
    }
};

SeenDocument::SeenDocument(std::span<const char> file) : pages_(std::make_unique<Pages>()) {
    poppler::set_debug_error_function(keepQuiet, nullptr);
    if (file.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        throw JobFailure("The document is too large to look for labels in it");
    }
    pages_->document.reset(
        poppler::document::load_from_raw_data(file.data(), static_cast<int>(file.size())));
    if (!pages_->document || pages_->document->is_locked()) {
        throw JobFailure("The document is damaged: it cannot be drawn");
    }
}

SeenDocument::~SeenDocument() = default;

int SeenDocument::size() const {
    return pages_->document->pages();
}

PageView SeenDocument::view(int page) const {
    const auto seen = pages_->page(page);
    if (!seen) {
        return {};
    }
    const poppler::rectf box = seen->page_rect(poppler::crop_box);
    return {box.x(), box.y(), box.x() + box.width(), box.y() + box.height(), quartersOf(*seen), 1};
}

std::unique_ptr<PageBitmap> SeenDocument::draw(int page, double unit) const {
    const auto seen = pages_->page(page);
    if (!seen) {
        return nullptr;
    }
    const poppler::rectf box = seen->page_rect(poppler::crop_box);
    const double area = box.width() * box.height();
    const double dotsPerUnit = std::min(sDotsPerPoint * unit, std::sqrt(sMostDots / area));
    poppler::image image = drawGrey(*seen, sPointsPerInch * dotsPerUnit);
    if (!image.is_valid() || image.width() <= 0 || image.height() <= 0) {
        return nullptr;
    }
    return std::make_unique<Bitmap>(image, dotsPerUnit / unit);
}

std::vector<Word> SeenDocument::words(int page, double unit) const {
    std::vector<Word> words;
    if (const auto seen = pages_->page(page)) {
        for (const poppler::text_box& box : seen->text_list()) {
            const poppler::rectf place = box.bbox();
            words.push_back({{place.left() * unit, place.top() * unit, place.right() * unit,
                              place.bottom() * unit},
                             box.rotation()});
        }
    }
    return words;
}

}  // namespace intake::sheet
