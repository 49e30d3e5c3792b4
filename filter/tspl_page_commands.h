#pragma once

// The TSPL commands that only the command files themselves send.

/// DIRECTION: 1 for an origin that contains "Rotation180". Mirroring is done on the image, so
/// the flag has no effect.
void setDirection(const char* origin, int mirror);
/// PRINT: number of label sets and of copies of each.
void setPrint(int sets, int copies);
/// BITMAP up to its data, which follows at once: position in dots, width in bytes, height in
/// dots and mode.
void setBitmapCmdHead(int x, int y, int widthBytes, int height, int mode);
