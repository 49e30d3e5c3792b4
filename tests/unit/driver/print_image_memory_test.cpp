// Pages for whose buffers there is no memory.
#include <sys/resource.h>

#include "tests/unit/driver/test_support.h"

namespace {

constexpr std::size_t megabyte = 1024 * 1024;

// Address space that this process uses, in bytes.
std::size_t usedAddressSpace() {
    std::ifstream statistics("/proc/self/statm");
    std::size_t pages = 0;
    statistics >> pages;
    return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

// As long as it lives, this process cannot get much more than `room` bytes of further memory.
class MemoryLimit {
public:
    explicit MemoryLimit(std::size_t room) {
        getrlimit(RLIMIT_AS, &old_);
        rlimit limit = old_;
        limit.rlim_cur = usedAddressSpace() + room;
        setrlimit(RLIMIT_AS, &limit);
    }
    ~MemoryLimit() { setrlimit(RLIMIT_AS, &old_); }
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;

private:
    rlimit old_ = {};
};

class PageWithoutMemory : public testing::Test {
protected:
    SpoolDumps dumps;
    TestPrinter printer;

    void SetUp() override {
#ifdef KESTO_ADDRESS_SANITIZER
        GTEST_SKIP() << "the sanitizer ends the process where memory runs out";
#endif
    }
    // A page without columns: nothing but the allocations depends on its length.
    std::string print(std::size_t bytesPerLine, std::size_t room) {
        const unsigned char pixel = 0;
        return errorOutputOf([&] {
            const MemoryLimit limit(room);
            printer.printImage(&pixel, bytesPerLine, 1, 0);
        });
    }
};

TEST_F(PageWithoutMemory, ForItsFirstBufferIsGivenUpAtOnce) {
    EXPECT_EQ(print(400 * megabyte, 200 * megabyte),
              "DEBUG:printImage: Start processing image, input width: 0, height: 1, bytes per "
              "line: 419430400\n"
              "ERROR:printImage: Memory allocation failed, unable to process image, exiting "
              "processing\n"
              "DEBUG:printImage: Image processing completed\n");
    EXPECT_TRUE(printer.pages.empty());
    EXPECT_EQ(page_index, dumps.firstIndex());
}

TEST_F(PageWithoutMemory, ForItsSecondBufferIsGivenUpAfterTheRawDump) {
    const std::string log = print(150 * megabyte, 200 * megabyte);
    const std::size_t error = log.find("ERROR:");
    ASSERT_NE(error, std::string::npos);
    EXPECT_EQ(log.substr(error),
              "ERROR:printImage: Memory allocation for processing result failed, unable to "
              "continue processing\n"
              "DEBUG:printImage: Freed the allocated memory, address: (nil)\n"
              "DEBUG:printImage: Image processing completed\n");
    EXPECT_TRUE(printer.pages.empty());
    EXPECT_EQ(page_index, dumps.firstIndex() + 1);
}

}  // namespace
