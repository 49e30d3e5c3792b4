// Files as other systems and other programs write them.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/system/comparison.h"
#include "tests/system/ppd_writer.h"
#include "tests/system/test_job.h"

namespace {

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

TEST(ForeignInput, APpdWhoseLinesEndInCarriageReturnAndLineFeedIsReadLikeAnyOther) {
    const TemporaryFolder folder;
    const reference::Job job = labelJob({greyPage(16, 5)});
    FilterCall call = callFor(job, folder);
    const std::string ppd = replaced(ppdFor(job.settings, job.ppdSize).text(), "\n", "\r\n");
    call.environment = {{"PPD", folder.write("crlf.ppd", ppd)}};
    const SpoolFiles files;
    expectOutcome(reference::runJob(job), runFilter(call), files);
}

// The stream's first version: another opening word, and headers that end before the fields of the
// later ones, in either byte order.
constexpr std::size_t firstVersionHeaderBytes = 420;

std::string firstVersionOf(const reference::Page& page, RasterForm form) {
    std::string stream = rasterStream({page}, form);
    stream.erase(rasterSyncBytes + firstVersionHeaderBytes,
                 rasterHeaderBytes - firstVersionHeaderBytes);
    return stream.replace(0, rasterSyncBytes, form == RasterForm::Plain ? "tSaR" : "RaSt");
}

TEST(ForeignInput, ARasterOfTheFirstVersionIsPrinted) {
    for (const RasterForm form : {RasterForm::Plain, RasterForm::SwappedPlain}) {
        const reference::Job job = labelJob({greyPage(24, 9)});
        expectPrintsAsReference(job, firstVersionOf(job.pages[0], form));
    }
}

std::string compressedFile(const std::string& content) {
    FilterCall call;
    call.program = "/usr/bin/gzip";
    call.arguments = {"--stdout"};
    call.standardInput = content;
    return runFilter(call).standardOutput;
}

void expectNoPage(const FilterResult& result) {
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardOutput, std::string(64, '\n'));
    EXPECT_TRUE(
        result.standardError.ends_with("\nERROR:Unable to read the document: it is no raster\n"))
        << result.standardError;
}

TEST(ForeignInput, ARasterThatIsCompressedAsAFileIsNone) {
    const TemporaryFolder folder;
    FilterCall call = callFor(labelJob({greyPage(24, 9)}), folder);
    call.standardInput = compressedFile(call.standardInput);
    ASSERT_TRUE(call.standardInput.starts_with("\x1F\x8B"));
    expectNoPage(runFilter(call));
    call.arguments.push_back(folder.write("page.ras.gz", call.standardInput));
    expectNoPage(runFilter(call));
}

// It can be opened and not read: an input without a page.
TEST(ForeignInput, AFolderAsTheRasterFileIsAnInputWithoutPages) {
    const TemporaryFolder folder;
    FilterCall call = callFor(labelJob({greyPage(24, 9)}), folder);
    call.arguments.push_back(folder.path(""));
    expectNoPage(runFilter(call));
}

}  // namespace
