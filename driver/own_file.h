#pragma once

#include <sys/types.h>

#include <cstdio>

/// Who may read a file that holds what was printed: its owner alone.
inline constexpr mode_t ownerOnly = 0600;
/// Who may read a file that says nothing about the print: everybody.
inline constexpr mode_t readableByAll = 0644;

/// Opens `path` for writing from its start, with these permissions (less the umask's), for names
/// that others can foresee in folders that others can write to. Null, with errno set, unless what
/// stands there now is a regular file of this user under this one name: a symbolic link is not
/// followed, another user's file is neither emptied nor written, and nothing is waited for.
/// Programs started from here do not inherit the file.
std::FILE* openOwnFile(const char* path, mode_t permissions);
