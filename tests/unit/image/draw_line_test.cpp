// Straight lines.
#include "tests/reference/draw_line.h"

#include <climits>
#include <set>
#include <utility>

#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;
using Points = std::set<std::pair<int, int>>;

constexpr std::uint32_t side = 11;
constexpr int middle = 5;

// Column and row of all pixels of an image that are not 0.
Points pointsOf(const RasterImage& image) {
    Points points;
    for (int y = 0; y < image.GetHeight(); ++y) {
        for (int x = 0; x < image.GetWidth(); ++x) {
            if (image.GetPixelIndex(x, y) != 0) {
                points.emplace(x, y);
            }
        }
    }
    return points;
}

Points lineFromTo(std::pair<int, int> start, std::pair<int, int> end) {
    RasterImage image;
    image.Create(side, side, 8, 0);
    image.DrawLine(start.first, end.first, start.second, end.second, 200);
    return pointsOf(image);
}

// A line from the middle, 5, 5, of a page of 11 × 11.
Points lineTo(int endX, int endY) {
    return lineFromTo({middle, middle}, {endX, endY});
}

TEST(DrawLine, TakesBothColumnsBeforeBothRows) {
    EXPECT_EQ(lineFromTo({0, 0}, {3, 1}), (Points{{0, 0}, {1, 0}, {2, 1}, {3, 1}}));
    RasterImage image;
    image.Create(side, side, 8, 0);
    image.DrawLine(0, 3, 0, 1, 200);
    EXPECT_EQ(pointsOf(image), (Points{{0, 0}, {1, 0}, {2, 1}, {3, 1}}));
}

TEST(DrawLine, FromAPointToItselfSetsThatPoint) {
    EXPECT_EQ(lineTo(5, 5), (Points{{5, 5}}));
}

TEST(DrawLine, RunsAlongRowsAndColumns) {
    EXPECT_EQ(lineTo(8, 5), (Points{{5, 5}, {6, 5}, {7, 5}, {8, 5}}));
    EXPECT_EQ(lineTo(2, 5), (Points{{5, 5}, {4, 5}, {3, 5}, {2, 5}}));
    EXPECT_EQ(lineTo(5, 8), (Points{{5, 5}, {5, 6}, {5, 7}, {5, 8}}));
    EXPECT_EQ(lineTo(5, 2), (Points{{5, 5}, {5, 4}, {5, 3}, {5, 2}}));
}

TEST(DrawLine, RunsAlongDiagonals) {
    EXPECT_EQ(lineTo(8, 8), (Points{{5, 5}, {6, 6}, {7, 7}, {8, 8}}));
    EXPECT_EQ(lineTo(2, 8), (Points{{5, 5}, {4, 6}, {3, 7}, {2, 8}}));
    EXPECT_EQ(lineTo(8, 2), (Points{{5, 5}, {6, 4}, {7, 3}, {8, 2}}));
    EXPECT_EQ(lineTo(2, 2), (Points{{5, 5}, {4, 4}, {3, 3}, {2, 2}}));
}

// 5 along, 2 aside: the error goes 2, 4, 6 (step, 1), 3, 5 (step, 0).
TEST(DrawLine, StepsAsideInTheFlatOctants) {
    EXPECT_EQ(lineTo(10, 7), (Points{{5, 5}, {6, 5}, {7, 6}, {8, 6}, {9, 7}, {10, 7}}));
    EXPECT_EQ(lineTo(10, 3), (Points{{5, 5}, {6, 5}, {7, 4}, {8, 4}, {9, 3}, {10, 3}}));
    EXPECT_EQ(lineTo(0, 7), (Points{{5, 5}, {4, 5}, {3, 6}, {2, 6}, {1, 7}, {0, 7}}));
    EXPECT_EQ(lineTo(0, 3), (Points{{5, 5}, {4, 5}, {3, 4}, {2, 4}, {1, 3}, {0, 3}}));
}

TEST(DrawLine, StepsAsideInTheSteepOctants) {
    EXPECT_EQ(lineTo(7, 10), (Points{{5, 5}, {5, 6}, {6, 7}, {6, 8}, {7, 9}, {7, 10}}));
    EXPECT_EQ(lineTo(3, 10), (Points{{5, 5}, {5, 6}, {4, 7}, {4, 8}, {3, 9}, {3, 10}}));
    EXPECT_EQ(lineTo(7, 0), (Points{{5, 5}, {5, 4}, {6, 3}, {6, 2}, {7, 1}, {7, 0}}));
    EXPECT_EQ(lineTo(3, 0), (Points{{5, 5}, {5, 4}, {4, 3}, {4, 2}, {3, 1}, {3, 0}}));
}

// 4 along, 1 aside: the error goes 2, 3, 4 (step), so the step comes after two pixels.
TEST(DrawLine, IsNotTheSameBackwards) {
    EXPECT_EQ(lineFromTo({1, 1}, {5, 2}), (Points{{1, 1}, {2, 1}, {3, 2}, {4, 2}, {5, 2}}));
    EXPECT_EQ(lineFromTo({5, 2}, {1, 1}), (Points{{5, 2}, {4, 2}, {3, 1}, {2, 1}, {1, 1}}));
}

TEST(DrawLine, DropsPointsOutsideTheImage) {
    EXPECT_EQ(lineFromTo({-2, 0}, {1, 0}), (Points{{0, 0}, {1, 0}}));
    EXPECT_EQ(lineFromTo({9, -3}, {14, 2}), Points{});
    EXPECT_EQ(lineFromTo({-2, 3}, {2, -1}), (Points{{0, 1}, {1, 0}}));
    EXPECT_EQ(lineFromTo({9, 9}, {12, 12}), (Points{{9, 9}, {10, 10}}));
    EXPECT_EQ(lineFromTo({INT_MIN, INT_MAX - 1}, {INT_MIN + 2, INT_MAX}), Points{});
}

TEST(DrawLine, SetsItsIndexAndNothingElse) {
    RasterImage image;
    makeImage(image, 3, 2, 8, Bytes(8, 77));
    image.DrawLine(0, 1, 1, 1, 200);
    EXPECT_EQ(rowsOf(image), (Bytes{77, 77, 77, 77, 200, 200, 77, 77}));
}

TEST(DrawLine, DrawsAtEveryPaletteDepth) {
    RasterImage image;
    image.Create(4, 2, 4, 0);
    image.DrawLine(0, 3, 0, 1, 0xF9);
    EXPECT_EQ(rowsOf(image), (Bytes{0x99, 0, 0, 0, 0, 0x99, 0, 0}));
    image.Create(4, 2, 1, 0);
    image.DrawLine(0, 3, 0, 1, 255);
    EXPECT_EQ(rowsOf(image), (Bytes{0xC0, 0, 0, 0, 0x30, 0, 0, 0}));
    image.Create(4, 2, 24, 0);
    image.DrawLine(0, 3, 0, 1, 255);
    EXPECT_EQ(rowsOf(image), Bytes(24, 0));
}

TEST(DrawLine, DoesNothingWithoutAnImage) {
    RasterImage image;
    image.Create(4, 2, 8, 0);
    image.Destroy();
    image.DrawLine(0, 3, 0, 1, 255);
    EXPECT_FALSE(image.IsValid());
}

TEST(DrawLine, MeetsTheReferenceInAllDirections) {
    for (int endX = -20; endX <= 20; ++endX) {
        for (int endY = -20; endY <= 20; ++endY) {
            reference::GreyImage expected = reference::filledImage(side, side, 0);
            reference::drawLine(expected, middle, endX, middle, endY, 200);
            RasterImage image;
            image.Create(side, side, 8, 0);
            image.DrawLine(middle, endX, middle, endY, 200);
            ASSERT_EQ(rowsOf(image), expected.bytes) << endX << ", " << endY;
        }
    }
}

}  // namespace
