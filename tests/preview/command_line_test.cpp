#include <gtest/gtest.h>

#include <filesystem>

#include "tests/preview/dot_picture.h"
#include "tests/preview/preview_run.h"

namespace {

using Names = std::set<std::string>;

void expectLetter(const TemporaryFolder& folder, const std::string& name) {
    const PngPicture png = readPng(folder.path(name));
    EXPECT_EQ(differenceOf(drawnPicture(letterRows), png.picture), "");
    EXPECT_EQ(png.xDotsPerMetre, 7992U);
    EXPECT_EQ(png.yDotsPerMetre, 7992U);
}

TEST(PreviewCommandLine, AFileIsDrawnIntoTheCurrentFolderUnderTheFilesName) {
    const TemporaryFolder streams;
    const TemporaryFolder folder;
    const std::string file = streams.write("second label.v2.tspl", smallLabel(letterBitmap));
    const FilterResult result = runPreview(folder, {file});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardOutput,
              "second label.v2-1.png: 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt\n");
    EXPECT_EQ(result.standardError, "");
    EXPECT_EQ(folder.names(), Names{"second label.v2-1.png"});
    EXPECT_EQ(streams.names(), Names{"second label.v2.tspl"});
    expectLetter(folder, "second label.v2-1.png");
}

TEST(PreviewCommandLine, AFileIsFoundInTheCurrentFolderToo) {
    const TemporaryFolder folder;
    folder.write("mine", smallLabel(letterBitmap));
    EXPECT_EQ(runPreview(folder, {"mine"}).status, 0);
    EXPECT_EQ(folder.names(), (Names{"mine", "mine-1.png"}));
}

TEST(PreviewCommandLine, StandardInputIsDrawnAsLabel) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{}, std::vector<std::string>{"-"}}) {
        const TemporaryFolder folder;
        const FilterResult result = runPreview(folder, arguments, smallLabel(letterBitmap));
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.standardOutput,
                  "label-1.png: 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt\n");
        EXPECT_EQ(result.standardError, "");
        EXPECT_EQ(folder.names(), Names{"label-1.png"});
        expectLetter(folder, "label-1.png");
    }
}

TEST(PreviewCommandLine, NoOutputTakesThePlaceOfAStream) {
    const TemporaryFolder folder;
    const std::string stream = smallLabel(letterBitmap);
    const std::string named[] = {"a-1.png", "job", "x.part", "b-1.png.part"};
    for (const std::string& name : named) {
        folder.write(name, stream);
    }
    namespace fs = std::filesystem;
    fs::create_symlink("job", folder.path("other"));
    fs::create_symlink("job", folder.path("c-1.png"));
    fs::create_symlink("a-1.png", folder.path("in"));
    const Names before = folder.names();
    for (const char* arguments :
         {"-o a a-1.png", "-o ./a a-1.png", "-o a in", "-o a <a-1.png", "-o c job", "--pdf job job",
          "--pdf other job", "--pdf job <job", "--pdf x x.part", "-o b b-1.png.part"}) {
        const FilterResult result =
            runFilter(shellCall(folder, std::string("\"$PREVIEW\" ") + arguments));
        EXPECT_EQ(result.status, 1) << arguments;
        EXPECT_NE(result.standardError.find("would take the place of a stream that is read"),
                  std::string::npos)
            << arguments << result.standardError;
        EXPECT_EQ(folder.names(), before) << arguments;
        for (const std::string& name : named) {
            EXPECT_EQ(readFile(folder.path(name)), stream) << name << " of " << arguments;
        }
    }
}

// The first one is drawn before the second one is opened.
TEST(PreviewCommandLine, NoPictureTakesThePlaceOfALaterStream) {
    const TemporaryFolder folder;
    const std::string stream = smallLabel(letterBitmap);
    folder.write("job", stream);
    folder.write("job-1.png", stream);
    const FilterResult result = runPreview(folder, {"job", "job-1.png"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(readFile(folder.path("job-1.png")), stream);
    EXPECT_EQ(folder.names(), (Names{"job", "job-1.png", "job-1-1.png"}));
}

TEST(PreviewCommandLine, ThePdfDoesNotTakeThePlaceOfAPicture) {
    const TemporaryFolder folder;
    folder.write("job", smallLabel(letterBitmap));
    const FilterResult result = runPreview(folder, {"--pdf", "x-1.png", "-o", "x", "job"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(folder.names(), Names{"job"});
}

TEST(PreviewCommandLine, APipeIsDrawnAsAFileIs) {
    const TemporaryFolder folder;
    folder.write("stream", smallLabel(letterBitmap));
    const FilterResult result = runFilter(shellCall(folder, "cat stream | \"$PREVIEW\""));
    EXPECT_EQ(result.status, 0);
    expectLetter(folder, "label-1.png");
}

TEST(PreviewCommandLine, APrefixSaysWhereThePicturesGoAndHowTheirNamesBegin) {
    for (const char* option : {"-o", "--output"}) {
        const TemporaryFolder folder;
        const TemporaryFolder out;
        const FilterResult result =
            runPreview(folder, {option, out.path("box.7")}, smallLabel(letterBitmap));
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(folder.names(), Names{});
        EXPECT_EQ(out.names(), Names{"box.7-1.png"});
        expectLetter(out, "box.7-1.png");
    }
}

TEST(PreviewCommandLine, EachPrintGivesOnePictureWhateverItsCopies) {
    const TemporaryFolder folder;
    const std::string blank(16, '\xff');
    const FilterResult result = runPreview(
        folder, {}, smallLabel(blank) + smallLabel(letterBitmap, "PRINT 2,3\r\n") + "PRINT 1\r\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(
        result.standardOutput,
        "label-1.png: 16 x 8 dots at 203 dpi (by its bitmaps), 0.0 % burnt\n"
        "label-2.png: 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt, printed 6 times\n"
        "label-3.png: 16 x 8 dots at 203 dpi (by its bitmaps), 16.4 % burnt\n");
    EXPECT_EQ(folder.names(), (Names{"label-1.png", "label-2.png", "label-3.png"}));
    EXPECT_EQ(differenceOf(drawnPicture(std::vector<std::string>(8, "................")),
                           readPng(folder.path("label-1.png")).picture),
              "");
    expectLetter(folder, "label-2.png");
    expectLetter(folder, "label-3.png");
}

TEST(PreviewCommandLine, APictureOfTheSameNameIsReplaced) {
    const TemporaryFolder folder;
    folder.write("label-1.png", std::string(5000, 'x'));
    EXPECT_EQ(runPreview(folder, {}, smallLabel(letterBitmap)).status, 0);
    expectLetter(folder, "label-1.png");
}

TEST(PreviewCommandLine, AnEmptyStreamGivesNoPictureAndSaysSo) {
    const TemporaryFolder folder;
    const FilterResult result = runPreview(folder, {});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardOutput, "");
    EXPECT_EQ(result.standardError, "standard input: no label: nothing is printed without PRINT\n");
    EXPECT_EQ(folder.names(), Names{});
}

TEST(PreviewCommandLine, WithOnesBurningThePictureIsTheNegative) {
    std::vector<std::string> negative = letterRows;
    for (std::string& row : negative) {
        for (char& dot : row) {
            dot = dot == '#' ? '.' : '#';
        }
    }
    const TemporaryFolder folder;
    const std::string stream = smallLabel(letterBitmap);
    EXPECT_EQ(runPreview(folder, {"--burn", "ones"}, stream).standardOutput,
              "label-1.png: 16 x 8 dots at 203 dpi (by its bitmaps), 83.6 % burnt\n");
    EXPECT_EQ(differenceOf(drawnPicture(negative), readPng(folder.path("label-1.png")).picture),
              "");
    EXPECT_EQ(runPreview(folder, {"--burn=zeros"}, stream).status, 0);
    expectLetter(folder, "label-1.png");
}

// 2 mm × 1 mm are 23.6 × 11.8 dots at 300 dpi.
TEST(PreviewCommandLine, AGivenResolutionSetsTheLabelsSizeAndThePicturesResolution) {
    const TemporaryFolder folder;
    const FilterResult result = runPreview(folder, {"--dpi", "300"}, smallLabel(letterBitmap));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardOutput, "label-1.png: 24 x 12 dots at 300 dpi, 7.3 % burnt\n");
    std::vector<std::string> rows = letterRows;
    for (std::string& row : rows) {
        row += "........";
    }
    rows.insert(rows.end(), 4, std::string(24, '.'));
    const PngPicture png = readPng(folder.path("label-1.png"));
    EXPECT_EQ(differenceOf(drawnPicture(rows), png.picture), "");
    EXPECT_EQ(png.xDotsPerMetre, 11811U);
    EXPECT_EQ(png.yDotsPerMetre, 11811U);
}

TEST(PreviewCommandLine, ListsDrawNoPicturesUnlessAPrefixIsGiven) {
    for (const char* list : {"--list", "--json", "--check"}) {
        const TemporaryFolder folder;
        EXPECT_EQ(runPreview(folder, {list}, smallLabel(letterBitmap)).status, 0);
        EXPECT_EQ(folder.names(), Names{}) << list;
        EXPECT_EQ(runPreview(folder, {list, "-o", "x"}, smallLabel(letterBitmap)).status, 0);
        EXPECT_EQ(folder.names(), Names{"x-1.png"}) << list;
        expectLetter(folder, "x-1.png");
    }
}

TEST(PreviewCommandLine, HelpAndVersionGoToStandardOutput) {
    const TemporaryFolder folder;
    for (const char* option : {"-h", "--help", "--version"}) {
        const FilterResult result = runPreview(folder, {option});
        EXPECT_EQ(result.status, 0) << option;
        EXPECT_EQ(result.standardError, "") << option;
        EXPECT_NE(result.standardOutput.find("tsplpreview"), std::string::npos) << option;
    }
    const std::string help = runPreview(folder, {"--help"}).standardOutput;
    for (const char* option :
         {"--output", "--dpi", "--burn", "--list", "--json", "--check", "--label", "--follow",
          "--terminal", "--pdf", "--feed-direction", "FILE", "PREFIX"}) {
        EXPECT_NE(help.find(option), std::string::npos) << option;
    }
    EXPECT_EQ(folder.names(), Names{});
}

TEST(PreviewCommandLine, AWrongCommandLineGivesStatusTwoAndAWordOnHowToGetHelp) {
    const TemporaryFolder folder;
    folder.write("a", smallLabel(letterBitmap));
    const std::vector<std::vector<std::string>> wrong = {{"--wrong"},
                                                         {"-x"},
                                                         {"-", "-"},
                                                         {"--dpi"},
                                                         {"--dpi", "0"},
                                                         {"--dpi", "-203"},
                                                         {"--dpi", "many"},
                                                         {"--dpi", "203.5"},
                                                         {"--dpi", "1000000"},
                                                         {"--burn", "twos"},
                                                         {"--follow", "a", "a"},
                                                         {"--follow=1"},
                                                         {"--burn"},
                                                         {"--output"},
                                                         {"-o", ""},
                                                         {"--pdf", ""},
                                                         {"--pdf", "-"},
                                                         {"--pdf"},
                                                         {"--output="},
                                                         {"--terminal", "--json"},
                                                         {"--check", "--terminal"},
                                                         {"--list", "--json"},
                                                         {"--check", "--list", "--json"}};
    for (const auto& arguments : wrong) {
        const FilterResult result = runPreview(folder, arguments, smallLabel(letterBitmap));
        EXPECT_EQ(result.status, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(result.standardOutput, "") << testing::PrintToString(arguments);
        EXPECT_NE(result.standardError.find("Run with --help for more information"),
                  std::string::npos)
            << testing::PrintToString(arguments);
        EXPECT_EQ(folder.names(), Names{"a"}) << testing::PrintToString(arguments);
    }
}

}  // namespace
