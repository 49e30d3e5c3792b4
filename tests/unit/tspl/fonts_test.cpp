// The printer's fonts and the size of their characters.
#include "tspl/fonts.h"

#include <gtest/gtest.h>

namespace tspl {
namespace {

struct Cell {
    const char* name;
    std::int32_t width;
    std::int32_t height;
};

TEST(FontOf, KnowsTheCellsOfTheBuiltInFonts) {
    constexpr Cell cells[] = {{"1", 8, 12},  {"2", 12, 20},        {"3", 16, 24},
                              {"4", 24, 32}, {"5", 32, 48},        {"6", 14, 19},
                              {"7", 21, 27}, {"8", 14, 25},        {"TST24.BF2", 24, 24},
                              {"K", 24, 24}, {"tss24.bf2", 24, 24}};
    for (const Cell& cell : cells) {
        const auto font = fontOf(cell.name);
        ASSERT_TRUE(font) << cell.name;
        EXPECT_EQ(font->cellWidth, cell.width) << cell.name;
        EXPECT_EQ(font->cellHeight, cell.height) << cell.name;
        EXPECT_FALSE(font->isScalable()) << cell.name;
    }
}

TEST(FontOf, KnowsTheScalableFonts) {
    for (const char* name : {"0", "ROMAN.TTF", "roman.ttf"}) {
        const auto font = fontOf(name);
        ASSERT_TRUE(font) << name;
        EXPECT_TRUE(font->isScalable()) << name;
    }
}

TEST(FontOf, KnowsNoOtherFont) {
    for (const char* name : {"", "9", "10", "ARIAL.TTF", "3 ", "\"3\""}) {
        EXPECT_FALSE(fontOf(name)) << name;
    }
}

TEST(StandInOf, IsScalableForFilesOfOutlines) {
    EXPECT_TRUE(standInOf("ARIAL.TTF").isScalable());
    EXPECT_TRUE(standInOf("arial.otf").isScalable());
    EXPECT_FALSE(standInOf("ARIAL.FNT").isScalable());
}

TEST(IsFontFile, HoldsOfNamesWithAnEnding) {
    for (const char* name : {"ARIAL.TTF", "a.b", "A.B.C"}) {
        EXPECT_TRUE(isFontFile(name)) << name;
    }
    for (const char* name : {"", "9", ".TTF", "ARIAL.", "ARIAL"}) {
        EXPECT_FALSE(isFontFile(name)) << name;
    }
}

TEST(IsWide, HoldsOfCharactersOfEastAsiaOnly) {
    for (const char32_t character : std::u32string(U"你あ가Ａ\u3000")) {
        EXPECT_TRUE(isWide(character)) << static_cast<unsigned>(character);
    }
    for (const char32_t character : std::u32string(U"Aä€Жα\u200B█")) {
        EXPECT_FALSE(isWide(character)) << static_cast<unsigned>(character);
    }
}

}  // namespace
}  // namespace tspl
