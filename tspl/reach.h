#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tspl/command.h"
#include "tspl/dot_canvas.h"

namespace tspl {

/// How far commands draw in each direction, so that the one that draws beyond the label can be
/// named: where its edges lie is known when it is printed.
class Reach {
public:
    /// Takes notice of the dots that a command burns; of none when the area has no extent.
    void note(const Command& command, const Area& dots);

    /// What is wrong with a command, in words.
    struct Overhang {
        Place place;
        std::string text;
    };
    /// The commands that reach farthest over the edges of a label of this size, one an edge.
    [[nodiscard]] std::vector<Overhang> overhangs(std::int64_t width, std::int64_t height) const;

private:
    struct Farthest {
        Place place;
        std::string name;
        std::int64_t dot = 0;
    };
    static void take(Farthest& farthest, const Command& command, std::int64_t dot);

    Farthest left_;   ///< dots left of the label
    Farthest above_;  ///< rows above it
    Farthest right_;  ///< where the dots end
    Farthest below_;
};

}  // namespace tspl
