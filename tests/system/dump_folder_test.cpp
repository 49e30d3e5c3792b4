// A folder for dumps that has no room for them. What is dumped, or is not, changes no print.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/statvfs.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "tests/system/comparison.h"
#include "tests/system/fault_job.h"
#include "tests/system/running_filter.h"
#include "tests/system/test_job.h"

namespace {

constexpr const char* dumpFolder = "/var/spool/cups/tmp";
constexpr std::size_t mebibyte = std::size_t{1} << 20;

/// Has this process and those that it starts find a small file system of their own in the place of
/// the folder. Needs root.
class SmallDumpFolder {
public:
    explicit SmallDumpFolder(std::size_t bytes) {
        const std::string size = "mode=1770,size=" + std::to_string(bytes);
        if (unshare(CLONE_NEWNS) != 0 ||
            mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount("small", dumpFolder, "tmpfs", 0, size.c_str()) != 0) {
            throw std::runtime_error("no file system of its own for the dumps");
        }
    }
    ~SmallDumpFolder() { umount(dumpFolder); }
    SmallDumpFolder(const SmallDumpFolder&) = delete;
    SmallDumpFolder& operator=(const SmallDumpFolder&) = delete;

    static std::size_t freeBytes() {
        struct statvfs status = {};
        statvfs(dumpFolder, &status);
        return status.f_bavail * status.f_frsize;
    }
};

std::size_t count(const std::string& log, const std::string& text) {
    std::size_t times = 0;
    for (std::size_t at = log.find(text); at != std::string::npos; at = log.find(text, at + 1)) {
        ++times;
    }
    return times;
}

constexpr const char* noDump = "\nKestoPrinter::saveImage: unable to open the file ";
constexpr const char* reason =
    "\nERROR:Pages are not dumped: less than 64 MiB of the disk would stay free\n";

class DumpFolder : public testing::Test {
protected:
    // 200 × 200 bytes behind 1078 of header and palette: 11 memory pages of a tmpfs.
    static constexpr std::size_t dumpBytes = std::size_t{11} * 4096;

    const TemporaryFolder folder;

    static reference::Job labels(std::size_t number) {
        return labelJob(std::vector<reference::Page>(number, greyPage(200, 200)));
    }
    // All pages are printed, whatever becomes of their dumps.
    std::string logOf(const reference::Job& job) const {
        const FilterResult result = runFilter(callFor(job, folder));
        EXPECT_EQ(result.status, 0);
        expectSameBytes(reference::runJob(job).standardOutput, result.standardOutput, "output");
        return result.standardError;
    }
};

TEST_F(DumpFolder, OnASmallDiskStaysEmptyAndSaysWhyOnceInAJob) {
    const SmallDumpFolder small(20 * mebibyte);
    for (int job = 0; job < 2; ++job) {
        const SpoolFiles files;
        const std::string log = logOf(labels(3));
        EXPECT_EQ(count(log, noDump), 6U);
        EXPECT_EQ(count(log, reason), 1U);
        EXPECT_TRUE(files.takeDumps().empty());
    }
    EXPECT_EQ(SmallDumpFolder::freeBytes(), 20 * mebibyte);
}

TEST_F(DumpFolder, IsFilledUntil64MebibytesAreLeftAndAllOf300LabelsPrint) {
    const SmallDumpFolder small(66 * mebibyte);
    const SpoolFiles files;
    const std::string log = logOf(labels(300));
    EXPECT_GE(SmallDumpFolder::freeBytes(), 64 * mebibyte);
    EXPECT_LT(SmallDumpFolder::freeBytes(), 64 * mebibyte + dumpBytes);
    const std::size_t dumps = files.takeDumps().size();
    EXPECT_EQ(count(log, noDump), 600 - dumps);
    EXPECT_EQ(count(log, reason), 1U);
}

TEST_F(DumpFolder, ThatIsLargeEnoughTakesEveryDump) {
    const SmallDumpFolder large(64 * mebibyte + 6 * dumpBytes);
    const SpoolFiles files;
    const std::string log = logOf(labels(3));
    EXPECT_EQ(files.takeDumps().size(), 6U);
    EXPECT_EQ(count(log, noDump), 0U);
    EXPECT_EQ(count(log, reason), 0U);
}

// The streams are pipes: the limit is one of files.
TEST_F(DumpFolder, WhereADumpEndsInItsMiddleChangesNoPrint) {
    constexpr std::size_t most = 5000;
    const reference::Job job = labels(2);
    const SpoolFiles files;
    FilterCall call = callFor(job, folder);
    call.fileSize = most;
    const MemoryFile input(call.standardInput);
    Pipe output;
    output.makeRoomFor(mebibyte);
    const Pipe log;
    log.makeRoomFor(mebibyte);
    EXPECT_EQ(
        waitForEnd(startFilter(call, {input.descriptor(), output.writeEnd(), log.writeEnd()})), 0);
    output.closeWriteEnd();
    expectSameBytes(reference::runJob(job).standardOutput, output.read(mebibyte), "output");
    EXPECT_EQ(complaintsIn(log.read(mebibyte)), reference::Lines());
    const std::vector<DumpFile> dumps = files.takeDumps();
    ASSERT_EQ(dumps.size(), 4U);
    EXPECT_TRUE(std::all_of(dumps.begin(), dumps.end(),
                            [](const DumpFile& dump) { return dump.content.size() <= most; }));
}

}  // namespace
