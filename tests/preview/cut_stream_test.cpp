#include <gtest/gtest.h>

#include "tests/preview/preview_run.h"
#include "tests/system/test_job.h"

namespace {

// Where the data of a stream's bitmaps lie, each of `bytes`.
std::vector<std::size_t> dataStarts(const std::string& stream, const std::string& head) {
    std::vector<std::size_t> starts;
    for (std::size_t at = stream.find(head); at != std::string::npos; at = stream.find(head, at)) {
        at += head.size();
        starts.push_back(at);
    }
    return starts;
}

std::string cutShort(std::size_t offset, std::size_t received, std::size_t expected) {
    return ", byte " + std::to_string(offset) +
           ": BITMAP is cut short: " + std::to_string(received) + " of " +
           std::to_string(expected) + " bytes are there\n";
}

// By the summary.
bool isFreeOfComplaints(const FilterResult& result) {
    return result.standardOutput ==
               "standard input: no label: nothing is printed without PRINT\n" ||
           result.standardOutput.ends_with(", no complaints\n");
}

// As a cancelled job leaves it. Behind a whole line or a whole bitmap there is nothing to complain
// of; within a command the rest of it is, or is not, a command of its own.
void expectVerdict(const std::string& stream, std::size_t cut, const std::string& head,
                   std::size_t bytes) {
    const FilterResult result = runCheck(stream.substr(0, cut));
    EXPECT_EQ(result.standardError, "");
    bool complete = cut == 0 || stream[cut - 1] == '\n';
    for (const std::size_t start : dataStarts(stream, head)) {
        if (cut >= start && cut < start + bytes) {
            EXPECT_NE(result.standardOutput.find(cutShort(start - head.size(), cut - start, bytes)),
                      std::string::npos)
                << result.standardOutput;
            EXPECT_TRUE(result.standardOutput.ends_with(" 1 complaint\n")) << result.standardOutput;
            EXPECT_EQ(std::count(result.standardOutput.begin(), result.standardOutput.end(), '\n'),
                      2);
            EXPECT_EQ(result.status, 1);
            return;
        }
        complete = complete || cut == start + bytes;
    }
    EXPECT_EQ(result.standardOutput.find("BITMAP is cut short"), std::string::npos);
    EXPECT_TRUE(result.status == 0 || (result.status == 1 && !complete)) << result.status;
    EXPECT_EQ(isFreeOfComplaints(result), result.status == 0) << result.standardOutput;
}

TEST(CutStream, IsComplainedOfExactlyWhereABitmapIsCut) {
    const TemporaryFolder folder;
    const std::string stream =
        filterStream(callFor(labelJob({greyPage(24, 9, 1), greyPage(24, 9, 2)}), folder));
    const std::string head = "BITMAP 0,0,3,9,0,";
    ASSERT_EQ(dataStarts(stream, head).size(), 2U);
    for (std::size_t cut = 0; cut <= stream.size(); ++cut) {
        SCOPED_TRACE(cut);
        expectVerdict(stream, cut, head, 27);
    }
}

TEST(CutStream, OfALargeBitmapNamesTheBytesThatAreThere) {
    const TemporaryFolder folder;
    const std::string stream = filterStream(callFor(labelJob({greyPage(808, 1218)}), folder));
    const std::string head = "BITMAP 0,0,101,1218,0,";
    ASSERT_EQ(dataStarts(stream, head).size(), 1U);
    for (std::size_t cut = 0; cut <= stream.size(); cut += 4001) {
        SCOPED_TRACE(cut);
        expectVerdict(stream, cut, head, 123018);
    }
}

TEST(CutStream, DrawsTheLabelsThatWerePrintedBeforeTheCut) {
    const TemporaryFolder folder;
    const std::string second = smallLabel(letterBitmap);
    const FilterResult result = runPreview(
        folder, {}, smallLabel(letterBitmap) + second.substr(0, second.find("PRINT") - 5));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(folder.names(), std::set<std::string>{"label-1.png"});
    EXPECT_NE(result.standardError.find("BITMAP is cut short: 13 of 16 bytes"), std::string::npos);
}

}  // namespace
