// Rows in memory as columns.
#include "lanes/columns.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

// Bytes that all differ, nearly.
std::vector<std::uint8_t> someBytes() {
    std::vector<std::uint8_t> bytes(1000);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(i * 7 + i / 256);
    }
    return bytes;
}

template <typename Some>
void expectColumns(std::ptrdiff_t distance) {
    const std::vector<std::uint8_t> bytes = someBytes();
    const std::uint8_t* first = bytes.data() + 500;
    const auto columns = lanes::loadColumns<Some>(first, distance);
    for (std::ptrdiff_t c = 0; c < lanes::columnsAtOnce; ++c) {
        std::array<typename Some::Number, Some::count> lanesOfColumn{};
        lanes::store(columns[static_cast<std::size_t>(c)], lanesOfColumn.data());
        for (std::ptrdiff_t r = 0; r < Some::count; ++r) {
            EXPECT_EQ(lanesOfColumn[static_cast<std::size_t>(r)], first[r * distance + c])
                << "row " << r << ", column " << c;
        }
    }
}

TEST(LoadColumns, TakesRowsThatLieAnyDistanceApart) {
    for (const std::ptrdiff_t distance : {-30, -1, 0, 1, 5, 8, 29}) {
        expectColumns<lanes::Lanes<std::int16_t, lanes::numbersPerRegister<std::int16_t>>>(
            distance);
        expectColumns<lanes::Lanes<float, 8>>(distance);
        expectColumns<lanes::Lanes<float, 16>>(distance);
    }
}

}  // namespace
