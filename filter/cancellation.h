#pragma once

/// Takes SIGTERM for the wish to end the job early. From now on the first one is noted, and
/// `input`, the descriptor that the raster is read from, is at its end: whoever waits for it or
/// reads it next is told so. The second one ends the process at once.
void heedCancellation(int input);

/// Whether the job is to end.
bool isCancelled();
