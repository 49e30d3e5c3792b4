#include "intake/sheet/label_matrix.h"

#include <algorithm>

namespace intake::sheet {

Matrix operator*(const Matrix& first, const Matrix& then) {
    return {
        first.a * then.a + first.b * then.c,          first.a * then.b + first.b * then.d,
        first.c * then.a + first.d * then.c,          first.c * then.b + first.d * then.d,
        first.e * then.a + first.f * then.c + then.e, first.e * then.b + first.f * then.d + then.f};
}

Rectangle seenPage(const PageView& page) {
    const double width = (page.right - page.left) * page.unit;
    const double height = (page.top - page.bottom) * page.unit;
    return page.quarters % 2 == 0 ? Rectangle{0, 0, width, height} : Rectangle{0, 0, height, width};
}

Matrix toSeen(const PageView& page) {
    const double unit = page.unit;
    switch (page.quarters & 3) {
        case 1:
            return {0, unit, unit, 0, -page.bottom * unit, -page.left * unit};
        case 2:
            return {-unit, 0, 0, unit, page.right * unit, -page.bottom * unit};
        case 3:
            return {0, -unit, -unit, 0, page.top * unit, page.right * unit};
        default:
            return {unit, 0, 0, -unit, -page.left * unit, page.top * unit};
    }
}

double scaleFor(const sizes::PointSize& part, const LabelSides& sides) {
    constexpr double rounding = 0.01;
    if (part.width <= sides.label.width + rounding &&
        part.height <= sides.label.height + rounding) {
        return 1;
    }
    return std::min({1.0, sides.page.width / part.width, sides.page.height / part.height});
}

Matrix toLabel(const Rectangle& cut, int quarters) {
    switch (quarters & 3) {
        case 1:
            return {0, -1, -1, 0, cut.bottom, cut.right};
        case 2:
            return {-1, 0, 0, 1, cut.right, -cut.top};
        case 3:
            return {0, 1, 1, 0, -cut.top, -cut.left};
        default:
            return {1, 0, 0, -1, -cut.left, cut.bottom};
    }
}

}  // namespace intake::sheet
