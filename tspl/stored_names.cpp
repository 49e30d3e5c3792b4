#include "tspl/stored_names.h"

#include "tspl/text.h"

namespace tspl {
namespace {

constexpr std::size_t mostNames = 1000;
constexpr std::size_t longestName = 256;

}  // namespace

void StoredNames::add(std::string_view name) {
    if (names_.size() < mostNames && name.size() <= longestName) {
        names_.insert(upperCase(name));
    }
}

bool StoredNames::contains(std::string_view name) const {
    return names_.contains(upperCase(name));
}

}  // namespace tspl
