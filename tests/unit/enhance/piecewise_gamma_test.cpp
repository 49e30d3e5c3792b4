#include "enhance/piecewise_gamma.h"

#include <gtest/gtest.h>

#include <bit>
#include <numeric>

#include "enhance/numeric.h"
#include "tests/reference/stencil_tone.h"
#include "tests/unit/enhance/numeric_values.h"
#include "tests/unit/enhance/stencil_pages.h"

namespace {

using stencil_pages::Bytes;
using stencil_pages::bytesOf;
using stencil_pages::digestOf;
using stencil_pages::greyImage;

Bytes everyLevel() {
    Bytes levels(256);
    std::iota(levels.begin(), levels.end(), std::uint8_t{0});
    return levels;
}

/// What becomes of the levels 0 to 255.
Bytes tableOf(int knee, float gammaLow, float gammaHigh) {
    QMImage image = greyImage(32, 8, everyLevel());
    enh_piecewise_gamma(image, knee, gammaLow, gammaHigh);
    return bytesOf(image);
}

/// The power that the curve takes of each level, as bytes from the lowest.
Bytes powerBytesOf(int knee, float gammaLow, float gammaHigh) {
    Bytes bytes;
    for (int level = 0; level < 256; ++level) {
        const bool below = level < knee;
        const int start = below ? 0 : knee;
        const int length = below ? knee : 255 - knee;
        const float place = static_cast<float>(level - start) / static_cast<float>(length);
        const float raised = length == 0 ? 1.0F : my_pow(place, below ? gammaLow : gammaHigh);
        for (std::uint32_t bits = std::bit_cast<std::uint32_t>(raised), i = 0; i < 4; ++i) {
            bytes.push_back(static_cast<std::uint8_t>(bits >> (8 * i) & 0xFFU));
        }
    }
    return bytes;
}

std::uint32_t bitsAt(const Bytes& bytes, std::size_t index) {
    std::uint32_t bits = 0;
    for (std::size_t i = 4; i > 0; --i) {
        bits = bits << 8 | bytes[4 * index + i - 1];
    }
    return bits;
}

TEST(EnhPiecewiseGamma, TakesThesePowersForTheStencil) {
    const Bytes bytes = powerBytesOf(64, 0.85F, 0.7F);
    for (std::size_t level = 0; level < 256; ++level) {
        EXPECT_EQ(bitsAt(bytes, level), numeric_values::kTattooPowers[level]) << level;
    }
}

TEST(EnhPiecewiseGamma, TakesThesePowersForTheX8StencilAtEveryKnee) {
    for (int knee = -1; knee < 256; ++knee) {
        EXPECT_EQ(digestOf(powerBytesOf(knee, 0.5F, 1.5F)),
                  numeric_values::kX8PowerDigests[static_cast<std::size_t>(knee + 1)])
            << knee;
    }
}

TEST(EnhPiecewiseGamma, GivesTheseLevelsForTheStencil) {
    const Bytes table = tableOf(64, 0.85F, 0.7F);
    for (std::size_t level = 0; level < 256; ++level) {
        EXPECT_EQ(table[level], numeric_values::kTattooLevels[level]) << level;
    }
}

TEST(EnhPiecewiseGamma, GivesTheseLevelsForTheX8StencilAtEveryKnee) {
    for (int knee = -1; knee < 256; ++knee) {
        EXPECT_EQ(digestOf(tableOf(knee, 0.5F, 1.5F)),
                  numeric_values::kX8LevelDigests[static_cast<std::size_t>(knee + 1)])
            << knee;
    }
}

TEST(EnhPiecewiseGamma, KeepsBlackTheKneeAndWhite) {
    const Bytes table = tableOf(64, 0.85F, 0.7F);
    EXPECT_EQ(table[0], 0);
    EXPECT_EQ(table[64], 64);
    EXPECT_EQ(table[255], 255);
}

TEST(EnhPiecewiseGamma, LiftsOrLowersEachPieceByItsOwnExponent) {
    const Bytes lifted = tableOf(64, 0.85F, 0.7F);
    EXPECT_GT(lifted[32], 32);
    EXPECT_GT(lifted[160], 160);
    const Bytes pushed = tableOf(128, 0.5F, 1.5F);
    // 128 × √(32 ÷ 128) = 64; 128 + 127 × (64 ÷ 127)^1.5 = 173.4.
    EXPECT_NEAR(pushed[32], 64, 1);
    EXPECT_NEAR(pushed[192], 173, 1);
}

TEST(EnhPiecewiseGamma, WithAKneeOf0HasOnlyTheUpperPiece) {
    const Bytes table = tableOf(0, 99.0F, 1.5F);
    EXPECT_EQ(table[0], 0);
    EXPECT_EQ(table[255], 255);
    // 255 × (1 ÷ 255)^1.5 = 0.06, 255 × (128 ÷ 255)^1.5 = 90.7.
    EXPECT_EQ(table[1], 0);
    EXPECT_EQ(table[128], 90);
}

TEST(EnhPiecewiseGamma, WithAKneeOfMinus1DividesEveryLevelBy256) {
    const Bytes table = tableOf(-1, 99.0F, 1.5F);
    // 256 × (65 ÷ 256)^1.5 - 1 = 31.75; 256 × (1 ÷ 256)^1.5 - 1 = -0.94, truncated to 0.
    EXPECT_EQ(table[64], 31);
    EXPECT_EQ(table[0], 0);
    EXPECT_EQ(table[255], 255);
}

TEST(EnhPiecewiseGamma, WithAKneeOf255KeepsWhite) {
    const Bytes table = tableOf(255, 0.5F, 1.5F);
    EXPECT_EQ(table[0], 0);
    // 255 × √(254 ÷ 255) = 254.5.
    EXPECT_EQ(table[254], 254);
    EXPECT_EQ(table[255], 255);
}

TEST(EnhPiecewiseGamma, WithExponentsOf0IsFlatAtTheEndOfEachPiece) {
    const Bytes table = tableOf(100, 0.0F, 0.0F);
    EXPECT_EQ(Bytes(table.begin(), table.begin() + 100), Bytes(100, 100));
    EXPECT_EQ(Bytes(table.begin() + 100, table.end()), Bytes(156, 255));
}

TEST(EnhPiecewiseGamma, StoresTheLowByteOfLevelsOutsideTheRange) {
    // 0 to a negative power counts as -1: level -64 below the knee, 64 - 191 = -127 from it.
    const Bytes table = tableOf(64, -1.0F, -1.0F);
    EXPECT_EQ(table[0], 256 - 64);
    EXPECT_EQ(table[64], 256 - 127);
}

TEST(EnhPiecewiseGamma, ChangesOneByteAPixelWhateverTheLayout) {
    QMImage image(2, 1, QM_IMG_RGB, Bytes(6, 160).data());
    enh_piecewise_gamma(image, 64, 0.85F, 0.7F);
    const std::uint8_t bent = numeric_values::kTattooLevels[160];
    EXPECT_EQ(bytesOf(image), (Bytes{bent, bent, 160, 160, 160, 160}));
}

TEST(EnhPiecewiseGamma, LeavesAnEmptyImageAlone) {
    QMImage image(3, 0, QM_IMG_GRAY);
    enh_piecewise_gamma(image, 64, 0.85F, 0.7F);
    EXPECT_EQ(image.width, 3);
    EXPECT_EQ(image.height, 0);
}

TEST(EnhPiecewiseGamma, GivesTheTableOfTheReferenceForAnyExponents) {
    for (const float low : {0.25F, 0.5F, 0.85F, 1.0F, 2.2F}) {
        for (const float high : {0.3F, 0.7F, 1.0F, 1.5F, 3.0F}) {
            for (const int knee : {-1, 0, 1, 64, 128, 200, 254, 255}) {
                const auto expected = reference::gammaTable(knee, low, high);
                EXPECT_EQ(tableOf(knee, low, high), Bytes(expected.begin(), expected.end()))
                    << knee << ", " << low << ", " << high;
            }
        }
    }
}

TEST(BendTones, TakesEveryLevelFromItsTableAtEveryWidth) {
    ToneTable table{};
    Bytes levels;
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = static_cast<std::uint8_t>(i * 167 + 41 + i / 16);
    }
    for (int i = 0; i < 1024; ++i) {
        levels.push_back(static_cast<std::uint8_t>(i * 59 + i / 256));
    }
    for (std::size_t width = 0; width <= 1024; width += width < 130 ? 1 : 149) {
        Bytes bent(width + 1, 77);
        bendTones(levels.data(), width, table, bent.data());
        for (std::size_t x = 0; x < width; ++x) {
            ASSERT_EQ(bent[x], table[levels[x]]) << x << " of " << width;
        }
        EXPECT_EQ(bent.back(), 77) << width;
    }
}

}  // namespace
