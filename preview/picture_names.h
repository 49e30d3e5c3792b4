#pragma once

#include <optional>
#include <string>
#include <vector>

namespace preview {

/// What the names of the pictures of each input begin with; no two are the same. An input is a
/// file's name, or "-" for standard input.
///
/// Without a prefix it is the file's name without folders and ending ("label" for standard input),
/// and so it is behind a prefix that ends in a slash. Another prefix stands for a single input, and
/// before the name and a hyphen for several. A name that an input before has got is followed by _2,
/// _3 and so on.
std::vector<std::string> pictureNames(const std::vector<std::string>& inputs,
                                      const std::optional<std::string>& prefix);

/// Whether a file has the name of a picture whose name begins with `prefix`: PREFIX-1.png and so
/// on.
bool isPictureName(const std::string& prefix, const std::string& file);

}  // namespace preview
