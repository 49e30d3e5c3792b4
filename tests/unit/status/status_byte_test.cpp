// What the bits of a printer's answer mean.
#include "status/status_byte.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace status {
namespace {

using Reasons = std::vector<std::string>;

Reasons reasonsOf(unsigned bits) {
    return StatusByte(static_cast<std::uint8_t>(bits)).reasons();
}

TEST(StatusByte, OfNoBitIsReadyAndHasNothingToSay) {
    const StatusByte ready(0);
    EXPECT_TRUE(ready.isReady());
    EXPECT_FALSE(ready.isStopped());
    EXPECT_FALSE(ready.isPrinting());
    EXPECT_EQ(ready.reasons(), Reasons{});
    EXPECT_EQ(ready.words(), "");
}

TEST(StatusByte, NamesTheReasonOfEachBit) {
    EXPECT_EQ(reasonsOf(0x01), Reasons{"cover-open-error"});
    EXPECT_EQ(reasonsOf(0x02), Reasons{"media-jam-error"});
    EXPECT_EQ(reasonsOf(0x04), Reasons{"media-empty-error"});
    EXPECT_EQ(reasonsOf(0x08), Reasons{"marker-supply-empty-error"});
    EXPECT_EQ(reasonsOf(0x10), Reasons{"paused"});
    EXPECT_EQ(reasonsOf(0x20), Reasons{});
    EXPECT_EQ(reasonsOf(0x40), Reasons{"cover-open-error"});
    EXPECT_EQ(reasonsOf(0x80), Reasons{"other-error"});
}

TEST(StatusByte, SaysEachBitInWords) {
    EXPECT_EQ(StatusByte(0x01).words(), "The printer has its head open.");
    EXPECT_EQ(StatusByte(0x02).words(), "The printer has a paper jam.");
    EXPECT_EQ(StatusByte(0x04).words(), "The printer is out of labels.");
    EXPECT_EQ(StatusByte(0x08).words(), "The printer is out of ribbon.");
    EXPECT_EQ(StatusByte(0x10).words(), "The printer is paused.");
    EXPECT_EQ(StatusByte(0x20).words(), "");
    EXPECT_EQ(StatusByte(0x40).words(), "The printer has its cover open.");
    EXPECT_EQ(StatusByte(0x80).words(), "The printer reports an error of its own, or is too hot.");
}

TEST(StatusByte, SaysSeveralBitsInOneSentence) {
    EXPECT_EQ(StatusByte(0x05).words(), "The printer is out of labels, and has its head open.");
}

TEST(StatusByte, NamesAReasonOfTwoBitsOnce) {
    EXPECT_EQ(reasonsOf(0x41), Reasons{"cover-open-error"});
}

// The sets are put together here bit by bit, from the printers' table.
TEST(StatusByte, OfEveryCombinationHasTheReasonsOfItsBits) {
    const std::vector<std::string> ofBit{
        "cover-open-error",          "media-jam-error", "media-empty-error",
        "marker-supply-empty-error", "paused",          "",
        "cover-open-error",          "other-error"};
    for (unsigned bits = 0; bits < 256; ++bits) {
        std::set<std::string> wanted;
        for (unsigned bit = 0; bit < 8; ++bit) {
            if ((bits >> bit & 1U) != 0 && !ofBit[bit].empty()) {
                wanted.insert(ofBit[bit]);
            }
        }
        const Reasons reasons = reasonsOf(bits);
        EXPECT_EQ(std::set<std::string>(reasons.begin(), reasons.end()), wanted) << bits;
        EXPECT_EQ(reasons.size(), wanted.size()) << bits;
    }
}

TEST(StatusByte, OfEveryCombinationIsStoppedByAnythingButPrinting) {
    for (unsigned bits = 0; bits < 256; ++bits) {
        const StatusByte status(static_cast<std::uint8_t>(bits));
        const bool isOnlyPaused = bits == 0x10 || bits == 0x30;
        EXPECT_EQ(status.isStopped(), bits != 0 && bits != 0x20) << bits;
        EXPECT_EQ(status.hasError(), status.isStopped() && !isOnlyPaused) << bits;
        EXPECT_EQ(status.isPaused(), bits / 16 % 2 == 1) << bits;
        EXPECT_EQ(status.isPrinting(), bits / 32 % 2 == 1) << bits;
        EXPECT_EQ(status.isReady(), bits == 0) << bits;
    }
}

TEST(StatusByte, OfAnIdleLineIsImpossibleAndAnyOtherIsTakenAtItsWord) {
    EXPECT_FALSE(StatusByte(0xff).isPossible());
    EXPECT_TRUE(StatusByte(0x21).isPossible()) << "opened while it printed";
    EXPECT_TRUE(StatusByte(0x20).isPossible());
    EXPECT_TRUE(StatusByte(0x41).isPossible());
    EXPECT_TRUE(StatusByte(0x24).isPossible());
    EXPECT_TRUE(StatusByte(0x0f).isPossible());
}

TEST(StatusByte, KeywordsAreAllListed) {
    EXPECT_EQ(allReasons(), (Reasons{"media-empty-error", "media-jam-error", "cover-open-error",
                                     "marker-supply-empty-error", "paused", "other-error"}));
}

}  // namespace
}  // namespace status
