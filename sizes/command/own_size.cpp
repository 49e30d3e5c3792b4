#include "sizes/command/own_size.h"

#include <algorithm>

#include "sizes/command/failure.h"
#include "sizes/printer_model.h"
#include "sizes/size_spelling.h"

namespace sizes {
namespace {

NominalSize labelOf(const std::string& name) {
    const auto label = parsePlainSize(name);
    if (!label) {
        throw Failure("not a size: '" + name + "'");
    }
    if (isTooWide(*label, widestReach)) {
        throw Failure("no printer takes this width: " + name);
    }
    if (isTooHigh(*label, widestReach)) {
        throw Failure("no printer takes this height: " + name);
    }
    return *label;
}

OwnSize ownSize(const std::string& name, int dpi) {
    const NominalSize label = labelOf(name);
    const auto page = exactPage(label, dpi);
    if (!page) {
        throw Failure("too small: " + name);
    }
    return {label, page->dots};
}

bool isAmong(const std::vector<OwnSize>& sizes, const NominalSize& label) {
    return std::any_of(sizes.begin(), sizes.end(), [&label](const OwnSize& size) {
        return sizeName(size.label) == sizeName(label);
    });
}

}  // namespace

std::vector<OwnSize> ownSizes(const std::vector<std::string>& names, int dpi) {
    std::vector<OwnSize> sizes;
    for (const std::string& name : names) {
        const OwnSize size = ownSize(name, dpi);
        if (!isAmong(sizes, size.label)) {
            sizes.push_back(size);
        }
    }
    return sizes;
}

}  // namespace sizes
