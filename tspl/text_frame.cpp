#include "tspl/text_frame.h"

namespace tspl {

Area TextFrame::onLabel(const Area& area) const {
    constexpr int quarter = 90;
    switch (rotation / quarter) {
        case 1:
            return {x - area.y - area.height, y + area.x, area.height, area.width};
        case 2:
            return {x - area.x - area.width, y - area.y - area.height, area.width, area.height};
        case 3:
            return {x + area.y, y - area.x - area.width, area.height, area.width};
        default:
            return {x + area.x, y + area.y, area.width, area.height};
    }
}

}  // namespace tspl
