// Blank edges in the log of a page, and nowhere else.
#include <array>
#include <regex>

#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

// Row 3 of six rows of 8 bytes has content in its first and its last column.
Bytes oneRow() {
    Bytes page(48, 0);
    page[24] = 9;
    page[31] = 9;
    return page;
}

class BlankEdges : public testing::Test {
protected:
    SpoolDumps dumps;
    TestPrinter printer;

    std::string print(const Bytes& page, std::size_t bytesPerLine, std::size_t height,
                      std::size_t width) {
        return errorOutputOf([&] { printer.printImage(page.data(), bytesPerLine, height, width); });
    }
    std::string printOneRow(unsigned char edges) {
        printer.setRemoveBlankEdges(edges);
        return print(oneRow(), 8, 6, 8);
    }
    static bool holds(const std::string& log, const std::string& line) {
        return log.find("DEBUG:printImage: " + line + "\n") != std::string::npos;
    }
    static bool counts(const std::string& log, std::size_t top, std::size_t bottom,
                       std::size_t height) {
        return log.find("number of top blank lines: " + std::to_string(top) +
                        ", number of bottom blank lines: " + std::to_string(bottom) +
                        ", adjusted height: " + std::to_string(height) + "\n") != std::string::npos;
    }
};

constexpr const char* bottomLine =
    "Removal of bottom blank edges detected, number of bottom blank lines: 4";
constexpr const char* topLine = "Removal of top blank edges detected, number of top blank lines: 2";

TEST_F(BlankEdges, AreNotMeasuredWhenRemovalIsOff) {
    const std::string log = printOneRow(0);
    EXPECT_EQ(log.find("Removal of"), std::string::npos);
    EXPECT_EQ(log.find("Adjusted"), std::string::npos);
    EXPECT_TRUE(counts(log, 0, 0, 6));
}

TEST_F(BlankEdges, AreMeasuredAtTheTopOnlyForValue2) {
    const std::string log = printOneRow(2);
    EXPECT_TRUE(holds(log, topLine));
    EXPECT_EQ(log.find("Removal of bottom"), std::string::npos);
    EXPECT_EQ(log.find("Adjusted"), std::string::npos);
    EXPECT_TRUE(counts(log, 2, 0, 6));
}

TEST_F(BlankEdges, AreMeasuredAtTheBottomOnlyForValue8) {
    const std::string log = printOneRow(8);
    EXPECT_TRUE(holds(log, bottomLine));
    EXPECT_EQ(log.find("Removal of top"), std::string::npos);
    EXPECT_TRUE(holds(log, "Adjusted image height to 4, pointer offset by 0 bytes"));
    EXPECT_TRUE(counts(log, 0, 4, 4));
}

TEST_F(BlankEdges, AreMeasuredAtTheBottomFirstForValue10) {
    const std::string log = printOneRow(10);
    ASSERT_TRUE(holds(log, bottomLine));
    ASSERT_TRUE(holds(log, topLine));
    EXPECT_LT(log.find(bottomLine), log.find(topLine));
    EXPECT_TRUE(holds(log, "Adjusted image height to 2, pointer offset by 16 bytes"));
    EXPECT_TRUE(counts(log, 2, 4, 2));
}

TEST_F(BlankEdges, AreNotMeasuredForOtherValues) {
    const std::string log = printOneRow(0xF5);
    EXPECT_EQ(log.find("Removal of"), std::string::npos);
    EXPECT_TRUE(counts(log, 0, 0, 6));
}

TEST_F(BlankEdges, MoveTheLoggedAddressByTheRowsAtTheTop) {
    const std::string log = printOneRow(10);
    std::smatch match;
    ASSERT_TRUE(std::regex_search(log, match, std::regex("pointer address: ([0-9]+),")));
    const auto adjusted = std::stoull(match[1]);
    ASSERT_TRUE(std::regex_search(log, match, std::regex("result, address: 0x([0-9a-f]+)")));
    EXPECT_EQ(adjusted, std::stoull(match[1], nullptr, 16) + 16);
}

TEST_F(BlankEdges, OfABlankPageAreNotAdjustedFor) {
    printer.setRemoveBlankEdges(10);
    const std::string log = print(Bytes(48, 0), 8, 6, 8);
    EXPECT_EQ(log.find("Adjusted"), std::string::npos);
    EXPECT_TRUE(counts(log, 6, 0, 6));
}

TEST_F(BlankEdges, LeaveSkippedColumnsOut) {
    printer.setSkipRightPixels(3);
    Bytes page(48, 0);
    page[31] = 9;
    printer.setRemoveBlankEdges(10);
    EXPECT_TRUE(counts(print(page, 8, 6, 8), 6, 0, 6));
}

TEST_F(BlankEdges, IgnoreASkipThatIsLongerThanTheRow) {
    printer.setSkipRightPixels(9);
    EXPECT_TRUE(counts(printOneRow(10), 2, 4, 2));
}

// With the width as their distance, rows 0 to 2 of 8 bytes start at bytes 0, 4 and 8.
TEST_F(BlankEdges, AreSoughtInRowsAsFarApartAsThePageIsWide) {
    Bytes page(24, 0);
    page[11] = 9;
    printer.setRemoveBlankEdges(10);
    EXPECT_TRUE(counts(print(page, 8, 3, 4), 0, 3, 3));
    page[11] = 0;
    page[16] = 9;
    EXPECT_TRUE(counts(print(page, 8, 3, 4), 3, 0, 3));
}

TEST_F(BlankEdges, DoNotChangeTheBytesThatArePrinted) {
    for (const auto edges : std::to_array<unsigned char>({0, 2, 8, 10})) {
        printOneRow(edges);
    }
    ASSERT_EQ(printer.pages.size(), 4U);
    EXPECT_EQ(printer.pages[0].bits.size(), 48U);
    EXPECT_EQ(printer.pages[1], printer.pages[0]);
    EXPECT_EQ(printer.pages[2], printer.pages[0]);
    EXPECT_EQ(printer.pages[3], printer.pages[0]);
}

}  // namespace
