// Files that are there whole or not at all.
#include "sizes/command/output_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "sizes/command/failure.h"
#include "sizes/command/input_file.h"
#include "tests/support/child_process.h"
#include "tests/support/temporary_folder.h"

namespace sizes {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

mode_t permissionsOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(lstat(path.c_str(), &status), 0);
    return status.st_mode & 07777;
}

std::string reasonAgainst(const std::string& path) {
    try {
        writeFile(path, "new");
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "none";
}

TEST(WriteFile, MakesAFile) {
    const TemporaryFolder folder;
    writeFile(folder.path("a.ppd"), "text");
    EXPECT_EQ(::readFile(folder.path("a.ppd")), "text");
    EXPECT_EQ(folder.names(), Names{"a.ppd"});
}

TEST(WriteFile, MakesAFileInTheCurrentFolder) {
    const TemporaryFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.path(""));
    writeFile("a.ppd", "text");
    fs::current_path(before);
    EXPECT_EQ(::readFile(folder.path("a.ppd")), "text");
    EXPECT_EQ(folder.names(), Names{"a.ppd"});
}

TEST(WriteFile, TakesThePermissionsOfEveryNewFile) {
    const TemporaryFolder folder;
    const mode_t before = umask(027);
    writeFile(folder.path("a"), "");
    umask(0);
    writeFile(folder.path("b"), "");
    umask(before);
    EXPECT_EQ(permissionsOf(folder.path("a")), 0640U);
    EXPECT_EQ(permissionsOf(folder.path("b")), 0666U);
}

TEST(WriteFile, KeepsThePermissionsOfTheFileThatItReplaces) {
    const TemporaryFolder folder;
    folder.write("a", "old and longer");
    fs::permissions(folder.path("a"), fs::perms(0604));
    writeFile(folder.path("a"), "new");
    EXPECT_EQ(::readFile(folder.path("a")), "new");
    EXPECT_EQ(permissionsOf(folder.path("a")), 0604U);
}

// CUPS's filters read descriptions as members of the group lp.
TEST(WriteFile, KeepsTheOwnerOfTheFileThatItReplaces) {
    ASSERT_EQ(geteuid(), 0U) << "run this as root: it gives files away";
    constexpr uid_t otherUser = 12345;
    constexpr gid_t otherGroup = 54321;
    const TemporaryFolder folder;
    folder.write("a", "old");
    ASSERT_EQ(chown(folder.path("a").c_str(), otherUser, otherGroup), 0);
    fs::permissions(folder.path("a"), fs::perms(0640));
    writeFile(folder.path("a"), "new");
    struct stat status {};
    ASSERT_EQ(lstat(folder.path("a").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, otherUser);
    EXPECT_EQ(status.st_gid, otherGroup);
    EXPECT_EQ(status.st_mode & 07777, 0640U);
}

// A program that has the file open goes on with the one it knows.
TEST(WriteFile, DoesNotWriteIntoTheFileThatItReplaces) {
    const TemporaryFolder folder;
    folder.write("a", "old");
    fs::create_hard_link(folder.path("a"), folder.path("b"));
    writeFile(folder.path("a"), "new");
    EXPECT_EQ(::readFile(folder.path("b")), "old");
}

TEST(WriteFile, FollowsAndReplacesNoLink) {
    const TemporaryFolder folder;
    folder.write("target", "old");
    for (const char* target : {"target", "nowhere", ".", "/proc/self/fd/1"}) {
        fs::create_symlink(target, folder.path("a"));
        EXPECT_EQ(reasonAgainst(folder.path("a")),
                  folder.path("a") + ": is there and is no ordinary file");
        EXPECT_TRUE(fs::is_symlink(folder.path("a")));
        fs::remove(folder.path("a"));
    }
    EXPECT_EQ(::readFile(folder.path("target")), "old");
    EXPECT_EQ(folder.names(), Names{"target"});
}

// A terminal of the test's own: whoever breaks this as root must not lose a device of the machine.
TEST(WriteFile, ReplacesNoFolderNoPipeAndNoDevice) {
    const TemporaryFolder folder;
    fs::create_directory(folder.path("folder"));
    ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_EQ(unlockpt(terminal), 0);
    for (const std::string& path :
         {folder.path("folder"), folder.path("pipe"), std::string(ptsname(terminal))}) {
        EXPECT_EQ(reasonAgainst(path), path + ": is there and is no ordinary file");
    }
    close(terminal);
    EXPECT_EQ(folder.names(), (Names{"folder", "pipe"}));
}

TEST(WriteFile, SaysWhyThereCanBeNoFile) {
    const TemporaryFolder folder;
    folder.write("file", "");
    EXPECT_EQ(reasonAgainst("/nowhere/a"), "/nowhere/a: No such file or directory");
    EXPECT_EQ(reasonAgainst(folder.path("file/a")), folder.path("file/a") + ": Not a directory");
    const std::string longName = folder.path(std::string(256, 'a'));
    EXPECT_EQ(reasonAgainst(longName), longName + ": File name too long");
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST(WriteFile, LeavesTheFormerFileAndNothingElseWhenThereIsNoRoom) {
    const TemporaryFolder folder;
    folder.write("a", "old");
    const int status = endOfChild([&folder] {
        const rlimit limit{1000, 1000};
        setrlimit(RLIMIT_FSIZE, &limit);
        try {
            writeFile(folder.path("a"), std::string(2000, 'x'));
        } catch (const Failure& failure) {
            return failure.what() == folder.path("a") + ": File too large" ? 3 : 4;
        }
        return 0;
    });
    EXPECT_EQ(status, 3);
    EXPECT_EQ(::readFile(folder.path("a")), "old");
    EXPECT_EQ(folder.names(), Names{"a"});
}

// What the process does between two signals is not known; whatever it is, one file must be whole.
TEST(WriteFile, LeavesAWholeFileAndNothingElseWheneverItIsEnded) {
    // In memory: a busy disk takes seconds for every file.
    setenv("TMPDIR", "/dev/shm", 1);
    const TemporaryFolder folder;
    unsetenv("TMPDIR");
    const std::string first(100000, 'a');
    const std::string second(100000, 'b');
    writeFile(folder.path("a"), first);
    int ended = 0;
    for (int i = 0; i < 200; ++i) {
        const pid_t child = startChild([&] {
            // Jobs in the background of a shell script do not hear of it.
            std::signal(SIGINT, SIG_DFL);
            for (;;) {
                writeFile(folder.path("a"), first);
                writeFile(folder.path("a"), second);
            }
            return 0;
        });
        usleep(static_cast<useconds_t>(500 + i * 37 % 3000));
        kill(child, i % 2 == 0 ? SIGTERM : SIGINT);
        ended += endOf(child) == (i % 2 == 0 ? -SIGTERM : -SIGINT) ? 1 : 0;
        ASSERT_EQ(folder.names(), Names{"a"}) << i;
        const std::string text = ::readFile(folder.path("a"));
        ASSERT_TRUE(text == first || text == second) << i;
    }
    EXPECT_EQ(ended, 200);
}

TEST(ReadFile, GivesTheWholeFile) {
    const TemporaryFolder folder;
    const std::string text = std::string(200000, 'x') + '\0' + "end";
    EXPECT_EQ(sizes::readFile(folder.write("a", text)), text);
    EXPECT_EQ(sizes::readFile("/dev/null"), "");
}

TEST(ReadFile, RefusesWhatHasNoEnd) {
    EXPECT_THROW(sizes::readFile("/dev/zero"), Failure);
}

TEST(ReadFile, SaysWhyItCannotBeRead) {
    EXPECT_THROW(sizes::readFile("/nowhere"), FileFailure);
    EXPECT_THROW(sizes::readFile("/"), FileFailure);
}

}  // namespace
}  // namespace sizes
