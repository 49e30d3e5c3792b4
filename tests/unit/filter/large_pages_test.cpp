// Blocks as large as pages of paper.
#include <gtest/gtest.h>

#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "filter/page_buffer.h"
#include "image/malloc_buffer.h"
#include "image/raster_image.h"

namespace {

constexpr std::size_t megabyte = std::size_t{1} << 20U;

/// Whether the system was asked for large pages where `address` lies.
bool hasAdvice(const void* address) {
    const auto place = reinterpret_cast<std::uintptr_t>(address);
    std::ifstream maps("/proc/self/smaps");
    std::string line;
    bool isInside = false;
    while (std::getline(maps, line)) {
        std::uintptr_t begin = 0;
        std::uintptr_t end = 0;
        if (std::sscanf(line.c_str(), "%" SCNxPTR "-%" SCNxPTR " ", &begin, &end) == 2) {
            isInside = begin <= place && place < end;
        } else if (isInside && line.rfind("VmFlags:", 0) == 0) {
            return line.find(" hg") != std::string::npos;
        }
    }
    ADD_FAILURE() << "no such place";
    return false;
}

bool systemHasLargePages() {
    return std::filesystem::exists("/sys/kernel/mm/transparent_hugepage");
}

TEST(PreferLargePages, IsWhatABufferOfManyMegabytesDoes) {
    PageBuffer buffer;
    ASSERT_TRUE(buffer.growTo(9 * megabyte));
    EXPECT_EQ(hasAdvice(buffer.data() + 4 * megabyte), systemHasLargePages());
}

TEST(PreferLargePages, IsWhatAnImageOfManyMegabytesDoes) {
    RasterImage image;
    ASSERT_NE(image.Create(3000, 3000, 8, 0), nullptr);
    EXPECT_EQ(hasAdvice(image.GetBits(1500)), systemHasLargePages());
}

TEST(PreferLargePages, KeepsWhatIsInTheBlock) {
    const std::size_t size = 5 * megabyte;
    const MallocBuffer block(static_cast<unsigned char*>(std::malloc(size)));
    ASSERT_TRUE(block);
    for (std::size_t i = 0; i < size; ++i) {
        block[i] = static_cast<unsigned char>(i % 251);
    }
    preferLargePages(block.get(), size);
    for (std::size_t i = 0; i < size; ++i) {
        ASSERT_EQ(block[i], i % 251) << i;
    }
}

TEST(PreferLargePages, LeavesASmallBlockAndNoneAlone) {
    const MallocBuffer block(static_cast<unsigned char*>(std::malloc(megabyte)));
    ASSERT_TRUE(block);
    preferLargePages(block.get(), megabyte);
    EXPECT_FALSE(hasAdvice(block.get()));
    preferLargePages(nullptr, 9 * megabyte);
    preferLargePages(block.get(), 0);
}

}  // namespace
