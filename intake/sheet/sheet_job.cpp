#include "intake/sheet/sheet_job.h"

#include <optional>

#include "intake/job_failure.h"
#include "intake/picture/label_selection.h"
#include "intake/sheet/label_finder.h"
#include "intake/sheet/label_fit.h"
#include "intake/sheet/processor_bound.h"
#include "intake/sheet/scratch_file.h"
#include "intake/sheet/seen_document.h"
#include "intake/sheet/sheet_document.h"
#include "intake/sheet/sheet_report.h"
#include "intake/sheet/upright.h"

namespace intake::sheet {
namespace {

class SheetJob {
public:
    SheetJob(const CommandLine& line, const SheetDocument::IsWanted& isWanted)
        : label_(line.label), document_(line.file, isWanted) {}

    void cut() {
        document_.write(scratch_.stream());
        seen_.emplace(scratch_.map());
        for (int page = 0; page < document_.size(); ++page) {
            boundNextStep();
            cutPage(page);
        }
    }

    void write(std::FILE* output) {
        document_.write(output);
        for (const std::string& line : report_.lines()) {
            logLine("INFO", line);
        }
    }

private:
    void cutPage(int page) {
        PageView view = seen_->view(page);
        view.unit = document_.unitOf(page);
        const Rectangle whole = seenPage(view);
        if (isLabelPage({whole.width(), whole.height()}, label_)) {
            return report_.addLabelPage();
        }
        const auto labels = labelsOf(page, view);
        if (labels.empty()) {
            return report_.addUnfound(document_.numberOf(page));
        }
        document_.replace(page, labels);
        report_.addLabels(labels.size());
    }

    std::vector<LabelCut> labelsOf(int page, const PageView& view) const {
        const auto bitmap = seen_->draw(page, view.unit);
        if (!bitmap) {
            return {};
        }
        std::vector<LabelCut> labels;
        for (const Rectangle& place : findLabels(bitmap->dots(), label_)) {
            labels.push_back({view, place, 0});
        }
        turnUpright(page, labels);
        return labels;
    }

    void turnUpright(int page, std::vector<LabelCut>& labels) const {
        if (labels.empty()) {
            return;
        }
        const std::vector<Word> words = seen_->words(page, labels.front().page.unit);
        for (LabelCut& label : labels) {
            label.quarters = quartersToUpright(label.place, words, label_);
        }
    }

    sizes::PointSize label_;
    SheetDocument document_;
    ScratchFile scratch_;
    std::optional<SeenDocument> seen_;
    SheetReport report_;
};

}  // namespace

void cutLabels(const CommandLine& line, std::FILE* output) {
    boundNextStep();
    const picture::LabelSelection selection(line.options);
    SheetJob job(line, [&](unsigned page) { return selection.has(page); });
    job.cut();
    job.write(output);
}

}  // namespace intake::sheet
