#include "filter/page_buffer.h"

#include <malloc.h>

#include "tests/support/sanitizers.h"
#include "tests/unit/filter/test_support.h"

namespace {

TEST(PageBuffer, IsEmptyAtFirst) {
    const PageBuffer buffer;
    EXPECT_EQ(buffer.data(), nullptr);
}

TEST(PageBuffer, HasRoomForTheSizeAskedFor) {
    PageBuffer buffer;
    ASSERT_TRUE(buffer.growTo(1000));
    ASSERT_NE(buffer.data(), nullptr);
    std::memset(buffer.data(), 7, 1000);
    EXPECT_EQ(buffer.data()[999], 7);
}

TEST(PageBuffer, KeepsItsBlockForASmallerPage) {
    PageBuffer buffer;
    ASSERT_TRUE(buffer.growTo(1000));
    const unsigned char* block = buffer.data();
    EXPECT_TRUE(buffer.growTo(10));
    EXPECT_EQ(buffer.data(), block);
    EXPECT_GE(malloc_usable_size(buffer.data()), 1000U);
    EXPECT_TRUE(buffer.growTo(1000));
    EXPECT_EQ(buffer.data(), block);
    buffer.data()[999] = 1;
}

TEST(PageBuffer, KeepsItsContentWhenItGrows) {
    PageBuffer buffer;
    ASSERT_TRUE(buffer.growTo(100));
    std::memset(buffer.data(), 7, 100);
    ASSERT_TRUE(buffer.growTo(100000));
    EXPECT_EQ(std::string(buffer.data(), buffer.data() + 100), std::string(100, 7));
    buffer.data()[99999] = 1;
}

#ifndef KESTO_ADDRESS_SANITIZER
TEST(PageBuffer, StaysAsItWasWhenMemoryIsShort) {
    PageBuffer buffer;
    ASSERT_TRUE(buffer.growTo(4));
    std::memset(buffer.data(), 7, 4);
    const unsigned char* block = buffer.data();
    EXPECT_FALSE(buffer.growTo(SIZE_MAX / 2));
    EXPECT_EQ(buffer.data(), block);
    EXPECT_EQ(buffer.data()[3], 7);
    EXPECT_TRUE(buffer.growTo(8));
}
#endif

}  // namespace
