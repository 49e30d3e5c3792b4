// Error diffusion, worked out by hand: the kernels cell by cell, clamping, edges.
#include "image/error_diffusion.h"

#include <climits>

#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;

// The weights of a kernel in columns -4 to +4 of the current row and the four below. The
// current pixel is in the middle of the first row.
struct KernelTable {
    const char* name;
    std::vector<long> methods;
    int divisor;
    int weights[5][9];
};

void PrintTo(const KernelTable& kernel, std::ostream* stream) {
    *stream << kernel.name;
}

const KernelTable floydSteinberg = {"FloydSteinberg",
                                    {8, 9, 100, 256, -1, -2, LONG_MAX, LONG_MIN},
                                    16,
                                    {{0, 0, 0, 0, 0, 7, 0, 0, 0},  //
                                     {0, 0, 0, 3, 5, 1, 0, 0, 0}}};

const KernelTable burkes = {"Burkes",
                            {2},
                            32,
                            {{0, 0, 0, 0, 0, 8, 4, 0, 0},  //
                             {0, 0, 2, 4, 8, 4, 2, 0, 0}}};

const KernelTable stucki = {"Stucki",
                            {3},
                            42,
                            {{0, 0, 0, 0, 0, 8, 4, 0, 0},  //
                             {0, 0, 2, 4, 8, 4, 2, 0, 0},
                             {0, 0, 1, 2, 4, 2, 1, 0, 0}}};

const KernelTable jarvisJudiceNinke = {"JarvisJudiceNinke",
                                       {4},
                                       48,
                                       {{0, 0, 0, 0, 0, 7, 5, 0, 0},  //
                                        {0, 0, 3, 5, 7, 5, 3, 0, 0},
                                        {0, 0, 1, 3, 5, 3, 1, 0, 0}}};

const KernelTable sierra = {"Sierra",
                            {5},
                            32,
                            {{0, 0, 0, 0, 0, 5, 3, 0, 0},  //
                             {0, 0, 2, 4, 5, 4, 2, 0, 0},
                             {0, 0, 0, 2, 3, 2, 0, 0, 0}}};

const KernelTable stevensonArce = {"StevensonArce",
                                   {6},
                                   200,
                                   {{0, 0, 0, 0, 0, 0, 32, 0, 0},
                                    {0, 12, 0, 26, 0, 30, 0, 16, 0},
                                    {0, 0, 12, 0, 26, 0, 12, 0, 0},
                                    {0, 5, 0, 12, 0, 12, 0, 5, 0}}};

// What Dither makes of the pixel at column x of row y, at `level`, of a black page whose pixel
// at column 4 of row 0 is `first`. A white first pixel darkens others, and black ones cannot
// get any darker, so nothing but the kernel decides.
int valueBeside(long method, std::uint8_t first, int x, int y, int level) {
    RasterImage image;
    image.Create(9, 5, 8, 0);
    image.SetPixelIndex(4, 0, first);
    image.SetPixelIndex(x, y, static_cast<std::uint8_t>(level));
    EXPECT_TRUE(image.Dither(method));
    return image.GetPixelIndex(x, y);
}

class Kernel : public testing::TestWithParam<KernelTable> {
protected:
    // A white pixel of level `first` takes exactly (255 - first) × weight ÷ divisor, without
    // the fraction, from each cell.
    static void expectShares(std::uint8_t first) {
        const KernelTable& kernel = GetParam();
        for (const long method : kernel.methods) {
            for (int cell = 5; cell < 5 * 9; ++cell) {
                const int x = cell % 9;
                const int y = cell / 9;
                const int share = (255 - first) * kernel.weights[y][x] / kernel.divisor;
                EXPECT_EQ(valueBeside(method, first, x, y, 129 + share), 1)
                    << method << ": " << x - 4 << ", " << y;
                EXPECT_EQ(valueBeside(method, first, x, y, 128 + share), 0)
                    << method << ": " << x - 4 << ", " << y;
            }
        }
    }
};

TEST_P(Kernel, SpreadsTheErrorByItsWeights) {
    expectShares(129);
}

TEST_P(Kernel, CutsFractionsOffEveryShare) {
    for (const int first : {130, 150, 201, 239, 254, 255}) {
        expectShares(static_cast<std::uint8_t>(first));
    }
}

INSTANTIATE_TEST_SUITE_P(Dither, Kernel,
                         testing::Values(floydSteinberg, burkes, stucki, jarvisJudiceNinke, sierra,
                                         stevensonArce),
                         [](const auto& kernel) { return kernel.param.name; });

Bytes dithered(long method, std::uint32_t width, const Bytes& levels) {
    RasterImage image;
    makeGreyImage(image, width, static_cast<std::uint32_t>(levels.size()) / width, levels);
    EXPECT_TRUE(image.Dither(method));
    return pixelsOf(image);
}

TEST(ErrorDiffusion, BlackensAFirstPixelOfLevel128AndWhitensOneOf129) {
    for (const long method : {2, 3, 4, 5, 6, 8}) {
        EXPECT_EQ(dithered(method, 4, Bytes(16, 128))[0], 0) << method;
        EXPECT_EQ(dithered(method, 4, Bytes(16, 129))[0], 1) << method;
    }
}

TEST(ErrorDiffusion, CarriesTheErrorAlongARow) {
    // 129 - 126 × 7 / 16 = 74 is black, 129 + 74 × 7 / 16 = 161 is white.
    EXPECT_EQ(dithered(8, 3, {129, 129, 129}), (Bytes{1, 0, 1}));
    // 128 + 56 = 184 is white, 128 - 31 = 97 is black.
    EXPECT_EQ(dithered(8, 3, {128, 128, 128}), (Bytes{0, 1, 0}));
}

// (0, 0) black, error 128: right 184, below 168, diagonal 136. (1, 0) white, error -71: below
// it 136 - 22 = 114, left below 168 - 13 = 155. (0, 1) white, error -100: 114 - 43 = 71, black.
TEST(ErrorDiffusion, CarriesTheErrorDownwards) {
    EXPECT_EQ(dithered(8, 2, {128, 128, 128, 128}), (Bytes{0, 1, 1, 0}));
}

TEST(ErrorDiffusion, NeverRaisesALevelAbove255) {
    // 255 + 56 stays 255 and leaves no error; else 311 would send 24 on to the last pixel.
    EXPECT_EQ(dithered(8, 3, {128, 255, 128}), (Bytes{0, 1, 0}));
}

TEST(ErrorDiffusion, NeverLowersALevelBelow0) {
    // 20 - 55 becomes 0 and leaves no error; else -35 would take 15 from the last pixel.
    EXPECT_EQ(dithered(8, 3, {129, 20, 129}), (Bytes{1, 0, 1}));
}

// Shares, of 126 levels, that a column of one pixel hands down one, two and three rows.
TEST(ErrorDiffusion, HandsAColumnOfOnePixelOnlyTheCellsStraightBelow) {
    const struct {
        long method;
        int shares[3];
    } columns[] = {{8, {39, 0, 0}},  {2, {31, 0, 0}},  {3, {24, 12, 0}},
                   {4, {18, 13, 0}}, {5, {19, 11, 0}}, {6, {0, 16, 0}}};
    for (const auto& column : columns) {
        for (std::size_t row = 1; row <= 3; ++row) {
            Bytes levels = {129, 0, 0, 0, 0};
            levels[row] = static_cast<std::uint8_t>(129 + column.shares[row - 1]);
            EXPECT_EQ(dithered(column.method, 1, levels)[row], 1) << column.method << ": " << row;
            --levels[row];
            EXPECT_EQ(dithered(column.method, 1, levels)[row], 0) << column.method << ": " << row;
        }
    }
}

TEST(ErrorDiffusion, KeepsFourBitsOfALevelOfA4BitSource) {
    RasterImage source;
    RasterImage target;
    makeImage(source, 2, 1, 4, {0xFC, 0, 0, 0});
    target.Create(2, 1, 1, 0);
    diffuseError(source, target, floydSteinbergKernel);
    // 12 + 15 × 7 / 16 = 18, of which 2 is left.
    EXPECT_EQ(rowsOf(source), (Bytes{0xF2, 0, 0, 0}));
    EXPECT_EQ(rowsOf(target), Bytes(4, 0));
}

}  // namespace
