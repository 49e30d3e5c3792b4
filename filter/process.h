#pragma once

/// Readies the process for whatever its starter, its files and its memory do to it: files that it
/// opens never come to stand for a closed standard stream, writing where nobody reads or beyond a
/// limit of size is an error and not the end of the process, and where memory runs out it says so
/// in one line, sends what is complete and ends with status 1. Freed memory is kept for the next
/// page. Standard error goes out line by
/// line, standard output in pieces of 64 KiB or where it is flushed. To be called before either is
/// used.
void prepareProcess();
