#include "driver/blank_lines.h"

#include "tests/reference/blank_rows.h"
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

// A page of `height` rows of 8 bytes with one byte of content.
Bytes pageWithContentAt(std::size_t height, std::size_t row, std::size_t column) {
    Bytes page(height * 8, 0);
    page[row * 8 + column] = 1;
    return page;
}

std::size_t fromFront(const Bytes& page, std::size_t skipRight = 0) {
    return kestoImageCountBlankLinesFromFront(page.data(), 8, page.size() / 8, skipRight, 8);
}

std::size_t fromBack(const Bytes& page, std::size_t skipRight = 0) {
    return kestoImageCountBlankLinesFromBack(page.data(), 8, page.size() / 8, skipRight, 8);
}

TEST(BlankLinesFromFront, OfABlankPageAreItsHeight) {
    EXPECT_EQ(fromFront(Bytes(24, 0)), 3U);
}

TEST(BlankLinesFromFront, DoNotSeeContentInTheFirstRow) {
    EXPECT_EQ(fromFront(pageWithContentAt(3, 0, 0)), 3U);
}

TEST(BlankLinesFromFront, AreOneFewerThanTheRowsAboveTheContent) {
    EXPECT_EQ(fromFront(pageWithContentAt(5, 1, 0)), 0U);
    EXPECT_EQ(fromFront(pageWithContentAt(5, 3, 0)), 2U);
    EXPECT_EQ(fromFront(pageWithContentAt(5, 4, 7)), 3U);
}

TEST(BlankLinesFromFront, StopAtTheFirstOfSeveralRowsWithContent) {
    Bytes page = pageWithContentAt(6, 2, 4);
    page[4 * 8] = 200;
    EXPECT_EQ(fromFront(page), 1U);
}

TEST(BlankLinesFromFront, TakeTheRowPastTheImageForBlank) {
    Bytes page(4 * 8, 0);
    page[3 * 8] = 1;
    EXPECT_EQ(kestoImageCountBlankLinesFromFront(page.data(), 8, 3, 0, 8), 3U);
}

TEST(BlankLinesFromFront, OfOneRowAreOne) {
    EXPECT_EQ(fromFront(Bytes(8, 255)), 1U);
}

TEST(BlankLinesFromFront, OfNoRowsAreNone) {
    EXPECT_EQ(fromFront({}), 0U);
}

TEST(BlankLinesFromBack, OfABlankPageAreNone) {
    EXPECT_EQ(fromBack(Bytes(24, 0)), 0U);
}

TEST(BlankLinesFromBack, CountTheRowsDownToTheLastWithContent) {
    EXPECT_EQ(fromBack(pageWithContentAt(5, 0, 0)), 1U);
    EXPECT_EQ(fromBack(pageWithContentAt(5, 2, 7)), 3U);
    EXPECT_EQ(fromBack(pageWithContentAt(5, 4, 3)), 5U);
}

TEST(BlankLinesFromBack, StopAtTheLastOfSeveralRowsWithContent) {
    Bytes page = pageWithContentAt(6, 2, 4);
    page[4 * 8] = 200;
    EXPECT_EQ(fromBack(page), 5U);
}

TEST(BlankLinesFromBack, OfNoRowsAreNone) {
    EXPECT_EQ(fromBack({}), 0U);
}

TEST(BlankLinesSkip, LeavesOutTheLastColumns) {
    for (const std::size_t column : {5U, 6U, 7U}) {
        EXPECT_EQ(fromFront(pageWithContentAt(4, 2, column), 3), 4U) << column;
        EXPECT_EQ(fromBack(pageWithContentAt(4, 2, column), 3), 0U) << column;
    }
}

TEST(BlankLinesSkip, KeepsTheColumnsBeforeIt) {
    EXPECT_EQ(fromFront(pageWithContentAt(4, 2, 4), 3), 1U);
    EXPECT_EQ(fromBack(pageWithContentAt(4, 2, 4), 3), 3U);
}

TEST(BlankLinesSkip, OfAllColumnsLeavesNothingToSee) {
    EXPECT_EQ(fromFront(Bytes(24, 255), 8), 3U);
    EXPECT_EQ(fromBack(Bytes(24, 255), 8), 0U);
}

TEST(BlankLinesSkip, LargerThanTheRowIsIgnored) {
    EXPECT_EQ(fromFront(pageWithContentAt(4, 2, 7), 9), 1U);
    EXPECT_EQ(fromBack(pageWithContentAt(4, 2, 7), 9), 3U);
}

TEST(BlankLines, FindRowsByTheStrideAndExamineTheWidth) {
    // Rows of two bytes, five bytes apart, with content between the rows.
    const Bytes page = {0, 0, 9, 9, 9, 0, 0, 9, 9, 9, 0, 7, 9, 9, 9};
    EXPECT_EQ(kestoImageCountBlankLinesFromFront(page.data(), 2, 3, 0, 5), 1U);
    EXPECT_EQ(kestoImageCountBlankLinesFromFront(page.data(), 1, 3, 0, 5), 3U);
    EXPECT_EQ(kestoImageCountBlankLinesFromBack(page.data(), 2, 3, 0, 5), 3U);
    EXPECT_EQ(kestoImageCountBlankLinesFromBack(page.data(), 1, 3, 0, 5), 0U);
}

// A page in which about one byte in forty has content.
Bytes sparsePage(std::size_t size, std::uint32_t seed) {
    Bytes page = noise(size, seed);
    for (std::uint8_t& level : page) {
        level = level < 250 ? 0 : level;
    }
    return page;
}

TEST(BlankLines, AgreeWithTheReferenceOnSparsePages) {
    for (std::uint32_t seed = 1; seed <= 200; ++seed) {
        const reference::BlankArea area{seed % 9 + 1, seed % 7 + 1, seed % 5, seed % 9 + 3};
        const Bytes page = sparsePage(area.height * area.stride, seed);
        EXPECT_EQ(kestoImageCountBlankLinesFromFront(page.data(), area.width, area.height,
                                                     area.skipRight, area.stride),
                  reference::blankRowsFromFront(page, area))
            << "seed " << seed;
        EXPECT_EQ(kestoImageCountBlankLinesFromBack(page.data(), area.width, area.height,
                                                    area.skipRight, area.stride),
                  reference::blankRowsFromBack(page, area))
            << "seed " << seed;
    }
}

}  // namespace
