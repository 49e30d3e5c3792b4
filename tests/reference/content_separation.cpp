#include "tests/reference/content_separation.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace reference {
namespace {

constexpr int edge = 8;
using Marks = std::vector<std::vector<bool>>;

class Page {
public:
    Page(const Levels& levels, int dpi)
        : levels_(levels),
          rows_(static_cast<int>(levels.size())),
          columns_(static_cast<int>(levels.front().size())),
          high_((rows_ + edge - 1) / edge),
          wide_((columns_ + edge - 1) / edge),
          tint_(std::max(2, static_cast<int>(std::lround(4 * dpi / 25.4 / edge)))) {
        const std::vector<int> none(at(wide_));
        least_ = most_ = windowLeast_ = windowMost_ = wideLeast_ = wideMost_ =
            Levels(at(high_), none);
        for (int row = 0; row < high_; ++row) {
            for (int column = 0; column < wide_; ++column) {
                least_[at(row)][at(column)] = extreme(row, column, 1, true);
                most_[at(row)][at(column)] = extreme(row, column, 1, false);
                windowLeast_[at(row)][at(column)] = extreme(row - 1, column - 1, 3, true);
                windowMost_[at(row)][at(column)] = extreme(row - 1, column - 1, 3, false);
                wideLeast_[at(row)][at(column)] = extreme(row - 2, column - 2, 5, true);
                wideMost_[at(row)][at(column)] = extreme(row - 2, column - 2, 5, false);
            }
        }
    }

    Levels separated() const {
        Marks continuous = seeds();
        for (int round = 0; round < 4; ++round) {
            continuous = spreadUpAndDown(spreadAlong(continuous));
        }
        const Marks left = withNeighbours(continuous);
        Levels result = levels_;
        for (int y = 0; y < rows_; ++y) {
            for (int x = 0; x < columns_; ++x) {
                result[at(y)][at(x)] = dot(y, x, left);
            }
        }
        return result;
    }

private:
    static std::size_t at(int i) { return static_cast<std::size_t>(i); }

    // Dots beyond the right and the lower edge are like those at the edge.
    int level(int y, int x) const {
        return levels_[at(std::min(y, rows_ - 1))][at(std::min(x, columns_ - 1))];
    }

    bool isBlock(int row, int column) const {
        return row >= 0 && row < high_ && column >= 0 && column < wide_;
    }

    static bool isMarked(const Marks& marks, int row, int column) {
        return row >= 0 && row < static_cast<int>(marks.size()) && column >= 0 &&
               column < static_cast<int>(marks.front().size()) && marks[at(row)][at(column)];
    }

    // Of so many blocks, also down, from this one on.
    int extreme(int row, int column, int blocks, bool isLeast) const {
        int found = isLeast ? 255 : 0;
        for (int y = std::max(row, 0) * edge; y < std::min((row + blocks) * edge, rows_); ++y) {
            for (int x = std::max(column, 0) * edge;
                 x < std::min((column + blocks) * edge, columns_); ++x) {
                found = isLeast ? std::min(found, level(y, x)) : std::max(found, level(y, x));
            }
        }
        return found;
    }

    int least(int row, int column) const { return least_[at(row)][at(column)]; }
    int most(int row, int column) const { return most_[at(row)][at(column)]; }
    int windowLeast(int row, int column) const { return windowLeast_[at(row)][at(column)]; }
    int windowMost(int row, int column) const { return windowMost_[at(row)][at(column)]; }
    int range(int row, int column) const {
        return windowMost(row, column) - windowLeast(row, column);
    }
    bool hasContrast(int row, int column) const { return range(row, column) >= 24; }

    int smoothDots(int row, int column) const {
        if (!isBlock(row, column) || !hasContrast(row, column)) {
            return 0;
        }
        const int quarter = range(row, column) / 4;
        const int tolerance = std::max(2, range(row, column) / 6);
        int count = 0;
        for (int y = row * edge; y < row * edge + edge; ++y) {
            for (int x = column * edge; x < column * edge + edge; ++x) {
                const int dot = level(y, x);
                const int across =
                    std::max(std::abs(dot - level(y, x + 1)), std::abs(dot - level(y, x + 2)));
                const int down =
                    std::max(std::abs(dot - level(y + 1, x)), std::abs(dot - level(y + 2, x)));
                const bool isMiddle = dot >= windowLeast(row, column) + quarter &&
                                      dot <= windowMost(row, column) - quarter;
                count += isMiddle && across + down <= tolerance ? 1 : 0;
            }
        }
        return count;
    }

    bool isTint(int row, int column) const {
        if (!isBlock(row, column) || !isBlock(row + tint_ - 1, column + tint_ - 1)) {
            return false;
        }
        const int low = extreme(row, column, tint_, true);
        const int span = extreme(row, column, tint_, false) - low;
        return (span < 24 && low > 24) || (span <= 2 && low > 6);
    }

    Marks seeds() const {
        Marks marks(at(high_), std::vector<bool>(at(wide_)));
        std::vector<std::vector<int>> smooth(at(high_), std::vector<int>(at(wide_)));
        for (int row = 0; row < high_; ++row) {
            for (int column = 0; column < wide_; ++column) {
                smooth[at(row)][at(column)] = smoothDots(row, column);
            }
        }
        for (int row = 0; row < high_; ++row) {
            for (int column = 0; column < wide_; ++column) {
                int sum = 0;
                for (int i = 0; i < 9; ++i) {
                    const int y = row + i / 3 - 1;
                    const int x = column + i % 3 - 1;
                    sum += isBlock(y, x) ? smooth[at(y)][at(x)] : 0;
                }
                if (hasContrast(row, column) && sum >= 40) {
                    marks[at(row)][at(column)] = true;
                }
                for (int i = 0; isTint(row, column) && i < tint_ * tint_; ++i) {
                    marks[at(row + i / tint_)][at(column + i % tint_)] = true;
                }
            }
        }
        return marks;
    }

    static bool touches(int one, int other) {
        if (std::max(one, other) >= 248) {
            return false;
        }
        return std::min(one, other) > 32 ||
               (std::abs(one - other) <= 1 && std::min(one, other) > 8);
    }

    bool touchesRight(int row, int column) const {
        bool found = false;
        for (int i = 0; isBlock(row, column + 1) && i < edge; ++i) {
            const int x = column * edge + edge - 1;
            found = found || touches(level(row * edge + i, x), level(row * edge + i, x + 1));
        }
        return found;
    }

    bool touchesBelow(int row, int column) const {
        bool found = false;
        for (int i = 0; isBlock(row + 1, column) && i < edge; ++i) {
            const int y = row * edge + edge - 1;
            found = found || touches(level(y, column * edge + i), level(y + 1, column * edge + i));
        }
        return found;
    }

    Marks spreadAlong(Marks marks) const {
        for (int row = 0; row < high_; ++row) {
            for (int column = 1; column < wide_; ++column) {
                if (marks[at(row)][at(column - 1)] && touchesRight(row, column - 1)) {
                    marks[at(row)][at(column)] = true;
                }
            }
            for (int column = wide_ - 2; column >= 0; --column) {
                if (marks[at(row)][at(column + 1)] && touchesRight(row, column)) {
                    marks[at(row)][at(column)] = true;
                }
            }
        }
        return marks;
    }

    Marks spreadUpAndDown(const Marks& marks) const {
        Marks spread = marks;
        for (int row = 0; row < high_; ++row) {
            for (int column = 0; column < wide_; ++column) {
                if ((isMarked(marks, row - 1, column) && touchesBelow(row - 1, column)) ||
                    (isMarked(marks, row + 1, column) && touchesBelow(row, column))) {
                    spread[at(row)][at(column)] = true;
                }
            }
        }
        return spread;
    }

    static int marksAround(const Marks& marks, int row, int column) {
        int count = 0;
        for (int i = 0; i < 9; ++i) {
            count += i != 4 && isMarked(marks, row + i / 3 - 1, column + i % 3 - 1) ? 1 : 0;
        }
        return count;
    }

    Marks withNeighbours(const Marks& continuous) const {
        Marks left = continuous;
        for (int row = 0; row < high_; ++row) {
            for (int column = 0; column < wide_; ++column) {
                const int around = marksAround(continuous, row, column);
                const int darkest = most(row, column);
                const int lightest = least(row, column);
                const bool isPart =
                    (darkest > 6 && darkest < 48) || (lightest > 207 && lightest < 249);
                if (around >= 5 || (around > 0 && isPart)) {
                    left[at(row)][at(column)] = true;
                }
            }
        }
        return left;
    }

    int dot(int y, int x, const Marks& left) const {
        const int row = y / edge;
        const int column = x / edge;
        if (left[at(row)][at(column)]) {
            return level(y, x);
        }
        const bool isFlat = !hasContrast(row, column);
        const int low = (isFlat ? wideLeast_ : windowLeast_)[at(row)][at(column)];
        const int high = (isFlat ? wideMost_ : windowMost_)[at(row)][at(column)];
        const bool isBesideLeft = isFlat && marksAround(left, row, column) > 0;
        if (!isBesideLeft && high - low >= 24 && low <= 48) {
            return level(y, x) > low + (high - low + 1) / 2 ? 255 : 0;
        }
        if (!isFlat) {
            return level(y, x);
        }
        if (most(row, column) <= 6) {
            return 0;
        }
        return least(row, column) >= 232 ? 255 : level(y, x);
    }

    const Levels& levels_;
    int rows_, columns_;
    int high_, wide_;
    int tint_;
    Levels least_, most_, windowLeast_, windowMost_, wideLeast_, wideMost_;
};

}  // namespace

Levels separatedContent(const Levels& page, int dpi) {
    return Page(page, dpi).separated();
}

}  // namespace reference
