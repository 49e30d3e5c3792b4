#include "intake/sheet/reading_order.h"

#include <algorithm>

namespace intake::sheet {
namespace {

bool isBeside(const DotRectangle& part, const DotRectangle& first) {
    const int shared = std::min(part.bottom, first.bottom) - std::max(part.top, first.top);
    return 2 * shared >= std::min(part.height(), first.height());
}

}  // namespace

void sortAsRead(std::vector<DotRectangle>& parts) {
    std::ranges::sort(parts, {}, &DotRectangle::top);
    for (auto row = parts.begin(); row != parts.end();) {
        const DotRectangle first = *row;
        const auto next = std::stable_partition(
            row, parts.end(), [&](const DotRectangle& part) { return isBeside(part, first); });
        std::ranges::sort(row, next, {}, &DotRectangle::left);
        row = next;
    }
}

}  // namespace intake::sheet
