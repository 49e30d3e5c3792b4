// Files under names that anybody may have put something at.
#include "driver/own_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "tests/unit/driver/test_support.h"

namespace {

constexpr uid_t somebodyElse = 65534;

// Writes "new" to the file and hands back what kept it from that, 0 for nothing.
int reasonAgainst(const OwnedFile& file) {
    if (!file) {
        return errno;
    }
    std::fputs("new", file.get());
    return 0;
}

class AnyFile : public testing::Test {
protected:
    const TemporaryFolder folder;
    const std::string path = folder.path("file");

    mode_t permissions() const {
        struct stat status = {};
        EXPECT_EQ(stat(path.c_str(), &status), 0);
        return status.st_mode & 07777;
    }
};

class NewFile : public AnyFile {
protected:
    int write(mode_t permissions = ownerOnly) const {
        return reasonAgainst(openNewFile(path.c_str(), permissions));
    }
};

class OwnFile : public AnyFile {
protected:
    int write() const { return reasonAgainst(replaceOwnFile(path.c_str(), readableByAll)); }
};

/// What newly created files are denied, for one test.
class Umask {
public:
    explicit Umask(mode_t denied) : old_(umask(denied)) {}
    ~Umask() { umask(old_); }
    Umask(const Umask&) = delete;
    Umask& operator=(const Umask&) = delete;

private:
    mode_t old_;
};

TEST_F(NewFile, IsCreatedWithItsPermissions) {
    const Umask none(0);
    EXPECT_EQ(write(), 0);
    EXPECT_EQ(readFile(path), "new");
    EXPECT_EQ(permissions(), 0600U);
}

TEST_F(NewFile, MayBeReadableByAll) {
    const Umask none(0);
    EXPECT_EQ(write(readableByAll), 0);
    EXPECT_EQ(permissions(), 0644U);
}

TEST_F(NewFile, IsDeniedWhatTheUmaskDenies) {
    const Umask group(077);
    EXPECT_EQ(write(readableByAll), 0);
    EXPECT_EQ(permissions(), 0600U);
}

TEST_F(NewFile, IsNoneWhereAFileOfTheSameUserIs) {
    folder.write("file", "kept");
    EXPECT_EQ(write(), EEXIST);
    EXPECT_EQ(readFile(path), "kept");
}

TEST_F(NewFile, IsNotCreatedThroughASymbolicLink) {
    ASSERT_EQ(symlink(folder.path("target").c_str(), path.c_str()), 0);
    EXPECT_EQ(write(), EEXIST);
    EXPECT_EQ(folder.names(), std::set<std::string>{"file"});
}

TEST_F(NewFile, IsNoneWhereANamedPipeIs) {
    ASSERT_EQ(mkfifo(path.c_str(), 0666), 0);
    EXPECT_EQ(write(), EEXIST);
}

TEST_F(NewFile, NeedsItsFolder) {
    EXPECT_EQ(openNewFile(folder.path("missing/file").c_str(), ownerOnly), nullptr);
    EXPECT_EQ(errno, ENOENT);
}

TEST_F(NewFile, IsNotHandedDownToOtherPrograms) {
    const OwnedFile file = openNewFile(path.c_str(), ownerOnly);
    ASSERT_NE(file, nullptr);
    EXPECT_NE(fcntl(fileno(file.get()), F_GETFD) & FD_CLOEXEC, 0);
}

TEST_F(OwnFile, IsCreatedWhereNothingIs) {
    EXPECT_EQ(write(), 0);
    EXPECT_EQ(readFile(path), "new");
}

TEST_F(OwnFile, IsMadeAnewWithItsOwnPermissions) {
    const Umask none(0);
    folder.write("file", "much older content");
    chmod(path.c_str(), 0666);
    EXPECT_EQ(write(), 0);
    EXPECT_EQ(readFile(path), "new");
    EXPECT_EQ(permissions(), 0644U);
}

TEST_F(OwnFile, IsNotWrittenThroughASymbolicLink) {
    const std::string target = folder.write("target", "kept");
    ASSERT_EQ(symlink(target.c_str(), path.c_str()), 0);
    EXPECT_EQ(write(), EEXIST);
    EXPECT_EQ(readFile(target), "kept");
    EXPECT_TRUE(std::filesystem::is_symlink(path));
}

TEST_F(OwnFile, LeavesWhatHadASecondNameUnderThatName) {
    const std::string target = folder.write("target", "kept");
    ASSERT_EQ(link(target.c_str(), path.c_str()), 0);
    EXPECT_EQ(write(), 0);
    EXPECT_EQ(readFile(target), "kept");
    EXPECT_EQ(readFile(path), "new");
}

// Run as root: root may remove any file.
TEST_F(OwnFile, IsNoFileOfAnotherUser) {
    folder.write("file", "kept");
    ASSERT_EQ(chown(path.c_str(), somebodyElse, somebodyElse), 0);
    EXPECT_EQ(write(), EEXIST);
    EXPECT_EQ(readFile(path), "kept");
}

TEST_F(OwnFile, IsNoFileThatAnotherUserLetsAllWriteTo) {
    folder.write("file", "kept");
    ASSERT_EQ(chmod(path.c_str(), 0666), 0);
    ASSERT_EQ(seteuid(somebodyElse), 0);
    const int reason = write();
    ASSERT_EQ(seteuid(0), 0);
    EXPECT_EQ(reason, EEXIST);
    EXPECT_EQ(readFile(path), "kept");
}

TEST_F(OwnFile, LeavesANamedPipeWhereItIs) {
    ASSERT_EQ(mkfifo(path.c_str(), 0666), 0);
    EXPECT_EQ(write(), EEXIST);
    EXPECT_TRUE(std::filesystem::is_fifo(path));
}

TEST_F(OwnFile, LeavesAFolderWhereItIs) {
    std::filesystem::create_directory(path);
    EXPECT_EQ(write(), EEXIST);
    EXPECT_TRUE(std::filesystem::is_directory(path));
}

}  // namespace
