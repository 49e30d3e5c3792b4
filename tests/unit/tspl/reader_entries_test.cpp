// What the list of commands tells of each.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

std::vector<Entry> entriesOf(std::string_view stream, const PrinterOptions& options = {}) {
    RecordingSink sink;
    obeyStream(stream, sink, options);
    return sink.entries;
}

Entry entryOf(std::string_view stream, const PrinterOptions& options = {}) {
    const auto entries = entriesOf(stream, options);
    EXPECT_EQ(entries.size(), 1U);
    return entries.empty() ? Entry{} : entries.front();
}

std::string remarkOf(std::string_view stream) {
    return entryOf(stream).remark;
}

TEST(Entries, OfACommandTellItsPlaceNameArgumentsAndText) {
    const auto entries = entriesOf("CLS\nsize 4 , 6 \n");
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[1].offset, 4U);
    EXPECT_EQ(entries[1].name, "SIZE");
    EXPECT_EQ(entries[1].arguments, (Texts{"4", "6"}));
    EXPECT_EQ(entries[1].text, "size 4 , 6 ");
    EXPECT_EQ(entries[1].remark, "");
    EXPECT_FALSE(entries[1].bitmap);
}

TEST(Entries, OfBlankLinesCountThem) {
    const Entry one = entryOf("\n");
    EXPECT_EQ(one.name, "");
    EXPECT_EQ(one.text, "(1 blank line)");
    EXPECT_EQ(one.remark, "");
    EXPECT_EQ(entryOf(std::string(64, '\n')).text, "(64 blank lines)");
    EXPECT_EQ(entriesOf("CLS\n\n\nCLS\n")[1].offset, 4U);
}

TEST(Entries, RemarkOnWhatIsNotObeyed) {
    EXPECT_EQ(remarkOf("CLS"), "");
    EXPECT_EQ(remarkOf("FEED 1"), "");
    EXPECT_EQ(remarkOf("TLC39 1,20,3,4,5"), "not drawn");
    EXPECT_EQ(remarkOf("WHAT"), "unknown");
    EXPECT_EQ(remarkOf("CLS 1"), "not understood");
    EXPECT_EQ(remarkOf("BITMAP 1"), "not understood");
}

TEST(Entries, RemarkOnLinesThatAreNoPartOfThePicture) {
    EXPECT_EQ(remarkOf("\x1b!S"), "not part of the picture");
    EXPECT_EQ(remarkOf("~!T"), "not part of the picture");
    EXPECT_EQ(remarkOf("@1=\"7\""), "not part of the picture");
    EXPECT_EQ(entryOf("~!T").name, "");
    EXPECT_EQ(entryOf("~!T").text, "~!T");
}

TEST(Entries, OfALineThatIsTooLongSayThatItIsSkipped) {
    const Entry entry = entryOf(std::string(StreamParser::longestLine + 1, 'x'));
    EXPECT_EQ(entry.name, "");
    EXPECT_EQ(entry.text, "(a long line)");
    EXPECT_EQ(entry.remark, "skipped");
}

TEST(Entries, OfABitmapTellItsHead) {
    const Entry entry = entriesOf("\nbitmap 1, -2,2,3 ,0,abcdef")[1];
    EXPECT_EQ(entry.offset, 1U);
    EXPECT_EQ(entry.name, "BITMAP");
    EXPECT_EQ(entry.arguments, (Texts{"1", "-2", "2", "3", "0"}));
    EXPECT_EQ(entry.text, "BITMAP 1,-2,2,3,0,");
    EXPECT_EQ(entry.remark, "");
}

// The bytes have 1, 6 and 8 zeros and 7, 2 and 0 ones.
TEST(Entries, OfABitmapSumItUp) {
    const std::string stream("BITMAP 0,0,1,3,0,\xFE\x11\0", 20);
    const Entry entry = entryOf(stream);
    ASSERT_TRUE(entry.bitmap);
    EXPECT_EQ(entry.bitmap->width, 8);
    EXPECT_EQ(entry.bitmap->height, 3);
    EXPECT_EQ(entry.bitmap->expectedBytes, 3U);
    EXPECT_EQ(entry.bitmap->receivedBytes, 3U);
    EXPECT_EQ(entry.bitmap->burntDots, 15U);
    PrinterOptions ones;
    ones.onesBurn = true;
    EXPECT_EQ(entryOf(stream, ones).bitmap->burntDots, 9U);
}

TEST(Entries, OfACutBitmapSumUpWhatIsThere) {
    const Entry entry = entryOf("BITMAP 0,0,2,3,0,\xFE\xFF");
    ASSERT_TRUE(entry.bitmap);
    EXPECT_EQ(entry.bitmap->width, 16);
    EXPECT_EQ(entry.bitmap->height, 3);
    EXPECT_EQ(entry.bitmap->expectedBytes, 6U);
    EXPECT_EQ(entry.bitmap->receivedBytes, 2U);
    EXPECT_EQ(entry.bitmap->burntDots, 1U);
}

TEST(Entries, OfTheNextBitmapStartAnew) {
    const auto entries = entriesOf("BITMAP 0,0,1,1,9,\xFE\nBITMAP 0,0,1,1,0,\xFF\n");
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].remark, "not drawn");
    EXPECT_EQ(entries[0].bitmap->burntDots, 1U);
    EXPECT_EQ(entries[1].remark, "");
    EXPECT_EQ(entries[1].bitmap->burntDots, 0U);
}

TEST(Entries, OfTheLargestBitmapTellItsSize) {
    const Entry entry = entryOf("BITMAP 0,0,2147483647,2147483647,0,");
    ASSERT_TRUE(entry.bitmap);
    EXPECT_EQ(entry.bitmap->width, 17179869176);
    EXPECT_EQ(entry.bitmap->height, 2147483647);
    EXPECT_EQ(entry.bitmap->expectedBytes, 4611686014132420609U);
    EXPECT_EQ(entry.bitmap->receivedBytes, 0U);
}

TEST(Entries, OfADownloadLeaveItsDataOut) {
    const auto entries = entriesOf("DOWNLOAD \"A\",3,CLS\nHOME\n");
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].text, "DOWNLOAD \"A\",3,");
    EXPECT_EQ(entries[0].arguments, (Texts{"\"A\"", "3", ""}));
    EXPECT_EQ(entries[1].text, "HOME");
}

TEST(Entries, ComeAfterWhatTheirCommandsLeadTo) {
    RecordingSink sink;
    obeyStream("SIZE 8 dot,1 dot\nWHAT\nBITMAP 0,0,1,2,0,ab\nPRINT 1\n", sink);
    EXPECT_EQ(sink.order, (Texts{"entry 0", "finding 17", "entry 17", "entry 22", "finding 22",
                                 "finding 22", "label 1", "entry 42"}));
}

}  // namespace
}  // namespace tspl
