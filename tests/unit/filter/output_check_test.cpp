// Whether what was written has arrived.
#include "filter/output_check.h"

#include <cerrno>

#include "tests/unit/filter/test_support.h"

namespace {

TEST(FlushedStream, HandsOnWhatWasWritten) {
    const TemporaryFolder folder;
    std::FILE* file = std::fopen(folder.path("out").c_str(), "w");
    std::fputs("CLS\r\n", file);
    EXPECT_EQ(flushStream(file), 0);
    EXPECT_EQ(readFile(folder.path("out")), "CLS\r\n");
    std::fclose(file);
}

TEST(FlushedStream, HasTheSystemsReasonForWhatItCouldNotWrite) {
    std::FILE* file = std::fopen("/dev/full", "w");
    std::fputs("CLS\r\n", file);
    EXPECT_EQ(flushStream(file), ENOSPC);
    std::fclose(file);
}

TEST(FlushedStream, RemembersWhatWasLostEarlier) {
    std::FILE* file = std::fopen("/dev/full", "w");
    std::setvbuf(file, nullptr, _IONBF, 0);
    std::fputs("CLS\r\n", file);
    EXPECT_EQ(flushStream(file), EIO);
    std::fclose(file);
}

TEST(FlushedStream, TakesNoNoticeOfOldErrorNumbers) {
    const ScratchStream stream;
    errno = EBADF;
    EXPECT_EQ(flushStream(stream.get()), 0);
}

}  // namespace
