#pragma once

#include <optional>

#include "intake/option_list.h"
#include "intake/picture/turn.h"

namespace intake::picture {

/// How large a picture is to be on its label.
enum class Sizing {
    Fit,      ///< as large as the label takes it whole
    Fill,     ///< as small as covers the label; the rest is cut off
    Cropped,  ///< as large as it is; what goes beyond the label is cut off
    Auto,     ///< filling the label if it is larger, else as large as it is
    AutoFit,  ///< fitted to the label if it is larger, else as large as it is
    Share,    ///< a share of what fits, on several labels if need be
    Natural,  ///< as large as it is, on several labels if need be
};

/// What a job says of the place of its pictures.
struct PlacementWish {
    Sizing sizing = Sizing::Fit;
    double percent = 100;      ///< of what fits (Share) or of the picture's own size (Natural)
    double ppiAcross = 0;      ///< the picture's samples per inch; 0: what its file says
    double ppiDown = 0;        ///<
    bool isFaithful = false;   ///< Auto and AutoFit take it for larger than the label
    int across = 0;            ///< on the label: -1 left, 0 in the middle, 1 right
    int down = 0;              ///< -1 at the top, 0 in the middle, 1 at the bottom
    bool isMirrored = false;   ///< the label, left and right
    std::optional<Turn> turn;  ///< from the way it is read to the label; none: as it fits best
};

/// Reads them by the names that CUPS's own filters know: print-scaling, or in its place scaling,
/// fit-to-page, fitplot, ppi, natural-scaling, fill and crop-to-fit; position, mirror,
/// orientation-requested, landscape and ipp-attribute-fidelity. Values that mean nothing are as
/// good as none.
PlacementWish placementWish(const OptionList& options);

}  // namespace intake::picture
