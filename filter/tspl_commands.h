#pragma once

#include "filter/settings.h"

// TSPL commands, written through `sPrinter`. Choice names are recognised by the texts they
// contain, tested in a fixed order; a value that nothing recognises leaves its command out.

/// SIZE: label size in mm.
void setSize(float width, float height);
/// GAP or BLINE: distance between labels or black mark height, and its offset, in mm.
void setGap(float height, float offset, const char* paperType);
/// REFERENCE: the origin stays at the corner.
void setReference();
/// DIRECTION: 1 for an origin that contains "Rotation180". Mirroring is done on the image, so
/// the flag has no effect.
void setDirection(const char* origin, int mirror);
/// SPEED in inches per second as the choice says, DENSITY 0 to 30.
void setSpeedAndDensity(const char* speed, int density);
/// SET RIBBON, off for direct thermal printing.
void setRibbon(const char* mediaMethod);
/// OFFSET: extra feed after a label in mm.
void setOffset(float offset);
/// SET TEAR, SET PEEL and SET CUTTER.
void setPostAction(const char* postAction);
/// CLS: clears the image buffer.
void setCls();
/// BITMAP up to its data, which follows at once: position in dots, width in bytes, height in
/// dots and mode.
void setBitmapCmdHead(int x, int y, int widthBytes, int height, int mode);
/// PRINT: number of label sets and of copies of each.
void setPrint(int sets, int copies);
/// Ends a page by hand: a line end and PRINT of one copy. `TsplPrinter` ends its pages itself.
void endPage(Settings settings);
/// The whole set-up block that precedes a page.
void jobSetup(const Settings* settings);
