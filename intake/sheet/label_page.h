#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include "intake/sheet/sheet_document.h"

namespace intake::sheet {

/// What a page draws as an object that other pages can draw, of all that the page shows.
QPDFObjectHandle formOfPage(QPDFObjectHandle page, const PageView& view);

/// A page of just the cut, turned, that draws the form of the page there and clips it.
QPDFObjectHandle makeLabelPage(QPDF& pdf, const QPDFObjectHandle& form, const LabelCut& label);

}  // namespace intake::sheet
