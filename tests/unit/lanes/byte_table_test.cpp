// Tables of bytes.
#include "lanes/byte_table.h"

#include <gtest/gtest.h>

#include <array>

namespace {

TEST(ByteTable, GivesTheEntryOfEveryByteInEveryPlace) {
    std::array<std::uint8_t, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = static_cast<std::uint8_t>(i * 109 + 3 + i / 16);
    }
    const lanes::ByteTable inRegisters(table.data());
    constexpr std::size_t block = lanes::ByteTable::block;
    for (std::size_t first = 0; first < 256; ++first) {
        std::array<std::uint8_t, block> bytes{};
        for (std::size_t i = 0; i < block; ++i) {
            bytes[i] = static_cast<std::uint8_t>(first + 85 * i);
        }
        std::array<std::uint8_t, block> found{};
        inRegisters.lookUp(bytes.data(), found.data());
        for (std::size_t i = 0; i < block; ++i) {
            EXPECT_EQ(found[i], table[bytes[i]]) << first << ", place " << i;
        }
    }
}

}  // namespace
