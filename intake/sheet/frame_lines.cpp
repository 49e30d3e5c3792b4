#include "intake/sheet/frame_lines.h"

#include <algorithm>
#include <cstddef>

namespace intake::sheet {
namespace {

constexpr std::size_t sMostLines = 64;

// One row or column of ink at a time.
struct Run {
    int start;
    int end;
};

template <typename HasInk>
void addRuns(int length, int shortest, int widestGap, const HasInk& hasInk,
             std::vector<Run>& runs) {
    Run run{0, -1 - widestGap};
    const auto close = [&] {
        if (run.end - run.start >= shortest) {
            runs.push_back(run);
        }
    };
    for (int i = 0; i < length; ++i) {
        if (!hasInk(i)) {
            continue;
        }
        if (i - run.end > widestGap) {
            close();
            run.start = i;
        }
        run.end = i + 1;
    }
    close();
}

// Grows lines by the runs of row after row; `across` is along the runs.
class LineCollection {
public:
    void add(int row, const Run& run) {
        const auto grown = std::ranges::find_if(lines_, [&](const DotRectangle& line) {
            return line.bottom == row && isMostlyOver(line, run);
        });
        if (grown == lines_.end()) {
            lines_.push_back({run.start, row, run.end, row + 1});
            return;
        }
        grown->left = std::min(grown->left, run.start);
        grown->right = std::max(grown->right, run.end);
        grown->bottom = row + 1;
    }

    std::vector<DotRectangle> longest() {
        std::ranges::stable_sort(lines_, std::greater(), &DotRectangle::width);
        lines_.resize(std::min(lines_.size(), sMostLines));
        return std::move(lines_);
    }

private:
    static bool isMostlyOver(const DotRectangle& line, const Run& run) {
        const int shared = std::min(line.right, run.end) - std::max(line.left, run.start);
        return 2 * shared >= std::max(line.width(), run.end - run.start);
    }

    std::vector<DotRectangle> lines_;
};

DotRectangle transposed(const DotRectangle& line) {
    return {line.top, line.left, line.bottom, line.right};
}

template <typename HasInk>
std::vector<DotRectangle> linesOf(int rows, int length, int shortest, int widestGap,
                                  const HasInk& hasInk) {
    LineCollection lines;
    std::vector<Run> runs;
    for (int row = 0; row < rows; ++row) {
        runs.clear();
        addRuns(
            length, shortest, widestGap, [&](int i) { return hasInk(i, row); }, runs);
        for (const Run& run : runs) {
            lines.add(row, run);
        }
    }
    return lines.longest();
}

}  // namespace

FrameLines findFrameLines(const InkMap& ink, int shortest, int widestGap) {
    FrameLines lines;
    lines.across = linesOf(ink.height(), ink.width(), shortest, widestGap,
                           [&](int x, int y) { return ink.has(x, y); });
    lines.down = linesOf(ink.width(), ink.height(), shortest, widestGap,
                         [&](int y, int x) { return ink.has(x, y); });
    std::ranges::transform(lines.down, lines.down.begin(), transposed);
    return lines;
}

}  // namespace intake::sheet
