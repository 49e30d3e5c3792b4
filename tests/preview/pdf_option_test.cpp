#include <fcntl.h>
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sstream>

#include "tests/preview/dot_picture.h"
#include "tests/preview/preview_run.h"
#include "tests/preview/running_preview.h"
#include "tests/support/sanitizers.h"

namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

// A raw bitmap of PBM, of 1 for black.
DotPicture readPbm(const std::string& path) {
    std::istringstream file(readFile(path));
    std::string kind;
    DotPicture picture;
    file >> kind >> picture.width >> picture.height;
    file.get();
    EXPECT_EQ(kind, "P4") << path;
    std::string row((picture.width + 7) / 8, '\0');
    for (std::size_t y = 0; y < picture.height; ++y) {
        file.read(row.data(), static_cast<std::streamsize>(row.size()));
        for (std::size_t x = 0; x < picture.width; ++x) {
            const auto byte = static_cast<unsigned char>(row[x / 8]);
            picture.dots.push_back((byte & (0x80U >> (x % 8))) != 0 ? 1 : 0);
        }
    }
    return picture;
}

// A page of a PDF file, rendered without smoothing.
DotPicture renderedPage(const TemporaryFolder& folder, const std::string& pdf, int page, int dpi) {
    const std::string number = std::to_string(page);
    const FilterResult result =
        runFilter(shellCall(folder, "pdftoppm -mono -singlefile -f " + number + " -r " +
                                        std::to_string(dpi) + " '" + pdf + "' rendered"));
    EXPECT_EQ(result.status, 0) << result.standardError;
    return readPbm(folder.path("rendered.pbm"));
}

// What pdfinfo says behind a heading.
std::string infoOf(const TemporaryFolder& folder, const std::string& pdf,
                   const std::string& heading) {
    const std::string info =
        runFilter(shellCall(folder, "pdfinfo -l -1 '" + pdf + "'")).standardOutput;
    const std::size_t at = info.find(heading + ":");
    const std::size_t start = info.find_first_not_of(' ', at + heading.size() + 1);
    return at == std::string::npos ? info : info.substr(start, info.find('\n', start) - start);
}

std::string noise(int width, int height, const std::string& print = "") {
    return noiseLabel(width, height) + print;
}

TEST(PdfOption, WritesAPageForEachLabelAndNoPicture) {
    const TemporaryFolder folder;
    const std::string blank(16, '\xff');
    const FilterResult result =
        runPreview(folder, {"--pdf", "all.pdf"},
                   smallLabel(letterBitmap) + smallLabel(blank, "PRINT 2,3\r\n"));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardError,
              "standard input: line 8, byte 123: the label is blank\n"
              "standard input: 2 labels, 1 complaint\n");
    EXPECT_EQ(result.standardOutput, "all.pdf: 2 pages\n");
    EXPECT_EQ(folder.names(), Names{"all.pdf"});
    EXPECT_EQ(infoOf(folder, "all.pdf", "Pages"), "2");
    EXPECT_EQ(differenceOf(drawnPicture(letterRows), renderedPage(folder, "all.pdf", 1, 203)), "");
    EXPECT_EQ(differenceOf(drawnPicture(std::vector<std::string>(8, std::string(16, '.'))),
                           renderedPage(folder, "all.pdf", 2, 203)),
              "");
}

// 203 dots are an inch of 72 points, less a hundredth of a dot.
TEST(PdfOption, GivesEachPageTheTrueSizeOfItsLabel) {
    const TemporaryFolder folder;
    EXPECT_EQ(runPreview(folder, {"--pdf", "p", "--dpi", "203"},
                         "SIZE 812 dot,1218 dot\nCLS\nPRINT 1\nSIZE 203 dot,406 dot\nPRINT 1\n")
                  .status,
              0);
    const auto expectSize = [&](const std::string& page, double width, double height) {
        std::istringstream text(infoOf(folder, "p", page));
        double across = 0;
        double down = 0;
        std::string by;
        text >> across >> by >> down;
        EXPECT_NEAR(across, width, 0.004);
        EXPECT_NEAR(down, height, 0.004);
    };
    expectSize("Page    1 size", 288, 432);
    expectSize("Page    2 size", 72, 144);
}

TEST(PdfOption, GivesTheDotsBackAtTheLabelsResolution) {
    const TemporaryFolder folder;
    std::string stream;
    const std::pair<int, int> sizes[] = {{8, 1}, {16, 77}, {104, 3}, {808, 1218}, {1200, 499}};
    for (const auto& [width, height] : sizes) {
        stream += noiseLabel(width, height);
    }
    // Two labels whose widths are no whole bytes.
    stream += "SIZE 813 dot,505 dot\nPRINT 1\nSIZE 7 dot,9 dot\nCLS\nBAR 0,0,7,1\nPRINT 1\n";
    for (const int dpi : {203, 300, 600}) {
        EXPECT_EQ(
            runPreview(folder, {"--pdf", "p", "-o", "p", "--dpi", std::to_string(dpi)}, stream)
                .status,
            0);
        for (int page = 1; page <= 7; ++page) {
            const std::string name = "p-" + std::to_string(page) + ".png";
            EXPECT_EQ(differenceOf(readPng(folder.path(name)).picture,
                                   renderedPage(folder, "p", page, dpi)),
                      "")
                << page << " at " << dpi;
        }
    }
}

TEST(PdfOption, TakesALabelOfManyMetres) {
    const TemporaryFolder folder;
    EXPECT_EQ(
        runPreview(folder, {"--pdf", "p", "-o", "p", "--dpi", "203"}, noise(16, 40001)).status, 0);
    EXPECT_EQ(
        differenceOf(readPng(folder.path("p-1.png")).picture, renderedPage(folder, "p", 1, 203)),
        "");
}

TEST(PdfOption, IsAFileWithoutFaults) {
    const TemporaryFolder folder;
    EXPECT_EQ(runPreview(folder, {"--pdf", "p"}, noise(808, 101, "PRINT 1\n")).status, 0);
    const FilterResult checked = runFilter(shellCall(folder, "qpdf --check p"));
    EXPECT_EQ(checked.status, 0) << checked.standardOutput << checked.standardError;
}

TEST(PdfOption, HoldsTheLabelsOfEveryFileAndOfTheRange) {
    const TemporaryFolder folder;
    folder.write("a", smallLabel(letterBitmap) + smallLabel(letterBitmap));
    folder.write("b", smallLabel(letterBitmap) + smallLabel(letterBitmap));
    EXPECT_EQ(runPreview(folder, {"--pdf", "p", "a", "b"}).standardOutput, "p: 4 pages\n");
    EXPECT_EQ(runPreview(folder, {"--pdf", "p", "--label", "2", "a", "b"}).standardOutput,
              "p: 2 pages\n");
    EXPECT_EQ(runPreview(folder, {"--pdf", "p", "--label", "1", "a"}).standardOutput,
              "p: 1 page\n");
    EXPECT_EQ(infoOf(folder, "p", "Pages"), "1");
}

TEST(PdfOption, GoesWithListsWithoutAWordInThem) {
    const TemporaryFolder folder;
    const std::string stream = smallLabel(letterBitmap);
    for (const char* list : {"--list", "--json", "--check"}) {
        const FilterResult plain = runPreview(folder, {list}, stream);
        EXPECT_EQ(runPreview(folder, {list, "--pdf", list}, stream).standardOutput,
                  plain.standardOutput);
        EXPECT_EQ(infoOf(folder, folder.path(list), "Pages"), "1");
    }
}

TEST(PdfOption, WithoutALabelWritesNothingAndSaysSo) {
    const TemporaryFolder folder;
    folder.write("old.pdf", "old");
    const FilterResult result = runPreview(folder, {"--pdf", "old.pdf"}, "CLS\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardError,
              "standard input: no label: nothing is printed without PRINT\n"
              "tsplpreview: old.pdf: there is no label for it\n");
    EXPECT_EQ(readFile(folder.path("old.pdf")), "old");
    EXPECT_EQ(runPreview(folder, {"--pdf", "old.pdf"}, "PRINT 1\n").status, 1);
    EXPECT_EQ(folder.names(), Names{"old.pdf"});
}

TEST(PdfOption, OnAFullDeviceFailsOnceAndKeepsTheOldFile) {
    // The second stream is too large for the buffer of one write.
    for (const std::string& stream :
         {smallLabel(letterBitmap), noise(800, 1600, noiseLabel(800, 1600))}) {
        const TemporaryFolder folder;
        folder.write("p\x1b", "old");
        fs::create_symlink("/dev/full", folder.path("p\x1b.part"));
        const FilterResult result = runPreview(folder, {"--pdf", "p\x1b"}, stream);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.standardOutput, "");
        EXPECT_EQ(result.standardError, "tsplpreview: p\\x1b: No space left on device\n");
        EXPECT_EQ(readFile(folder.path("p\x1b")), "old");
        EXPECT_EQ(folder.names(), Names{"p\x1b"});
    }
}

TEST(PdfOption, InAMissingFolderFailsOnce) {
    const TemporaryFolder folder;
    const FilterResult result = runPreview(folder, {"--pdf", "missing/p", "-o", "x"},
                                           smallLabel(letterBitmap) + smallLabel(letterBitmap));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardError, "tsplpreview: missing/p: No such file or directory\n");
    EXPECT_EQ(folder.names(), (Names{"x-1.png", "x-2.png"}));
}

TEST(PdfOption, LeavesNoUnfinishedFileToASignal) {
    const TemporaryFolder folder;
    RunningPreview preview(folder, {"--pdf", "p", "--list"});
    preview.write(smallLabel(letterBitmap));
    EXPECT_NE(preview.output("PRINT 1,1\n"), "");
    EXPECT_EQ(folder.names(), Names{"p.part"});
    preview.sendSignal(SIGINT);
    EXPECT_EQ(preview.status(), -SIGINT);
    EXPECT_EQ(folder.names(), Names{});
}

TEST(PdfOption, HasWhatIsCompleteWhenASignalEndsTheFollowing) {
    const TemporaryFolder folder;
    folder.write("rec", smallLabel(letterBitmap) + "CLS\nPRI");
    RunningPreview preview(folder, {"--pdf", "p", "--list", "--follow", "rec"});
    EXPECT_NE(preview.output("CLS\n"), "");
    EXPECT_NE(preview.output("CLS\n"), "");
    preview.sendSignal(SIGINT);
    EXPECT_EQ(preview.status(), -SIGINT);
    EXPECT_EQ(folder.names(), (Names{"p", "rec"}));
    EXPECT_EQ(differenceOf(drawnPicture(letterRows), renderedPage(folder, "p", 1, 203)), "");
}

TEST(PdfOption, LeavesNothingWhereNobodyReadsTheList) {
    const TemporaryFolder folder;
    std::string many = smallLabel(letterBitmap);
    for (int i = 0; i < 100000; ++i) {
        many += "CLS\r\n";
    }
    folder.write("many", many);
    runFilter(shellCall(folder, "\"$PREVIEW\" --list --pdf p many | head -n 1"));
    runFilter(shellCall(folder, "\"$PREVIEW\" --list --pdf p many >/dev/full"));
    EXPECT_EQ(folder.names(), Names{"many"});
}

#ifndef KESTO_ADDRESS_SANITIZER

// The shell counts its limit in KiB. The dots of the labels are 36 MB.
TEST(PdfOption, OfManyLabelsNeedsTheMemoryOfOne) {
    const TemporaryFolder folder;
    folder.write("part", noiseLabel(800, 1200));
    const FilterResult result = runFilter(
        shellCall(folder,
                  "for i in $(seq 300); do cat part; done | { ulimit -v 24576; \"$PREVIEW\" --pdf "
                  "p; }"));
    EXPECT_EQ(result.status, 0) << result.standardError;
    EXPECT_EQ(result.standardOutput, "p: 300 pages\n");
}

#endif

}  // namespace
