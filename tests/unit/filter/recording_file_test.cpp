#include "filter/recording_file.h"

#include <fcntl.h>

#include "tests/unit/filter/test_support.h"

namespace {

class Recording : public testing::Test {
protected:
    TemporaryFolder folder;
    OwnedFile file;
    char name[256] = {};

    // `name` then holds the name that was taken.
    std::string open(const std::string& path) {
        std::snprintf(name, sizeof name, "%s", path.c_str());
        return errorOutputOf([&] { file = openRecordingFile(name); });
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

TEST_F(Recording, LeavesAFileOfTheSameNameAloneAndTakesTheNextName) {
    const std::string first = folder.write("job.bin", "of another job");
    const std::string second = folder.write("job-2.bin", "of a third one");
    EXPECT_EQ(open(first), "DEBUG:Filter data output to: " + folder.path("job-3.bin") + "\n");
    EXPECT_EQ(name, folder.path("job-3.bin"));
    EXPECT_EQ(readFile(first), "of another job");
    EXPECT_EQ(readFile(second), "of a third one");
    EXPECT_EQ(folder.names(), (std::set<std::string>{"job.bin", "job-2.bin", "job-3.bin"}));
}

TEST_F(Recording, HasItsNumberAtTheEndOfANameWithoutEnding) {
    open(folder.write("job", ""));
    EXPECT_EQ(name, folder.path("job-2"));
}

// The longest name that the settings hold: a number does not fit any more.
TEST_F(Recording, IsNoneWhereNoNumberFitsBehindATakenName) {
    const std::string fileName(255 - folder.path("").size(), 'n');
    const std::string path = folder.write(fileName, "of another job");
    ASSERT_EQ(path.size(), 255U);
    EXPECT_EQ(open(path), "ERROR:Unable to open the recording file " + path + ": " +
                              std::strerror(EEXIST) + "\n");
    EXPECT_EQ(file, nullptr);
}

TEST_F(Recording, IsNoneWhereAThousandNamesAreTaken) {
    folder.write("job.bin", "");
    for (int number = 2; number <= 1000; ++number) {
        folder.write("job-" + std::to_string(number) + ".bin", "");
    }
    EXPECT_TRUE(open(folder.path("job.bin")).starts_with("ERROR:Unable to open the recording"));
    EXPECT_EQ(file, nullptr);
    EXPECT_EQ(folder.names().size(), 1000U);
}

TEST_F(Recording, IsForItsUserAlone) {
    open(folder.path("job.bin"));
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(folder.path("job.bin")).permissions(),
              perms::owner_read | perms::owner_write);
}

TEST_F(Recording, IsNotWrittenThroughALinkThatSomebodyPlanted) {
    const std::string target = folder.write("target", "kept");
    std::filesystem::create_symlink(target, folder.path("job.bin"));
    open(folder.path("job.bin"));
    EXPECT_EQ(name, folder.path("job-2.bin"));
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
