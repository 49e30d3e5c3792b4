#pragma once

#include <cstdint>

#include "intake/picture/placement_wish.h"

namespace intake::picture {

/// A picture as it is seen: behind the turn that its file asks for.
struct PictureSize {
    unsigned width = 1;    ///< samples
    unsigned height = 1;   ///<
    double ppiAcross = 0;  ///< samples per inch; 0 when the file does not say
    double ppiDown = 0;    ///<
};

/// The label to print on.
struct LabelDots {
    unsigned width = 1;   ///< dots
    unsigned height = 1;  ///<
    unsigned dpi = 203;   ///<

    /// Neither upright nor across, but for what the byte of eight dots takes of its width.
    bool isSquare() const;
};

/// One direction of a picture on the labels that it takes.
struct PlacedAxis {
    unsigned source = 1;  ///< samples that are used, from the first one
    unsigned scaled = 1;  ///< dots that they become, on all labels
    unsigned labels = 1;  ///< among which they are shared out evenly
    unsigned room = 1;    ///< dots of the label in this direction
    int side = 0;         ///< of the label to which the picture keeps: -1 first, 0 middle, 1 last
};

/// What of one direction is on one label.
struct AxisPart {
    unsigned first = 0;   ///< dot of the scaled picture
    unsigned count = 0;   ///< dots
    unsigned offset = 0;  ///< of the first one from the edge of the label
};

/// Where a picture comes to lie, seen as it is read.
struct Placement {
    PlacedAxis across;
    PlacedAxis down;
    Turn turn;  ///< from the way that the label is read to the way that it leaves the printer

    std::uint64_t labels() const { return std::uint64_t{across.labels} * down.labels; }
};

/// Places a picture. One of just the label's dots keeps them. Within a hundredth of the picture's
/// own dots, of a whole multiple of them or a whole part, up to eight, these are taken and the
/// edge cut or left white: modules of codes stay whole, and a label's width is cut to whole bytes
/// anyway.
Placement placePicture(const PictureSize& picture, const PlacementWish& wish,
                       const LabelDots& label);

/// What is on a label of those that the axis takes.
AxisPart partOn(const PlacedAxis& axis, unsigned label);

}  // namespace intake::picture
