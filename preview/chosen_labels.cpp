#include "preview/chosen_labels.h"

namespace preview {

// Labels that are lost have numbers, too.
bool ChosenLabels::chooseNext() {
    ++labels_;
    const bool isChosen = !range_ || range_->contains(labels_);
    chosen_ += isChosen ? 1U : 0U;
    return isChosen;
}

void ChosenLabels::onLabel(const tspl::PrintedLabel& label) {
    if (chooseNext()) {
        next_.onLabel(label);
    }
}

void ChosenLabels::onLostLabel() {
    if (chooseNext()) {
        next_.onLostLabel();
    }
}

}  // namespace preview
