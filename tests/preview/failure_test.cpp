#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "tests/preview/dot_picture.h"
#include "tests/preview/preview_run.h"

namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

void expectFailure(const FilterResult& result, const std::string& message) {
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardOutput, "");
    EXPECT_EQ(result.standardError, message);
}

// Lets a run as a stranger count its coverage where it may write, or it complains.
void keepCountersIn(FilterCall& call, const TemporaryFolder& counters) {
    fs::permissions(counters.path(""), fs::perms::all);
    call.environment.emplace_back("GCOV_PREFIX", counters.path(""));
}

TEST(PreviewFailure, AMissingFileIsNamedWithTheReason) {
    const TemporaryFolder folder;
    expectFailure(runPreview(folder, {"missing.tspl"}),
                  "tsplpreview: missing.tspl: No such file or directory\n");
    EXPECT_EQ(folder.names(), Names{});
}

TEST(PreviewFailure, AnEmptyNameIsAMissingFileAndNotStandardInput) {
    const TemporaryFolder folder;
    const FilterResult result = runPreview(folder, {""}, smallLabel(letterBitmap));
    EXPECT_NE(result.status, 0);
    EXPECT_NE(result.standardError, "");
    EXPECT_EQ(folder.names(), Names{});
}

TEST(PreviewFailure, AFolderIsNamedWithTheReason) {
    const TemporaryFolder folder;
    expectFailure(runPreview(folder, {"--check", "."}), "tsplpreview: .: Is a directory\n");
}

TEST(PreviewFailure, AFileThatMayNotBeReadIsNamedWithTheReason) {
    const TemporaryFolder folder;
    const TemporaryFolder counters;
    folder.write("secret.tspl", smallLabel(letterBitmap));
    fs::permissions(folder.path("secret.tspl"), fs::perms::none);
    FilterCall call = previewCall(folder, {"--list", "secret.tspl"});
    runAsStranger(call, folder);
    keepCountersIn(call, counters);
    expectFailure(runFilter(call), "tsplpreview: secret.tspl: Permission denied\n");
}

TEST(PreviewFailure, AClosedStandardInputIsReported) {
    const TemporaryFolder folder;
    expectFailure(runFilter(shellCall(folder, "\"$PREVIEW\" <&-")),
                  "tsplpreview: standard input: Bad file descriptor\n");
}

TEST(PreviewFailure, AFolderThatMayNotBeWrittenToIsReported) {
    const TemporaryFolder folder;
    const TemporaryFolder counters;
    FilterCall call = previewCall(folder, {}, smallLabel(letterBitmap));
    runAsStranger(call, folder);
    keepCountersIn(call, counters);
    expectFailure(runFilter(call), "tsplpreview: label-1.png: Permission denied\n");
    EXPECT_EQ(folder.names(), Names{});
}

TEST(PreviewFailure, AMissingFolderIsReportedForEachPicture) {
    const TemporaryFolder folder;
    expectFailure(runPreview(folder, {"-o", "missing/x"},
                             smallLabel(letterBitmap) + smallLabel(letterBitmap)),
                  "tsplpreview: missing/x-1.png: No such file or directory\n"
                  "tsplpreview: missing/x-2.png: No such file or directory\n");
    EXPECT_EQ(folder.names(), Names{});
}

TEST(PreviewFailure, AFolderOfAPicturesNameStays) {
    const TemporaryFolder folder;
    fs::create_directory(folder.path("label-1.png"));
    expectFailure(runPreview(folder, {}, smallLabel(letterBitmap)),
                  "tsplpreview: label-1.png: Is a directory\n");
    EXPECT_TRUE(fs::is_directory(folder.path("label-1.png")));
}

TEST(PreviewFailure, APictureOnAFullDeviceIsReportedAndNotLeftBehind) {
    // The second picture is too large for the buffer of one write.
    for (const std::string& stream : {smallLabel(letterBitmap), noiseLabel(800, 799)}) {
        const TemporaryFolder folder;
        fs::create_symlink("/dev/full", folder.path("label-1.png.part"));
        expectFailure(runPreview(folder, {}, stream),
                      "tsplpreview: label-1.png: No space left on device\n");
        EXPECT_EQ(folder.names(), Names{});
        EXPECT_TRUE(fs::is_character_file("/dev/full"));
    }
}

TEST(PreviewFailure, AFailedPictureDoesNotKeepTheNextOneFromBeingDrawn) {
    const TemporaryFolder folder;
    fs::create_directory(folder.path("label-1.png"));
    const FilterResult result =
        runPreview(folder, {}, smallLabel(letterBitmap) + smallLabel(letterBitmap));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(folder.names(), (Names{"label-1.png", "label-2.png"}));
}

TEST(PreviewFailure, APipeBehindALinkOfTheSystemIsNoPlaceForAPdf) {
    const TemporaryFolder folder;
    folder.write("job", smallLabel(letterBitmap));
    const FilterResult result =
        runFilter(shellCall(folder, "\"$PREVIEW\" --pdf /dev/stdout job | cat"));
    EXPECT_EQ(result.standardError, "tsplpreview: /dev/stdout: is no regular file\n");
}

TEST(PreviewFailure, APictureDoesNotTakeThePlaceOfWhatIsNoFile) {
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo(folder.path("p-1.png").c_str(), 0600), 0);
    ASSERT_EQ(mkfifo(folder.path("p.pdf").c_str(), 0600), 0);
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"-o", "p"}, std::vector<std::string>{"--pdf", "p.pdf"}}) {
        const FilterResult result = runPreview(folder, arguments, smallLabel(letterBitmap));
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.standardError.find(": is no regular file\n"), std::string::npos)
            << result.standardError;
    }
    EXPECT_TRUE(fs::is_fifo(folder.path("p-1.png")));
    EXPECT_TRUE(fs::is_fifo(folder.path("p.pdf")));
    EXPECT_EQ(folder.names(), (Names{"p-1.png", "p.pdf"}));
}

TEST(PreviewFailure, ALinkKeepsItsNameAndItsFileGetsThePicture) {
    const TemporaryFolder folder;
    fs::create_directory(folder.path("there"));
    fs::create_symlink("there/new.png", folder.path("p-1.png"));
    fs::create_symlink("p-1.png", folder.path("q-1.png"));
    EXPECT_EQ(runPreview(folder, {"-o", "q"}, smallLabel(letterBitmap)).status, 0);
    EXPECT_TRUE(fs::is_symlink(folder.path("p-1.png")));
    EXPECT_TRUE(fs::is_symlink(folder.path("q-1.png")));
    EXPECT_EQ(differenceOf(drawnPicture(letterRows), readPng(folder.path("there/new.png")).picture),
              "");
}

TEST(PreviewFailure, AFullStandardOutputGivesStatusOneInEveryMode) {
    const TemporaryFolder folder;
    folder.write("good.tspl", smallLabel(letterBitmap));
    folder.write("bad.tspl", "SPIN");
    std::string many;
    for (int i = 0; i < 10000; ++i) {
        many += "CLS\r\n";
    }
    folder.write("many.tspl", many);
    for (const char* call : {"--list good.tspl", "--json good.tspl", "--list many.tspl",
                             "--json many.tspl", "--check bad.tspl", "good.tspl"}) {
        const FilterResult result =
            runFilter(shellCall(folder, std::string("\"$PREVIEW\" ") + call + " >/dev/full"));
        EXPECT_EQ(result.status, 1) << call;
        EXPECT_EQ(result.standardError, "tsplpreview: standard output: No space left on device\n")
            << call;
    }
    EXPECT_EQ(runFilter(shellCall(folder, "\"$PREVIEW\" --help >/dev/full")).status, 1);
}

// The stream has no end: that this one ends is because of the output.
TEST(PreviewFailure, AFullStandardOutputEndsTheReading) {
    const TemporaryFolder folder;
    for (const char* list : {"--list", "--json"}) {
        const FilterResult result =
            runFilter(shellCall(folder, std::string("yes CLS | \"$PREVIEW\" >/dev/full ") + list));
        EXPECT_EQ(result.status, 1) << list;
        EXPECT_EQ(result.standardError, "tsplpreview: standard output: No space left on device\n");
    }
}

TEST(PreviewFailure, AReaderOfTheListThatGoesAwayEndsItQuietly) {
    const TemporaryFolder folder;
    std::string many;
    for (int i = 0; i < 100000; ++i) {
        many += "CLS\r\n";
    }
    folder.write("many.tspl", many);
    const FilterResult result =
        runFilter(shellCall(folder, "\"$PREVIEW\" --list many.tspl | head -n 1"));
    EXPECT_EQ(result.standardOutput, "         0  CLS\n");
    EXPECT_EQ(result.standardError, "");
}

}  // namespace
