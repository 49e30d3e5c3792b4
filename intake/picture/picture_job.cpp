#include "intake/picture/picture_job.h"

#include "intake/job_failure.h"
#include "intake/picture/label_drawing.h"
#include "intake/picture/label_selection.h"
#include "intake/picture/picture_file.h"

namespace intake::picture {
namespace {

// More is a resolution or a scale that was not meant.
constexpr unsigned sMostLabels = 100;

class PictureJob {
public:
    PictureJob(const CommandLine& line, LabelOutput& output)
        : wish_(placementWish(line.options)),
          label_(line.page.dots),
          selection_(line.options),
          file_(line.file),
          output_(output) {}

    /// One set of all labels.
    void print() {
        number_ = 0;
        for (std::size_t index = 0; index < file_.pictures().size(); ++index) {
            printPicture(index);
        }
        if (!file_.problem().empty()) {
            throw JobFailure("The picture has pages that cannot be read: " + file_.problem());
        }
        if (!hasPrinted_) {
            throw JobFailure("The document has no page to print");
        }
    }

private:
    void printPicture(std::size_t index) {
        const PictureOutline& outline = file_.pictures()[index];
        const Placement placement = placePicture(outline.seen(), wish_, label_);
        if (placement.labels() > sMostLabels) {
            throw JobFailure("The picture would take " + std::to_string(placement.labels()) +
                             " labels of this size: more than " + std::to_string(sMostLabels) +
                             " are taken for a mistake");
        }
        const unsigned before = number_;
        number_ += static_cast<unsigned>(placement.labels());
        if (isAnyWanted(before)) {
            printLabels(index, placement, before);
        }
    }

    bool isAnyWanted(unsigned before) const {
        for (unsigned label = before + 1; label <= number_; ++label) {
            if (selection_.has(label)) {
                return true;
            }
        }
        return false;
    }

    void printLabels(std::size_t index, const Placement& placement, unsigned before) {
        const PictureOutline& outline = file_.pictures()[index];
        const unsigned reduction = file_.canReduce() ? reductionFor(outline, placement) : 1;
        DecodedPicture picture = file_.decode(index, reduction);
        for (unsigned label = before; label < number_; ++label) {
            if (selection_.has(label + 1)) {
                output_.write(drawLabel(picture, outline, placement, label - before));
                hasPrinted_ = true;
            }
        }
    }

    PlacementWish wish_;
    LabelDots label_;
    LabelSelection selection_;
    PictureFile file_;
    LabelOutput& output_;
    unsigned number_ = 0;
    bool hasPrinted_ = false;
};

}  // namespace

void printPictures(const CommandLine& line, int descriptor) {
    const bool hasSets = !line.isPdf && line.page.copies > 1 && isCollated(line.options);
    OutputPage page = line.page;
    if (hasSets) {
        page.copies = 1;
    }
    const auto output = line.isPdf ? pdfOutput(descriptor, page) : rasterOutput(descriptor, page);
    PictureJob job(line, *output);
    for (unsigned set = 0; set < (hasSets ? line.page.copies : 1); ++set) {
        job.print();
    }
    output->finish();
}

}  // namespace intake::picture
