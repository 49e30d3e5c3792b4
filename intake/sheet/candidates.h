#pragma once

#include <vector>

#include "intake/sheet/dot_rectangle.h"
#include "intake/sheet/label_fit.h"

namespace intake::sheet {

/// A part of a page that is a label by its shape and size.
struct Candidate {
    enum class Kind { Block, OpenFrame, Frame };

    DotRectangle extent;
    LabelFit fit;
    Kind kind = Kind::Block;

    bool isFrame() const { return kind != Kind::Block; }
};

/// Chooses among parts that lie over each other or within each other. A part that holds two or
/// more parts of the label's own size is the sheet that they are on. A frame that has a side in
/// common with a larger one around it is a field of that one. Else a frame goes before a block, and
/// one whose lines meet at its corners before others, but for one that fills more than three
/// quarters of the page (`pageArea`, in dots), which is the page's border; then a part of the
/// label's own size, then what the label takes without scaling, then the larger frame, and the
/// block whose shape is nearer to the label's.
std::vector<Candidate> chooseAmong(std::vector<Candidate> candidates, std::int64_t pageArea);

}  // namespace intake::sheet
