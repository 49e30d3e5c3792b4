#include "intake/sheet/candidates.h"

#include <algorithm>
#include <cmath>

namespace intake::sheet {
namespace {

// Shapes that differ by less are the same.
constexpr double sShapeStep = 0.015;

bool isWithin(const DotRectangle& inner, const DotRectangle& outer) {
    return common(inner, outer) == inner;
}

// Neighbours may share the line between them.
bool isOver(const Candidate& a, const Candidate& b) {
    const std::int64_t shared = common(a.extent, b.extent).area();
    return 10 * shared > std::min(a.extent.area(), b.extent.area());
}

class Choice {
public:
    explicit Choice(std::int64_t pageArea) : pageArea_(pageArea) {}

    bool isBefore(const Candidate& a, const Candidate& b) const {
        if (rank(a) != rank(b)) {
            return rank(a) > rank(b);
        }
        if (a.fit.isWithin != b.fit.isWithin) {
            return a.fit.isWithin;
        }
        if (!a.isFrame() && shapeSteps(a) != shapeSteps(b)) {
            return shapeSteps(a) < shapeSteps(b);
        }
        return a.extent.area() > b.extent.area();
    }

private:
    int rank(const Candidate& candidate) const {
        const bool isBorder = 4 * candidate.extent.area() > 3 * pageArea_;
        if (candidate.isFrame() && (candidate.fit.isOwnSize || !isBorder)) {
            return candidate.kind == Candidate::Kind::Frame ? 3 : 2;
        }
        return candidate.fit.isOwnSize ? 1 : 0;
    }

    static double shapeSteps(const Candidate& candidate) {
        return std::floor(candidate.fit.shapeError / sShapeStep);
    }

    std::int64_t pageArea_;
};

std::vector<Candidate> chooseInOrder(const std::vector<Candidate>& ordered) {
    std::vector<Candidate> chosen;
    for (const Candidate& candidate : ordered) {
        const auto covers = [&](const Candidate& other) { return isOver(candidate, other); };
        if (std::ranges::none_of(chosen, covers)) {
            chosen.push_back(candidate);
        }
    }
    return chosen;
}

bool isSheet(const Candidate& candidate, const std::vector<Candidate>& ordered) {
    if (candidate.fit.isOwnSize) {
        return false;
    }
    std::vector<Candidate> inside;
    std::ranges::copy_if(ordered, std::back_inserter(inside), [&](const Candidate& other) {
        return other.fit.isOwnSize && isWithin(other.extent, candidate.extent);
    });
    return chooseInOrder(inside).size() > 1;
}

bool isFieldOf(const DotRectangle& inner, const DotRectangle& outer) {
    return inner != outer && isWithin(inner, outer) &&
           (inner.left == outer.left || inner.top == outer.top || inner.right == outer.right ||
            inner.bottom == outer.bottom);
}

std::vector<Candidate> withoutFields(const std::vector<Candidate>& ordered) {
    std::vector<Candidate> kept;
    std::ranges::copy_if(ordered, std::back_inserter(kept), [&](const Candidate& candidate) {
        return std::ranges::none_of(ordered, [&](const Candidate& other) {
            return other.kind == Candidate::Kind::Frame && candidate.isFrame() &&
                   isFieldOf(candidate.extent, other.extent);
        });
    });
    return kept;
}

}  // namespace

std::vector<Candidate> chooseAmong(std::vector<Candidate> candidates, std::int64_t pageArea) {
    const Choice choice(pageArea);
    std::ranges::stable_sort(
        candidates, [&](const Candidate& a, const Candidate& b) { return choice.isBefore(a, b); });
    std::vector<Candidate> labels;
    std::ranges::copy_if(candidates, std::back_inserter(labels), [&](const Candidate& candidate) {
        return !isSheet(candidate, candidates);
    });
    return chooseInOrder(withoutFields(labels));
}

}  // namespace intake::sheet
