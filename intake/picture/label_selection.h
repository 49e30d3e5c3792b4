#pragma once

#include <utility>
#include <vector>

#include "intake/option_list.h"

namespace intake::picture {

/// Which labels of a job are printed: those of page-ranges ("1-3,5,8-"; counted from 1) that
/// page-set (odd, even) does not leave out. Ranges that mean nothing are as good as none.
class LabelSelection {
public:
    explicit LabelSelection(const OptionList& options);
    bool has(unsigned label) const;

private:
    std::vector<std::pair<unsigned, unsigned>> ranges_;
    bool hasOdd_ = true;
    bool hasEven_ = true;
};

/// Whether copies of several labels are printed one set after another (Collate, or any
/// multiple-document-handling but that of uncollated copies).
bool isCollated(const OptionList& options);

}  // namespace intake::picture
