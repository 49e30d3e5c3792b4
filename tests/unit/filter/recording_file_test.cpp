#include "filter/recording_file.h"

#include <fcntl.h>

#include "tests/unit/filter/test_support.h"

namespace {

class Recording : public testing::Test {
protected:
    TemporaryFolder folder;
    RecordingFile file;

    std::string open(const std::string& path) {
        return errorOutputOf([&] { file = openRecordingFile(path.c_str()); });
    }
};

TEST_F(Recording, IsCreatedAndNamedInTheLog) {
    const std::string path = folder.path("job.bin");
    EXPECT_EQ(open(path), "DEBUG:Filter data output to: " + path + "\n");
    EXPECT_NE(file, nullptr);
    EXPECT_EQ(folder.names(), std::set<std::string>{"job.bin"});
}

TEST_F(Recording, KeepsWhatIsWrittenWhenItIsClosed) {
    open(folder.path("job.bin"));
    ASSERT_NE(file, nullptr);
    std::fputs("CLS\r\n", file.get());
    file.reset();
    EXPECT_EQ(readFile(folder.path("job.bin")), "CLS\r\n");
}

TEST_F(Recording, ReplacesAFileOfTheSameName) {
    open(folder.write("job.bin", "old content"));
    file.reset();
    EXPECT_EQ(readFile(folder.path("job.bin")), "");
}

TEST_F(Recording, IsForItsUserAlone) {
    open(folder.path("job.bin"));
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(folder.path("job.bin")).permissions(),
              perms::owner_read | perms::owner_write);
}

TEST_F(Recording, IsNoneWhereSomebodyPlantedALink) {
    const std::string target = folder.write("target", "kept");
    const std::string path = folder.path("job.bin");
    std::filesystem::create_symlink(target, path);
    EXPECT_EQ(open(path), "ERROR:Unable to open the recording file " + path + ": " +
                              std::strerror(ELOOP) + "\n");
    EXPECT_EQ(file, nullptr);
    EXPECT_EQ(readFile(target), "kept");
}

TEST_F(Recording, IsNoneWithOneErrorLineWhereItCannotBeMade) {
    const std::string path = folder.path("missing/job.bin");
    EXPECT_EQ(open(path), "ERROR:Unable to open the recording file " + path + ": " +
                              std::strerror(ENOENT) + "\n");
    EXPECT_EQ(file, nullptr);
}

TEST_F(Recording, IsClosedExactlyOnceByItsCloser) {
    open(folder.path("job.bin"));
    ASSERT_NE(file, nullptr);
    const int descriptor = fileno(file.get());
    CFileCloser()(file.release());
    EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
}

}  // namespace
