// Files under names that anybody may have put something at.
#include "driver/own_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "tests/unit/driver/test_support.h"

namespace {

constexpr uid_t somebodyElse = 65534;

class OwnFile : public testing::Test {
protected:
    const TemporaryFolder folder;
    const std::string path = folder.path("file");

    // Writes "new" and hands back what kept it from that, 0 for nothing.
    int write(mode_t permissions = ownerOnly) const {
        std::FILE* file = openOwnFile(path.c_str(), permissions);
        if (file == nullptr) {
            return errno;
        }
        std::fputs("new", file);
        std::fclose(file);
        return 0;
    }
    mode_t permissions() const {
        struct stat status = {};
        EXPECT_EQ(stat(path.c_str(), &status), 0);
        return status.st_mode & 07777;
    }
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

TEST_F(OwnFile, IsCreatedWithItsPermissions) {
    const Umask none(0);
    EXPECT_EQ(write(), 0);
    EXPECT_EQ(readFile(path), "new");
    EXPECT_EQ(permissions(), 0600U);
}

TEST_F(OwnFile, MayBeReadableByAll) {
    const Umask none(0);
    EXPECT_EQ(write(readableByAll), 0);
    EXPECT_EQ(permissions(), 0644U);
}

TEST_F(OwnFile, IsDeniedWhatTheUmaskDenies) {
    const Umask group(077);
    EXPECT_EQ(write(readableByAll), 0);
    EXPECT_EQ(permissions(), 0600U);
}

TEST_F(OwnFile, IsEmptiedAndLosesWiderPermissions) {
    folder.write("file", "much older content");
    chmod(path.c_str(), 0666);
    EXPECT_EQ(write(), 0);
    EXPECT_EQ(readFile(path), "new");
    EXPECT_EQ(permissions(), 0600U);
}

TEST_F(OwnFile, IsNoSymbolicLink) {
    const std::string target = folder.write("target", "kept");
    ASSERT_EQ(symlink(target.c_str(), path.c_str()), 0);
    EXPECT_EQ(write(), ELOOP);
    EXPECT_EQ(readFile(target), "kept");
}

TEST_F(OwnFile, IsNotCreatedThroughASymbolicLink) {
    ASSERT_EQ(symlink(folder.path("target").c_str(), path.c_str()), 0);
    EXPECT_EQ(write(), ELOOP);
    EXPECT_EQ(folder.names(), std::set<std::string>{"file"});
}

TEST_F(OwnFile, IsNoSecondNameOfAFile) {
    const std::string target = folder.write("target", "kept");
    ASSERT_EQ(link(target.c_str(), path.c_str()), 0);
    EXPECT_EQ(write(), EEXIST);
    EXPECT_EQ(readFile(target), "kept");
}

// Run as root: root may write to any file.
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

TEST_F(OwnFile, IsNoNamedPipeWithoutAReader) {
    ASSERT_EQ(mkfifo(path.c_str(), 0666), 0);
    EXPECT_EQ(write(), ENXIO);
}

TEST_F(OwnFile, IsNoNamedPipeWithAReader) {
    ASSERT_EQ(mkfifo(path.c_str(), 0666), 0);
    const int reader = open(path.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_NE(reader, -1);
    EXPECT_EQ(write(), EEXIST);
    char byte = 0;
    EXPECT_EQ(read(reader, &byte, 1), 0);
    close(reader);
}

TEST_F(OwnFile, IsNoDevice) {
    EXPECT_EQ(openOwnFile("/dev/null", ownerOnly), nullptr);
    EXPECT_EQ(errno, EEXIST);
}

TEST_F(OwnFile, IsNoFolder) {
    std::filesystem::create_directory(path);
    EXPECT_EQ(write(), EISDIR);
}

TEST_F(OwnFile, NeedsItsFolder) {
    EXPECT_EQ(openOwnFile(folder.path("missing/file").c_str(), ownerOnly), nullptr);
    EXPECT_EQ(errno, ENOENT);
}

TEST_F(OwnFile, IsNotHandedDownToOtherPrograms) {
    std::FILE* file = openOwnFile(path.c_str(), ownerOnly);
    ASSERT_NE(file, nullptr);
    EXPECT_NE(fcntl(fileno(file), F_GETFD) & FD_CLOEXEC, 0);
    std::fclose(file);
}

TEST_F(OwnFile, LeavesNoDescriptorOpenWhenItIsRefused) {
    folder.write("target", "");
    ASSERT_EQ(link(folder.path("target").c_str(), path.c_str()), 0);
    const int next = dup(STDERR_FILENO);
    close(next);
    write();
    const int after = dup(STDERR_FILENO);
    EXPECT_EQ(after, next);
    close(after);
}

}  // namespace
