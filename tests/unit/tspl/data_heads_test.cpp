// The heads of the commands that picture data or a file follow.
#include "tspl/data_heads.h"

#include <gtest/gtest.h>

namespace tspl {
namespace {

std::optional<BitmapHead> bitmapHead(const std::string& line) {
    return parseBitmapHead(parseCommand({9, 2}, line));
}

std::optional<std::uint64_t> downloadHead(const std::string& line) {
    const auto head = parseDownloadHead(parseCommand({9, 2}, line));
    return head ? std::optional(head->bytes) : std::nullopt;
}

TEST(ParseBitmapHead, ReadsThePlaceTheSizeAndTheMode) {
    const auto head = bitmapHead("BITMAP 1,2,3,4,5,");
    ASSERT_TRUE(head);
    EXPECT_EQ(head->offset, 9U);
    EXPECT_EQ(head->x, 1);
    EXPECT_EQ(head->y, 2);
    EXPECT_EQ(head->rowBytes, 3);
    EXPECT_EQ(head->rows, 4);
    EXPECT_EQ(head->mode, 5);
}

TEST(ParseBitmapHead, TakesSmallLettersAndBlanks) {
    const auto head = bitmapHead("bitmap  1 , 2,\t3, 4 ,5 ,");
    ASSERT_TRUE(head);
    EXPECT_EQ(head->x, 1);
    EXPECT_EQ(head->mode, 5);
}

TEST(ParseBitmapHead, TakesNegativePlacesAndTheLargestNumbers) {
    const auto head = bitmapHead("BITMAP -2147483648,-1,2147483647,2147483647,-7,");
    ASSERT_TRUE(head);
    EXPECT_EQ(head->x, INT32_MIN);
    EXPECT_EQ(head->y, -1);
    EXPECT_EQ(head->rowBytes, INT32_MAX);
    EXPECT_EQ(head->rows, INT32_MAX);
    EXPECT_EQ(head->mode, -7);
}

TEST(ParseBitmapHead, TakesAPictureOfNoSize) {
    EXPECT_TRUE(bitmapHead("BITMAP 0,0,0,0,0,"));
}

TEST(ParseBitmapHead, IsNothingForANegativeSize) {
    EXPECT_FALSE(bitmapHead("BITMAP 0,0,-1,4,0,"));
    EXPECT_FALSE(bitmapHead("BITMAP 0,0,1,-4,0,"));
}

TEST(ParseBitmapHead, IsNothingWhenANumberIsMissing) {
    EXPECT_FALSE(bitmapHead("BITMAP"));
    EXPECT_FALSE(bitmapHead("BITMAP 0,0,1,4"));
    EXPECT_FALSE(bitmapHead("BITMAP 0,0,1,4,,"));
    EXPECT_FALSE(bitmapHead("BITMAP ,0,1,4,0,"));
}

TEST(ParseBitmapHead, IsNothingForWhatIsNoWholeNumberOf32Bits) {
    EXPECT_FALSE(bitmapHead("BITMAP 0,0,x,4,0,"));
    EXPECT_FALSE(bitmapHead("BITMAP 0,0,1.0,4,0,"));
    EXPECT_FALSE(bitmapHead("BITMAP 0,0,2147483648,4,0,"));
    EXPECT_FALSE(bitmapHead("BITMAP 0,0,1,99999999999999999999,0,"));
}

TEST(ParseBitmapHead, IsNothingForAnotherCommand) {
    EXPECT_FALSE(bitmapHead("BOX 1,2,3,4,5,"));
    EXPECT_FALSE(bitmapHead("BITMAPS 1,2,3,4,5,"));
    EXPECT_FALSE(bitmapHead("1,2,3,4,5,"));
}

TEST(ParseDownloadHead, ReadsTheNumberOfBytes) {
    EXPECT_EQ(downloadHead("DOWNLOAD \"A.BMP\",123,"), 123U);
    EXPECT_EQ(downloadHead("download \"A.BMP\" , 0 ,"), 0U);
    EXPECT_EQ(downloadHead("DOWNLOAD \"A.BMP\",2147483647,"), 2147483647U);
}

TEST(ParseDownloadHead, TakesTheLetterOfAMemoryBeforeTheName) {
    EXPECT_EQ(downloadHead("DOWNLOAD F,\"A.BMP\",123,"), 123U);
    EXPECT_EQ(downloadHead("DOWNLOAD E, \"A.BMP\", 123,"), 123U);
}

TEST(ParseDownloadHead, LeavesACommaInTheNameAlone) {
    EXPECT_EQ(downloadHead("DOWNLOAD \"A,B.BMP\",123,"), 123U);
}

TEST(ParseDownloadHead, IsNothingBeforeTheCommaThatEndsTheHead) {
    EXPECT_FALSE(downloadHead("DOWNLOAD"));
    EXPECT_FALSE(downloadHead("DOWNLOAD \"A.BAS\""));
    EXPECT_FALSE(downloadHead("DOWNLOAD \"A.BMP\","));
    EXPECT_FALSE(downloadHead("DOWNLOAD \"A.BMP\",123"));
    EXPECT_FALSE(downloadHead("DOWNLOAD F,\"A.BMP\","));
}

TEST(ParseDownloadHead, IsNothingForWhatIsNoNumberOfBytes) {
    EXPECT_FALSE(downloadHead("DOWNLOAD \"A.BMP\",-1,"));
    EXPECT_FALSE(downloadHead("DOWNLOAD \"A.BMP\",x,"));
    EXPECT_FALSE(downloadHead("DOWNLOAD \"A.BMP\",,"));
    EXPECT_FALSE(downloadHead("DOWNLOAD \"A.BMP\",2147483648,"));
}

TEST(ParseDownloadHead, IsNothingForANameWithoutQuotes) {
    EXPECT_FALSE(downloadHead("DOWNLOAD A.BMP,123,"));
}

TEST(ParseDownloadHead, IsNothingForAnotherCommand) {
    EXPECT_FALSE(downloadHead("PUTBMP \"A.BMP\",123,"));
}

}  // namespace
}  // namespace tspl
