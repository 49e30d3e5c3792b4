#pragma once

#include <set>
#include <string>
#include <string_view>

namespace tspl {

/// The names of the files that a stream has stored in the printer. Large and small letters are the
/// same.
class StoredNames {
public:
    /// A printer has room for some hundred files; names past the thousandth are not kept.
    void add(std::string_view name);

    [[nodiscard]] bool contains(std::string_view name) const;

private:
    std::set<std::string> names_;
};

}  // namespace tspl
