#pragma once

#include <string>
#include <vector>

namespace intake::sheet {

/// What was found on the pages of a document, in few lines however many pages there are.
class SheetReport {
public:
    void addLabels(std::size_t count) {
        labels_ += count;
        ++sheets_;
    }
    void addLabelPage() { ++labelPages_; }
    void addUnfound(unsigned page) { unfound_.push_back(page); }

    /// The lines for people.
    std::vector<std::string> lines() const;

private:
    std::size_t labels_ = 0;
    std::size_t sheets_ = 0;
    std::size_t labelPages_ = 0;
    std::vector<unsigned> unfound_;
};

}  // namespace intake::sheet
