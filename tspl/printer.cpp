#include "tspl/printer.h"

#include <utility>

namespace tspl {

Area Printer::placed(const Area& area) const {
    return {reference.x + area.x, reference.y + area.y, area.width, area.height};
}

void Printer::complain(const Place& place, std::string text) {
    sink_.onFinding({Finding::Kind::Complaint, place.offset, std::move(text), place.line});
}

void Printer::remark(const Place& place, std::string text) {
    sink_.onFinding({Finding::Kind::Remark, place.offset, std::move(text), place.line});
}

void Printer::remarkUndrawn(const Place& place, std::string text) {
    label.noteUndrawn();
    remark(place, std::move(text));
}

void Printer::remarkOnce(const Place& place, const std::string& text) {
    if (remarked_.insert(text).second) {
        remark(place, text);
    }
}

}  // namespace tspl
