// The line below a BARCODE that people read: characters of 12 x 20 dots, two dots below the bars.
// That of Code 39 shows the start and the stop as asterisks.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

// The edges of what burns below row `top`: the first column, the first row, and those behind the
// last.
struct Box {
    std::size_t left = 1000;
    std::size_t top = 1000;
    std::size_t right = 0;
    std::size_t bottom = 0;
};

Box boxOf(const Texts& rows, std::size_t top) {
    Box box;
    for (std::size_t y = top; y < rows.size(); ++y) {
        for (std::size_t x = 0; x < rows[y].size(); ++x) {
            if (rows[y][x] == '#') {
                box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1),
                       std::max(box.bottom, y + 1)};
            }
        }
    }
    return box;
}

// Code 39 with three characters (the start, H and the stop) of 3 wide and 6 narrow elements: with 2
// and 6 dots 30 dots each, and 2 dots between them: 94. The bars are 30 dots high.
Texts drawn(const std::string& line, const std::string& rotation = "0") {
    return pictureOf("SIZE 200 dot,200 dot\nCLS\nBARCODE 50,40,\"39\",30," + line + "," + rotation +
                     ",2,6,\"H\"\nPRINT 1\n");
}

// Three cells of 12 dots, which their characters do not fill to the edges.
void expectLine(const Box& box, std::size_t left, std::size_t top) {
    EXPECT_GE(box.left, left);
    EXPECT_LE(box.right, left + 36);
    EXPECT_GE(box.top, top);
    EXPECT_LE(box.bottom, top + 20);
    EXPECT_GT(box.right, box.left + 28);
    EXPECT_GT(box.bottom, box.top + 9);
}

TEST(ReadableLine, StandsAtTheLeftInTheMiddleOrAtTheRightBelowTheBars) {
    EXPECT_EQ(boxOf(drawn("0"), 70).right, 0U);
    const auto at = [](const char* line) { return boxOf(drawn(line), 70); };
    expectLine(at("1"), 50, 72);
    expectLine(at("2"), 50 + (94 - 36) / 2, 72);
    expectLine(at("3"), 50 + 94 - 36, 72);
}

TEST(ReadableLine, LeavesTheBarsAsTheyAre) {
    const Texts with = drawn("2");
    const Texts without = drawn("0");
    for (std::size_t y = 0; y < 70; ++y) {
        EXPECT_EQ(with[y], without[y]) << y;
    }
}

TEST(ReadableLine, TurnsWithTheCode) {
    const Texts upright = drawn("1");
    const Texts turned = drawn("1", "180");
    for (std::size_t y = 0; y < 40; ++y) {
        for (std::size_t x = 0; x < 50; ++x) {
            // The corner of the code stays at (50, 40).
            EXPECT_EQ(turned[39 - y][49 - x], upright[40 + y][50 + x]) << x << "," << y;
        }
    }
    const Texts quarter = drawn("1", "90");
    for (std::size_t y = 0; y < 40; ++y) {
        for (std::size_t x = 0; x < 50; ++x) {
            EXPECT_EQ(quarter[40 + x][49 - y], upright[40 + y][50 + x]) << x << "," << y;
        }
    }
}

}  // namespace
}  // namespace tspl
