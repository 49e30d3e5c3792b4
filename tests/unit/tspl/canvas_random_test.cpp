// Any sequence of operations leaves the canvas as the plain one.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <ostream>

#include "tests/unit/tspl/plain_canvas.h"

namespace tspl {
namespace {

enum class Kind { Fill, Erase, Invert, Overwrite, Or, ExclusiveOr, Clear };

struct Operation {
    Kind kind = Kind::Fill;
    std::int64_t x = 0;
    std::int64_t y = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::vector<std::uint8_t> bits;
};

std::ostream& operator<<(std::ostream& stream, const Operation& operation) {
    stream << "kind " << static_cast<int>(operation.kind) << " at " << operation.x << ", "
           << operation.y << " of " << operation.width << " x " << operation.height << " bits";
    for (const std::uint8_t byte : operation.bits) {
        stream << ' ' << int{byte};
    }
    return stream;
}

rc::Gen<Operation> anyOperation() {
    // One in 25 operations clears.
    const auto kind = rc::gen::weightedElement<Kind>({{4, Kind::Fill},
                                                      {4, Kind::Erase},
                                                      {4, Kind::Invert},
                                                      {4, Kind::Overwrite},
                                                      {4, Kind::Or},
                                                      {4, Kind::ExclusiveOr},
                                                      {1, Kind::Clear}});
    const auto place = rc::gen::inRange<std::int64_t>(-20, 45);
    const auto extent = rc::gen::inRange<std::int64_t>(-2, 60);
    return rc::gen::build<Operation>(
        rc::gen::set(&Operation::kind, kind), rc::gen::set(&Operation::x, place),
        rc::gen::set(&Operation::y, place), rc::gen::set(&Operation::width, extent),
        rc::gen::set(&Operation::height, extent), rc::gen::set(&Operation::bits));
}

template <class Canvas>
void carryOut(const Operation& operation, Canvas& canvas) {
    const auto& [kind, x, y, width, height, bits] = operation;
    switch (kind) {
        case Kind::Fill:
            return canvas.fill({x, y, width, height});
        case Kind::Erase:
            return canvas.erase({x, y, width, height});
        case Kind::Invert:
            return canvas.invert({x, y, width, height});
        case Kind::Overwrite:
            return canvas.drawBits(x, y, bits, DrawMode::Overwrite);
        case Kind::Or:
            return canvas.drawBits(x, y, bits, DrawMode::Or);
        case Kind::ExclusiveOr:
            return canvas.drawBits(x, y, bits, DrawMode::ExclusiveOr);
        case Kind::Clear:
            return canvas.clear();
    }
}

RC_GTEST_PROP(DotCanvasProperty, MeetsThePlainCanvasAfterAnyOperations, ()) {
    const auto width = *rc::gen::inRange<std::int64_t>(0, 41);
    const auto height = *rc::gen::inRange<std::int64_t>(0, 21);
    const auto operations = *rc::gen::container<std::vector<Operation>>(anyOperation());
    DotCanvas canvas(width, height);
    PlainCanvas plain(width, height);
    for (const Operation& operation : operations) {
        carryOut(operation, canvas);
        carryOut(operation, plain);
    }
    for (std::int64_t y = -1; y <= height; ++y) {
        for (std::int64_t x = -1; x <= width; ++x) {
            RC_ASSERT(canvas.burns(x, y) == plain.burns(x, y));
        }
    }
    const auto [kind, x, y, extent, depth, bits] = *anyOperation();
    std::uint64_t inArea = 0;
    for (std::int64_t row = y; row < y + depth; ++row) {
        for (std::int64_t column = x; column < x + extent; ++column) {
            inArea += plain.burns(column, row) ? 1U : 0U;
        }
    }
    RC_ASSERT(canvas.burntDots({x, y, extent, depth}) == inArea);
    RC_ASSERT(canvas.burntDots() == plain.burntDots());
    RC_ASSERT(canvas.dotsOutside() == plain.dotsOutside());
    RC_ASSERT(canvas.burntArea().width == plain.burntArea().width);
    RC_ASSERT(canvas.burntArea().height == plain.burntArea().height);
}

}  // namespace
}  // namespace tspl
