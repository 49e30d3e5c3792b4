#pragma once

#include "intake/sheet/rectangle.h"
#include "sizes/nominal_size.h"

namespace intake::sheet {

/// Takes x, y to a x + c y + e, b x + d y + f, as matrices of PDF files do.
struct Matrix {
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;
    double e = 0;
    double f = 0;
};

/// First one, then the other.
Matrix operator*(const Matrix& first, const Matrix& then);

/// How a page of a document is seen: all of it that shows (in the document's units, upwards), how
/// many quarters it is turned clockwise, and how many points its unit has.
struct PageView {
    double left = 0;
    double bottom = 0;
    double right = 0;
    double top = 0;
    int quarters = 0;
    double unit = 1;
};

/// The width and height of a page as it is seen, in points, from its upper left corner.
Rectangle seenPage(const PageView& page);

/// Takes what a page's content draws to where it is seen, in points right and down from the upper
/// left corner.
Matrix toSeen(const PageView& page);

/// The label, and the page that it is printed on: its dots are whole, so that it may be a little
/// smaller or larger.
struct LabelSides {
    sizes::PointSize label;
    sizes::PointSize page;
};

/// How much smaller a part of a page has to become: 1 for what is not larger than the label.
double scaleFor(const sizes::PointSize& part, const LabelSides& sides);

/// Takes points of the page as it is seen to those of a page that shows just the cut, turned
/// clockwise by so many quarters, in points right and up from its lower left corner.
Matrix toLabel(const Rectangle& cut, int quarters);

}  // namespace intake::sheet
