// The separation in bands against the plain account of it on whole pages.
#include <gtest/gtest.h>

#include <random>

#include "tests/unit/content/test_page.h"

namespace {

int anyOf(std::mt19937& dice, int least, int most) {
    return least + static_cast<int>(dice() % static_cast<unsigned>(most - least + 1));
}

void drawSomething(TestPage& page, std::mt19937& dice) {
    const int left = anyOf(dice, -10, page.columns());
    const int top = anyOf(dice, -10, page.rows());
    const int width = anyOf(dice, 1, 70);
    const int height = anyOf(dice, 1, 70);
    const int level = anyOf(dice, 0, 3) == 0 ? 255 : anyOf(dice, 0, 255);
    switch (anyOf(dice, 0, 5)) {
        case 0:
            return page.fill(left, top, width, height, level);
        case 1:
            return page.shade(left, top, width, height, level, anyOf(dice, 0, 255));
        case 2:
            return page.fill(left, top, 1, height, level);
        case 3:
            return page.blur();
        default:
            return page.drawBars(left, top, height, {2, 3, 4, 2, 2, 2, 3, 4, 2, 2, 4, 3}, level);
    }
}

TestPage randomPage(int columns, int rows, std::mt19937& dice) {
    TestPage page(columns, rows);
    for (int things = anyOf(dice, 0, 8); things > 0; --things) {
        drawSomething(page, dice);
    }
    const int noise = anyOf(dice, 0, 2) * 4;
    for (int y = 0; noise > 0 && y < rows; ++y) {
        for (int x = 0; x < columns; ++x) {
            page.at(x, y) = std::clamp(page.at(x, y) + anyOf(dice, -noise, noise), 0, 255);
        }
    }
    return page;
}

void expectReference(const TestPage& page, unsigned dpi) {
    ASSERT_EQ(separated(page, dpi),
              reference::separatedContent(page.levels(), static_cast<int>(dpi)))
        << page.columns() << " x " << page.rows() << ", " << dpi << " dpi";
}

TEST(ContentReference, EveryWidthComesOutAsThePlainAccountSays) {
    std::mt19937 dice(1);
    for (int columns = 1; columns <= 130; ++columns) {
        expectReference(randomPage(columns, anyOf(dice, 1, 60), dice), 203);
    }
}

TEST(ContentReference, EveryHeightComesOutAsThePlainAccountSays) {
    std::mt19937 dice(2);
    for (int rows = 1; rows <= 130; ++rows) {
        expectReference(randomPage(anyOf(dice, 1, 60), rows, dice), 203);
    }
}

TEST(ContentReference, EveryResolutionComesOutAsThePlainAccountSays) {
    std::mt19937 dice(3);
    for (const unsigned dpi : {0U, 100U, 150U, 203U, 300U, 305U, 400U, 600U, 1200U}) {
        for (int i = 0; i < 10; ++i) {
            expectReference(randomPage(anyOf(dice, 60, 200), anyOf(dice, 60, 200), dice), dpi);
        }
    }
}

TEST(ContentReference, WholeLabelsComeOutAsThePlainAccountSays) {
    std::mt19937 dice(4);
    for (int i = 0; i < 3; ++i) {
        TestPage page = randomPage(812, 406, dice);
        for (int things = 0; things < 20; ++things) {
            drawSomething(page, dice);
        }
        expectReference(page, 203);
    }
}

}  // namespace
