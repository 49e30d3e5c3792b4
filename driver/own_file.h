#pragma once

#include <sys/types.h>

#include <cstdio>
#include <memory>

// Files under names that others can foresee, in folders that others can write to. Programs started
// from here inherit none of them.

/// Closes a file exactly once.
struct CFileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using OwnedFile = std::unique_ptr<std::FILE, CFileCloser>;

/// Who may read a file that holds what was printed: its owner alone.
inline constexpr mode_t ownerOnly = 0600;
/// Who may read a file that says nothing about the print: everybody.
inline constexpr mode_t readableByAll = 0644;
/// How many names are tried for a file, where the first ones are taken.
inline constexpr int mostNames = 1000;

/// Opens a new file for writing, with these permissions (less the umask's). Null, with errno
/// EEXIST, when anything bears that name: nothing is emptied, no link followed, nothing waited for.
OwnedFile openNewFile(const char* path, mode_t permissions);

/// The same in the place of a file of this user; what is anything else stays.
OwnedFile replaceOwnFile(const char* path, mode_t permissions);
