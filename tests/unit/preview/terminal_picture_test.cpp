// Labels in block characters, by hand.
#include "preview/terminal_picture.h"

#include <cstdlib>

#include "tests/unit/tspl/test_support.h"

namespace preview {
namespace {

using tspl::Texts;

// Keeps what a test does to COLUMNS from the next one.
class TerminalPicture : public testing::Test {
protected:
    ~TerminalPicture() override { unsetenv("COLUMNS"); }

    static std::string shown(const Texts& rows, const TerminalSize& size = {}) {
        const auto width = static_cast<std::int64_t>(rows.front().size());
        const auto height = static_cast<std::int64_t>(rows.size());
        tspl::DotCanvas canvas(width, height);
        for (std::int64_t y = 0; y < height; ++y) {
            for (std::int64_t x = 0; x < width; ++x) {
                if (rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == '#') {
                    canvas.fill({x, y, 1, 1});
                }
            }
        }
        return terminalPicture(tspl::LabelPicture(canvas, width, height, 203, {}), size);
    }

    // A bare label in a window, by its lines and the columns of a bar along its lower edge.
    static std::pair<std::size_t, std::size_t> sizeOf(std::int64_t width, std::int64_t height,
                                                      const TerminalSize& size) {
        tspl::DotCanvas canvas(width, height);
        canvas.fill({0, 0, width, height});
        const std::string text =
            terminalPicture(tspl::LabelPicture(canvas, width, height, 203, {}), size);
        constexpr std::size_t bytesOfABlock = 3;
        return {text.find('\n') / bytesOfABlock,
                static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'))};
    }
};

TEST_F(TerminalPicture, HasTwoDotsToACharacterWhereTheyFit) {
    EXPECT_EQ(shown({"#.#.", "##..", ".#..", ".#.."}), "█▄▀\n █\n");
}

TEST_F(TerminalPicture, OfAnOddNumberOfRowsEndsWithPaper) {
    EXPECT_EQ(shown({"#", "#", "#"}), "█\n▀\n");
}

TEST_F(TerminalPicture, OfABareLabelHasBlankLines) {
    EXPECT_EQ(shown(Texts(5, "....")), "\n\n\n");
}

// Four columns of two dots on each side; an area is 16 dots, of which 1/8 are 2 and 1/2 are 8.
TEST_F(TerminalPicture, TakesTheShareOfBurntDotsInAnArea) {
    const Texts rows = {
        "##..###.########", "....#...########",                                          //
        ".....###........", "................", "................", "........####....",  //
        "............####", "............####",
    };
    // The upper pixels burn 2, 7, 8 and 8 dots, the lower ones 0, 0, 4 and 8.
    EXPECT_EQ(shown(rows, {4, std::nullopt}), " ░▒█\n");
}

TEST_F(TerminalPicture, ShadesByTheMeanOfBothPixels) {
    const std::string none = "....";
    const std::string one = "#...";
    // Of the 32 dots of both pixels 3, 5 + 3 and 3 + 13 are burnt.
    EXPECT_EQ(shown({"###.", none, none, none, none, none, none, none}, {1, {}}), "░\n");
    EXPECT_EQ(shown({"###.", "##..", none, none, "###.", none, none, none}, {1, {}}), "▒\n");
    EXPECT_EQ(shown({"###.", none, none, none, "####", "####", "####", one}, {1, {}}), "▓\n");
}

TEST_F(TerminalPicture, KeepsALineThatIsThinnerThanAPixel) {
    EXPECT_EQ(shown(Texts(8, ".#......"), {2, std::nullopt}), "▒\n");
}

TEST_F(TerminalPicture, FitsTheColumnsAndKeepsItsShape) {
    EXPECT_EQ(sizeOf(800, 400, {80, std::nullopt}), std::pair(80UL, 20UL));
    EXPECT_EQ(sizeOf(800, 1200, {100, std::nullopt}), std::pair(100UL, 75UL));
    EXPECT_EQ(sizeOf(50, 40, {80, std::nullopt}), std::pair(50UL, 20UL));
    EXPECT_EQ(sizeOf(1000, 1, {10, std::nullopt}), std::pair(10UL, 1UL));
}

TEST_F(TerminalPicture, FitsTheLinesAndKeepsItsShape) {
    EXPECT_EQ(sizeOf(800, 400, {80, 20}), std::pair(80UL, 20UL));
    EXPECT_EQ(sizeOf(800, 400, {80, 10}), std::pair(40UL, 10UL));
    EXPECT_EQ(sizeOf(1, 1000, {80, 10}), std::pair(1UL, 10UL));
    EXPECT_EQ(sizeOf(40, 40, {80, 50}), std::pair(40UL, 20UL));
}

TEST_F(TerminalPicture, IsAsWideAsColumnsSaysWithoutATerminal) {
    const auto columns = [](const char* text) {
        setenv("COLUMNS", text, 1);
        const TerminalSize size = terminalSize(-1);
        EXPECT_FALSE(size.lines);
        return size.columns;
    };
    EXPECT_EQ(columns("132"), 132);
    for (const char* rubbish : {"", "0", "-5", "wide", "99999999999999999999", "80x"}) {
        EXPECT_EQ(columns(rubbish), 80) << rubbish;
    }
    unsetenv("COLUMNS");
    EXPECT_EQ(terminalSize(-1).columns, 80);
}

}  // namespace
}  // namespace preview
