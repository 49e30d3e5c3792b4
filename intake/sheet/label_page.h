#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include "intake/sheet/sheet_document.h"

namespace intake::sheet {

/// What a page draws as an object that other pages can draw, of all that the page shows. Content in
/// one piece is taken over as it is stored: a converter may make something of it even when it is
/// damaged.
QPDFObjectHandle formOfPage(QPDF& pdf, QPDFObjectHandle& page, const PageView& view);

/// A page for a label that draws the form of a page so that the cut, turned, is in the middle, at
/// its own size if the label takes it, and clips what is around the cut.
QPDFObjectHandle makeLabelPage(QPDF& pdf, const QPDFObjectHandle& form, const LabelCut& label,
                               const LabelSides& sides);

}  // namespace intake::sheet
