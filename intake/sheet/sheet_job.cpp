#include "intake/sheet/sheet_job.h"

#include <optional>
#include <utility>
#include <vector>

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
        : sides_(line.sides), document_(line.file, isWanted) {}

    void cut() {
        document_.write(scratch_.stream());
        seen_.emplace(scratch_.map());
        for (int page = 0; page < document_.size(); ++page) {
            boundNextStep();
            cutPage(page);
        }
        if (whole_.size() < static_cast<std::size_t>(document_.size())) {
            for (const auto& [page, view] : whole_) {
                fitPage(page, view);
            }
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
        if (isLabelPage({whole.width(), whole.height()}, sides_.label)) {
            whole_.emplace_back(page, view);
            return report_.addLabelPage();
        }
        const auto labels = labelsOf(page, view);
        if (labels.empty()) {
            whole_.emplace_back(page, view);
            return report_.addUnfound(document_.numberOf(page));
        }
        document_.replace(page, labels, sides_);
        report_.addLabels(labels.size());
    }

    void fitPage(int page, const PageView& view) {
        const Rectangle whole = seenPage(view);
        if (whole.width() > 0 && whole.height() > 0) {
            const int quarters = quartersToUpright(whole, {}, sides_.label);
            document_.replace(page, {{view, whole, quarters}}, sides_);
        }
    }

    std::vector<LabelCut> labelsOf(int page, const PageView& view) const {
        const auto bitmap = seen_->draw(page, view.unit);
        if (!bitmap) {
            return {};
        }
        std::vector<LabelCut> labels;
        for (const Rectangle& place : findLabels(bitmap->dots(), sides_.label)) {
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
            label.quarters = quartersToUpright(label.place, words, sides_.label);
        }
    }

    LabelSides sides_;
    SheetDocument document_;
    ScratchFile scratch_;
    std::optional<SeenDocument> seen_;
    // Pages without a label to cut out.
    std::vector<std::pair<int, PageView>> whole_;
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
