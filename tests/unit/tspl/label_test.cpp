// A label: its size, its canvas and the bitmaps that reach over its edges.
#include "tspl/label.h"

#include <gtest/gtest.h>

namespace tspl {
namespace {

constexpr std::uint64_t plenty = std::uint64_t{1} << 30U;

LabelSize sizeOf(const char* width, const char* height) {
    return {parseLength(width).value(), parseLength(height).value()};
}

// A bitmap at (x, y) of this many bytes and rows.
void note(Label& label, std::int64_t x, std::int64_t y, std::int32_t rowBytes, std::int32_t rows,
          std::uint64_t offset = 0) {
    label.noteBitmap({{offset, 1}, 0, 0, rowBytes, rows, 0}, x, y);
}

void expectDots(Label& label, std::int64_t width, std::int64_t height, int dpi) {
    const LabelDots dots = label.dots();
    EXPECT_EQ(dots.width, width);
    EXPECT_EQ(dots.height, height);
    EXPECT_EQ(dots.dpi, dpi);
}

TEST(Label, HasTheUsualResolutionWithoutABitmap) {
    Label label(std::nullopt, plenty);
    EXPECT_TRUE(label.setSize(sizeOf("4", "6")));
    expectDots(label, 812, 1218, 203);
}

TEST(Label, HasTheResolutionThatItsBitmapFills) {
    Label label(std::nullopt, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("4", "6")));
    note(label, 0, 0, 150, 10);
    expectDots(label, 1200, 1800, 300);
    note(label, 0, 0, 300, 10);
    expectDots(label, 2400, 3600, 600);
}

TEST(Label, CountsTheDotsBeforeABitmapToItsWidth) {
    Label label(std::nullopt, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("4", "6")));
    note(label, 600, 0, 75, 10);
    expectDots(label, 1200, 1800, 300);
}

TEST(Label, KeepsItsResolutionForTheNextLabelWithoutABitmap) {
    Label label(std::nullopt, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("4", "6")));
    note(label, 0, 0, 150, 10);
    expectDots(label, 1200, 1800, 300);
    label.clear();
    expectDots(label, 1200, 1800, 300);
    ASSERT_TRUE(label.setSize(sizeOf("2", "1")));
    expectDots(label, 600, 300, 300);
}

TEST(Label, KeepsItsResolutionForASizeInDots) {
    Label label(std::nullopt, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("4", "6")));
    note(label, 0, 0, 150, 10);
    expectDots(label, 1200, 1800, 300);
    ASSERT_TRUE(label.setSize(sizeOf("800 dot", "40 dot")));
    note(label, 0, 0, 100, 10);
    expectDots(label, 800, 40, 300);
}

TEST(Label, TakesTheGivenResolutionWhateverItsBitmaps) {
    Label label(305, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("4", "6")));
    note(label, 0, 0, 300, 10);
    expectDots(label, 1220, 1830, 305);
}

TEST(Label, InDotsHasThatManyAtAnyResolution) {
    Label label(std::nullopt, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("800 dot", "40 dot")));
    note(label, 0, 0, 1, 1);
    expectDots(label, 800, 40, 203);
    Label fine(600, plenty);
    ASSERT_TRUE(fine.setSize(sizeOf("800 dot", "40 dot")));
    expectDots(fine, 800, 40, 600);
}

// 4.2 mm are 99.213 dots at 600 dpi; half of the last decimal is 1.181 dots.
TEST(Label, EndsAtItsBitmapWhenTheDecimalsCannotTellThemApart) {
    Label label(600, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("4.2 mm", "4.2 mm")));
    expectDots(label, 99, 99, 600);
    note(label, 92, 0, 1, 98);
    expectDots(label, 100, 99, 600);
    note(label, 0, 2, 1, 98);
    expectDots(label, 100, 100, 600);
    // 13 bytes may hold a page of 97 to 104 dots, of which 100 are the most that 4.2 mm can be.
    note(label, 0, 3, 13, 98);
    expectDots(label, 100, 99, 600);
}

TEST(Label, OfAWholeNumberOfMillimetresEndsWhereItSays) {
    Label label(600, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("4 mm", "4.20 mm")));
    note(label, 0, 0, 12, 100);
    expectDots(label, 94, 99, 600);
}

TEST(Label, EndsAtItsBitmapOf8DotsToTheMillimetreAt203Dpi) {
    Label label(std::nullopt, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("100 mm", "150 mm")));
    note(label, 0, 0, 100, 1200);
    expectDots(label, 800, 1200, 203);
}

TEST(Label, HasItsWholeCanvasWhenItHas8DotsToTheMillimetre) {
    Label label(203, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("400 mm", "500 mm")));
    note(label, 0, 0, 400, 4000);
    expectDots(label, 3200, 4000, 203);
    EXPECT_GE(label.canvas().width(), 3200);
    EXPECT_GE(label.canvas().height(), 4000);
}

TEST(Label, GoesOnPastASmallBitmap) {
    Label label(203, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("101.1 mm", "152.4 mm")));
    note(label, 0, 0, 100, 1000);
    expectDots(label, 808, 1218, 203);
}

TEST(Label, WithoutASizeHasNoDotsUntilSomethingIsDrawn) {
    Label label(std::nullopt, plenty);
    expectDots(label, 0, 0, 203);
}

TEST(Label, WithoutASizeEndsWhereItsBitmapsDo) {
    Label label(std::nullopt, plenty);
    note(label, 10, 20, 2, 5);
    note(label, 0, 0, 1, 30);
    expectDots(label, 26, 30, 203);
}

TEST(Label, WithoutASizeEndsWhereItsLastDotBurns) {
    Label label(300, plenty);
    label.canvas().fill({3, 4, 10, 2});
    expectDots(label, 13, 6, 300);
    note(label, 0, 0, 1, 40);
    expectDots(label, 13, 40, 300);
}

TEST(Label, WithoutASizeEndsAtItsCanvas) {
    Label label(std::nullopt, 16384 * 10);
    note(label, 16380, 5, 1, 10);
    expectDots(label, 16384, 10, 203);
    Label tiny(std::nullopt, 100);
    note(tiny, 0, 0, 1, 1);
    expectDots(tiny, 8, 0, 203);
}

TEST(Label, IsRefusedWhenItHasTooManyDots) {
    Label label(203, 1000);
    EXPECT_FALSE(label.setSize(sizeOf("1", "1")));
    expectDots(label, 0, 0, 0);
    label.canvas().fill({0, 0, 1, 1});
    EXPECT_EQ(label.canvas().burntDots(), 0U);
}

TEST(Label, IsRefusedForItsDotsAtTheFinestResolutionWhenNoneIsGiven) {
    const std::uint64_t most = 310 * 310;
    EXPECT_TRUE(Label(300, most).setSize(sizeOf("1", "1")));
    EXPECT_FALSE(Label(std::nullopt, most).setSize(sizeOf("1", "1")));
    EXPECT_TRUE(Label(std::nullopt, most).setSize(sizeOf("0.50", "0.50")));
}

TEST(Label, IsRefusedForAbsurdSizes) {
    const std::string huge(300, '9');
    for (const char* height : {"0", "0.001", "1", "0 dot", "1 mm"}) {
        Label label(std::nullopt, plenty);
        EXPECT_FALSE(label.setSize(sizeOf(huge.c_str(), height)));
        EXPECT_FALSE(label.setSize(sizeOf(height, huge.c_str())));
        expectDots(label, 0, 0, 0);
    }
    EXPECT_FALSE(Label(std::nullopt, plenty).setSize(sizeOf("40000 dot", "40000 dot")));
}

TEST(Label, IsRefusedEachTimeTheSameSizeComes) {
    Label label(203, 1000);
    EXPECT_FALSE(label.setSize(sizeOf("1", "1")));
    EXPECT_FALSE(label.setSize(sizeOf("1", "1")));
    EXPECT_TRUE(label.setSize(sizeOf("0.10", "0.10")));
    EXPECT_FALSE(label.setSize(sizeOf("1", "1")));
}

TEST(Label, OfAnotherSizeIsBareAndForgetsItsBitmaps) {
    Label label(203, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("20 dot", "10 dot")));
    label.canvas().fill({0, 0, 30, 1});
    note(label, 0, 0, 9, 90);
    ASSERT_TRUE(label.setSize(sizeOf("20 dot", "11 dot")));
    EXPECT_EQ(label.canvas().burntDots(), 0U);
    EXPECT_EQ(label.canvas().dotsOutside(), 0U);
    EXPECT_FALSE(label.widestOverhang(label.dots()));
    EXPECT_FALSE(label.highestOverhang(label.dots()));
}

TEST(Label, OfTheSameSizeKeepsWhatIsDrawn) {
    Label label(203, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("20 dot", "10 dot")));
    label.canvas().fill({0, 0, 3, 1});
    ASSERT_TRUE(label.setSize(sizeOf("20 dots", "10 DOT")));
    EXPECT_EQ(label.canvas().burntDots(), 3U);
}

TEST(Label, OfTheSameSizeInOtherWordsKeepsWhatIsDrawn) {
    Label label(300, plenty);
    const std::pair<const char*, const char*> spellings[] = {
        {"12 mm", "12.0 mm"}, {"8.9 mm", "8.90 mm"}, {"25.4 mm", "1"}, {"2 inch", "50.8 mm"}};
    for (const auto& [first, second] : spellings) {
        ASSERT_TRUE(label.setSize(sizeOf(first, first)));
        label.clear();
        label.canvas().fill({0, 0, 3, 1});
        ASSERT_TRUE(label.setSize(sizeOf(second, second)));
        EXPECT_EQ(label.canvas().burntDots(), 3U) << second;
    }
}

TEST(Label, OfASizeThatDiffersByLittleIsBare) {
    Label label(300, plenty);
    const std::pair<const char*, const char*> sizes[] = {
        {"12 mm", "12.01 mm"}, {"1", "25.41 mm"}, {"20 dot", "20 mm"}, {"20 dot", "20"}};
    for (const auto& [first, second] : sizes) {
        ASSERT_TRUE(label.setSize(sizeOf(first, first)));
        label.canvas().fill({0, 0, 3, 1});
        ASSERT_TRUE(label.setSize(sizeOf(second, second)));
        EXPECT_EQ(label.canvas().burntDots(), 0U) << second;
    }
}

TEST(Label, IsBareAndForgetsItsBitmapsWhenCleared) {
    Label label(203, plenty);
    ASSERT_TRUE(label.setSize(sizeOf("20 dot", "10 dot")));
    label.canvas().fill({0, 0, 30, 1});
    note(label, 0, 0, 9, 90);
    label.clear();
    EXPECT_EQ(label.canvas().burntDots(), 0U);
    EXPECT_FALSE(label.widestOverhang(label.dots()));
    EXPECT_FALSE(label.highestOverhang(label.dots()));
}

TEST(LabelOverhang, IsNoneForBitmapsThatEndAtTheEdges) {
    Label label(203, plenty);
    note(label, 4, 3, 2, 7);
    EXPECT_FALSE(label.widestOverhang({20, 10, 203}));
    EXPECT_FALSE(label.highestOverhang({20, 10, 203}));
}

TEST(LabelOverhang, IsNoneForTheDotsThatFillTheLastByte) {
    Label label(203, plenty);
    note(label, 0, 0, 2, 1);
    for (std::int64_t width = 9; width <= 16; ++width) {
        EXPECT_FALSE(label.widestOverhang({width, 10, 203})) << width;
    }
    EXPECT_TRUE(label.widestOverhang({8, 10, 203}));
}

TEST(LabelOverhang, IsOfTheBitmapThatReachesFarthest) {
    Label label(203, plenty);
    note(label, 0, 0, 3, 11, 100);
    note(label, 10, 0, 4, 9, 200);
    note(label, 0, 5, 2, 30, 300);
    const auto widest = label.widestOverhang({16, 10, 203});
    ASSERT_TRUE(widest);
    EXPECT_EQ(widest->place.offset, 200U);
    EXPECT_EQ(widest->end, 42);
    const auto highest = label.highestOverhang({16, 10, 203});
    ASSERT_TRUE(highest);
    EXPECT_EQ(highest->place.offset, 300U);
    EXPECT_EQ(highest->end, 35);
}

TEST(LabelOverhang, IsOfTheFirstOfSeveralThatReachAsFar) {
    Label label(203, plenty);
    note(label, 0, 0, 3, 30, 100);
    note(label, 8, 10, 2, 20, 200);
    EXPECT_EQ(label.widestOverhang({16, 10, 203})->place.offset, 100U);
    EXPECT_EQ(label.highestOverhang({16, 10, 203})->place.offset, 100U);
}

TEST(LabelOverhang, IsToTheRowAtTheLowerEdge) {
    Label label(203, plenty);
    note(label, 0, 1, 1, 10);
    EXPECT_TRUE(label.highestOverhang({8, 10, 203}));
    EXPECT_FALSE(label.highestOverhang({8, 11, 203}));
}

TEST(LabelOverhang, TakesTheLargestNumbers) {
    Label label(203, plenty);
    note(label, std::int64_t{2} * INT32_MAX, std::int64_t{2} * INT32_MAX, INT32_MAX, INT32_MAX);
    EXPECT_EQ(label.widestOverhang({8, 8, 203})->end, std::int64_t{10} * INT32_MAX);
    EXPECT_EQ(label.highestOverhang({8, 8, 203})->end, std::int64_t{3} * INT32_MAX);
    note(label, std::int64_t{2} * INT32_MIN, std::int64_t{2} * INT32_MIN, 1, 1);
    EXPECT_EQ(label.widestOverhang({8, 8, 203})->end, std::int64_t{10} * INT32_MAX);
}

// Nothing stands at its place.
TEST(LabelOverhang, IsNoneForABitmapOfNoDots) {
    Label label(203, plenty);
    note(label, 100, 0, 0, 5);
    note(label, 0, 100, 5, 0);
    EXPECT_FALSE(label.widestOverhang({40, 40, 203}));
    EXPECT_FALSE(label.highestOverhang({40, 40, 203}));
}

}  // namespace
}  // namespace tspl
