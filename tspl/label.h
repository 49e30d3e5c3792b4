#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tspl/command.h"
#include "tspl/dot_canvas.h"
#include "tspl/label_size.h"

namespace tspl {

/// How the resolution of a label is known.
enum class DpiSource {
    Given,        ///< it is the printer's
    Bitmaps,      ///< the label's bitmaps fill the width of SIZE
    LabelBefore,  ///< it is that of the last label that told one
    Usual,        ///< it is that of most printers
};

/// Size of a label in dots at its resolution.
struct LabelDots {
    std::int64_t width = 0;
    std::int64_t height = 0;
    int dpi = 0;
    DpiSource dpiSource = DpiSource::Usual;
};

/// The label that is being drawn: its size, as far as it is known, and its dots.
///
/// Commands draw in dots, but the label's edges are known in dots only when its resolution is,
/// which the width of its bitmaps tells. So the canvas is as large as the label has dots at 600
/// dpi, and is cut when the label is printed.
class Label {
public:
    /// `dpi` is the printer's resolution when it is known. A label of more than `mostDots` at
    /// that resolution, else at 600 dpi, is refused.
    Label(std::optional<int> dpi, std::uint64_t mostDots);

    /// Takes a new size; nothing remains of what is drawn, unless the size is the one before.
    /// False when the label is refused: nothing is drawn on it.
    [[nodiscard]] bool setSize(const LabelSize& size);

    /// Makes the label bare.
    void clear();

    [[nodiscard]] DotCanvas& canvas() { return canvas_; }
    [[nodiscard]] const DotCanvas& canvas() const { return canvas_; }

    /// Takes notice of a bitmap with its upper left corner at (x, y); of one without dots it takes
    /// none.
    void noteBitmap(const BitmapHead& head, std::int64_t x, std::int64_t y);

    /// Takes notice of a command that is meant to leave a mark and has left none on the canvas.
    void noteUndrawn() { lacksMarks_ = true; }
    /// Whether there was such a command: a bare canvas may not be what was meant then.
    [[nodiscard]] bool lacksMarks() const { return lacksMarks_; }

    /// Dots to the inch: the printer's when it is known, else what the bitmaps that are drawn tell,
    /// or those before, or 203.
    [[nodiscard]] int resolution() { return knownResolution().dpi; }

    /// Takes notice of what the command at `place` has drawn on the canvas.
    void noteDrawn(const Place& place, std::string_view name);

    /// A command with the edges of what it has drawn.
    struct Drawn {
        Place place;
        std::string name;
        Extent extent;
        bool isTold = false;  ///< with an earlier print of the label
    };
    /// The commands that have drawn over an edge of a label of this size. Of more than a thousand
    /// that may have only those are kept that reach farther than all before them.
    [[nodiscard]] std::vector<Drawn> overhanging(const LabelDots& dots) const;

    /// Forgets what lies within an area that is made bare.
    void noteErased(const Area& area);

    /// Takes notice that the commands over the edges have been spoken of.
    void noteTold(const LabelDots& dots);

    /// The size of the label as it is printed now. Without a SIZE it ends where the last dot
    /// does. 0 dots wide or high when the label was refused or no size can be told.
    [[nodiscard]] LabelDots dots();

    /// A bitmap that reaches over the edge, and the dot it ends before.
    struct Overhang {
        Place place;  ///< of its command
        std::int64_t end = 0;
    };
    /// The bitmap that reaches farthest over the right edge of a label of this size; the last
    /// seven dots of its rows may fill a byte. Nothing when all bitmaps fit.
    [[nodiscard]] std::optional<Overhang> widestOverhang(const LabelDots& dots) const;
    /// The same for the lower edge, to the dot.
    [[nodiscard]] std::optional<Overhang> highestOverhang(const LabelDots& dots) const;

private:
    struct Resolution {
        int dpi = 0;
        DpiSource source = DpiSource::Usual;
    };
    [[nodiscard]] Resolution knownResolution();
    [[nodiscard]] bool isTooLarge(const LabelSize& size) const;
    [[nodiscard]] int canvasDpi() const;
    [[nodiscard]] bool mayReachOver(const Extent& extent) const;
    [[nodiscard]] double mostRowsOf(const LabelSize& size, double width) const;

    std::optional<int> givenDpi_;
    std::optional<int> lastDpi_;
    std::uint64_t mostDots_;
    std::optional<LabelSize> size_;
    DotCanvas canvas_;
    Overhang widest_;
    Overhang highest_;
    std::vector<Drawn> drawn_;  ///< what may reach over an edge
    Extent farthest_;           ///< of all that may
    bool refused_ = false;
    bool lacksMarks_ = false;
};

}  // namespace tspl
