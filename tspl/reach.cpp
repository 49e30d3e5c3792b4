#include "tspl/reach.h"

namespace tspl {

void Reach::note(const Command& command, const Area& dots) {
    if (dots.width <= 0 || dots.height <= 0) {
        return;
    }
    take(left_, command, -dots.x);
    take(above_, command, -dots.y);
    take(right_, command, dots.x + dots.width);
    take(below_, command, dots.y + dots.height);
}

void Reach::take(Farthest& farthest, const Command& command, std::int64_t dot) {
    if (dot > farthest.dot) {
        farthest = {command, command.name, dot};
    }
}

std::vector<Reach::Overhang> Reach::overhangs(std::int64_t width, std::int64_t height) const {
    std::vector<Overhang> found;
    if (left_.dot > 0) {
        found.push_back({left_.place, left_.name + " begins " + std::to_string(left_.dot) +
                                          " dots left of the label"});
    }
    if (above_.dot > 0) {
        found.push_back({above_.place, above_.name + " begins " + std::to_string(above_.dot) +
                                           " rows above the label"});
    }
    if (right_.dot > width) {
        found.push_back({right_.place, right_.name + " reaches to dot " +
                                           std::to_string(right_.dot) + ", the label is " +
                                           std::to_string(width) + " dots wide"});
    }
    if (below_.dot > height) {
        found.push_back({below_.place, below_.name + " reaches to row " +
                                           std::to_string(below_.dot) + ", the label is " +
                                           std::to_string(height) + " rows high"});
    }
    return found;
}

}  // namespace tspl
