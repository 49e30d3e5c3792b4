#include "filter/input_file.h"

#include <fcntl.h>

#include <memory>

#include "tests/unit/filter/test_support.h"

namespace {

TEST(InputFile, IsStandardInputAtFirst) {
    const InputFile input;
    EXPECT_EQ(input.descriptor(), 0);
}

TEST(InputFile, StaysStandardInputWithoutAPath) {
    InputFile input;
    EXPECT_EQ(errorOutputOf([&] { EXPECT_TRUE(input.open(nullptr)); }), "");
    EXPECT_EQ(input.descriptor(), 0);
}

TEST(InputFile, ReadsTheFileItOpens) {
    const TemporaryFolder folder;
    InputFile input;
    ASSERT_TRUE(input.open(folder.write("page.ras", "RaS3").c_str()));
    EXPECT_GT(input.descriptor(), 0);
    char text[5] = {};
    EXPECT_EQ(read(input.descriptor(), text, 4), 4);
    EXPECT_STREQ(text, "RaS3");
}

TEST(InputFile, IsOpenForReadingOnly) {
    const TemporaryFolder folder;
    InputFile input;
    ASSERT_TRUE(input.open(folder.write("page.ras", "RaS3").c_str()));
    EXPECT_EQ(fcntl(input.descriptor(), F_GETFL) & O_ACCMODE, O_RDONLY);
}

TEST(InputFile, ReportsAMissingFileWithoutItsNameAndALineEnd) {
    const TemporaryFolder folder;
    InputFile input;
    EXPECT_EQ(errorOutputOf([&] { EXPECT_FALSE(input.open(folder.path("missing").c_str())); }),
              "ERROR: Unable to open raster file - ");
}

TEST(InputFile, TakesAnEmptyPathForAFile) {
    InputFile input;
    EXPECT_EQ(errorOutputOf([&] { EXPECT_FALSE(input.open("")); }),
              "ERROR: Unable to open raster file - ");
}

TEST(InputFile, ClosesWhatItOpened) {
    const TemporaryFolder folder;
    auto input = std::make_unique<InputFile>();
    ASSERT_TRUE(input->open(folder.write("page.ras", "RaS3").c_str()));
    const int descriptor = input->descriptor();
    input.reset();
    EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
}

TEST(InputFile, NeverClosesStandardInput) {
    const bool wasOpen = fcntl(STDIN_FILENO, F_GETFD) != -1;
    { const InputFile input; }
    EXPECT_EQ(fcntl(STDIN_FILENO, F_GETFD) != -1, wasOpen);
}

}  // namespace
