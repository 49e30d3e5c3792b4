// Picture data and stored files in a stream.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

TEST(BitmapData, MayHoldAnyByte) {
    std::string data;
    for (int byte = 0; byte < 256; ++byte) {
        data += static_cast<char>(byte);
    }
    EXPECT_EQ(eventsOf("BITMAP 1,2,16,16,0," + data + "\nCLS"),
              (Texts{"bitmap 0 1,2,16,16,0", "data 256 " + data, "command 276 CLS"}));
}

TEST(BitmapData, MayHoldLineEndsAndCommands) {
    EXPECT_EQ(eventsOf("BITMAP 0,0,3,4,0,\r\n\n\r\nCLS\r\n\n\r\n\n\nHOME"),
              (Texts{"bitmap 0 0,0,3,4,0", "data 12 \r\n\n\r\nCLS\r\n\n\r", "blank 30 2",
                     "command 32 HOME"}));
}

TEST(BitmapData, OwnTheLineEndBehindThem) {
    for (const std::string end : {"\n", "\r", "\r\n"}) {
        const std::string offset = std::to_string(18 + end.size());
        EXPECT_EQ(eventsOf("BITMAP 0,0,1,1,0,a" + end + "CLS" + end),
                  (Texts{"bitmap 0 0,0,1,1,0", "data 1 a", "command " + offset + " CLS"}));
    }
}

TEST(BitmapData, OwnOneLineEndOnly) {
    EXPECT_EQ(eventsOf("BITMAP 0,0,1,1,0,a\r\n\r\nCLS"),
              (Texts{"bitmap 0 0,0,1,1,0", "data 1 a", "blank 20 1", "command 22 CLS"}));
    EXPECT_EQ(eventsOf("BITMAP 0,0,1,1,0,a\n\nCLS"),
              (Texts{"bitmap 0 0,0,1,1,0", "data 1 a", "blank 19 1", "command 20 CLS"}));
    EXPECT_EQ(eventsOf("BITMAP 0,0,1,1,0,a\n\rCLS"),
              (Texts{"bitmap 0 0,0,1,1,0", "data 1 a", "blank 19 1", "command 20 CLS"}));
}

TEST(BitmapData, EndTheirLineEndWithTheirLastByteWhenThatIsACarriageReturn) {
    EXPECT_EQ(eventsOf("BITMAP 0,0,1,1,0,\r\nCLS"),
              (Texts{"bitmap 0 0,0,1,1,0", "data 1 \r", "command 19 CLS"}));
}

TEST(BitmapData, MayBeFollowedByACommandAtOnce) {
    EXPECT_EQ(eventsOf("BITMAP 0,0,1,1,0,aPRINT 1\n"),
              (Texts{"bitmap 0 0,0,1,1,0", "data 1 a", "command 18 PRINT 1"}));
    EXPECT_EQ(eventsOf("BITMAP 0,0,1,1,0,aBITMAP 0,0,1,1,1,b"),
              (Texts{"bitmap 0 0,0,1,1,0", "data 1 a", "bitmap 18 0,0,1,1,1", "data 1 b"}));
}

TEST(BitmapData, AreToldAsFarAsTheyCome) {
    const std::string stream = "CLS\nBITMAP 0,0,2,3,0,abcdef";
    for (std::size_t received = 0; received <= 6; ++received) {
        const std::string data = received == 0 ? "" : " " + stream.substr(21, received);
        EXPECT_EQ(eventsOf(stream.substr(0, 21 + received)),
                  (Texts{"command 0 CLS", "bitmap 4 0,0,2,3,0",
                         "data " + std::to_string(received) + data}));
    }
}

TEST(BitmapData, AreAwaitedUpToTheLargestNumbers) {
    EXPECT_EQ(eventsOf("BITMAP 0,0,2147483647,2147483647,0,abc\n"),
              (Texts{"bitmap 0 0,0,2147483647,2147483647,0", "data 4 abc\n"}));
}

TEST(BitmapData, AreNoneForABitmapOfNoSize) {
    for (const std::string size : {"0,0", "5,0", "0,5"}) {
        EXPECT_EQ(eventsOf("BITMAP 0,0," + size + ",0,\r\nCLS\n"),
                  (Texts{"bitmap 0 0,0," + size + ",0", "data 0", "command 19 CLS"}));
        EXPECT_EQ(eventsOf("BITMAP 0,0," + size + ",0,CLS\n"),
                  (Texts{"bitmap 0 0,0," + size + ",0", "data 0", "command 17 CLS"}));
        EXPECT_EQ(eventsOf("BITMAP 0,0," + size + ",0,"),
                  (Texts{"bitmap 0 0,0," + size + ",0", "data 0"}));
    }
}

TEST(BitmapData, FollowAHeadInSmallLettersWithBlanks) {
    EXPECT_EQ(eventsOf("  bitmap  0 , -3,1, 2 ,0,\n\nCLS"),
              (Texts{"bitmap 2 0,-3,1,2,0", "data 2 \n\n", "command 27 CLS"}));
}

TEST(BitmapData, ComeAfterTheBlankLinesBeforeTheirHead) {
    EXPECT_EQ(eventsOf("\n\nBITMAP 0,0,1,1,0,a"),
              (Texts{"blank 0 2", "bitmap 2 0,0,1,1,0", "data 1 a"}));
}

TEST(BitmapData, DoNotFollowAHeadThatCannotBeRead) {
    for (const std::string line :
         {"BITMAP 0,0,1,1,", "BITMAP 0,0,-1,1,0,ab", "BITMAP 0,0,1,-1,0,ab", "BITMAP 0,0,x,1,0,ab",
          "BITMAP 0,0,4294967297,1,0,ab", "BITMAP ,,,,,ab", "BITMAP 0,0,,1,0,ab",
          "BITMAP \"0,0\",1,1,0,ab", "BITMAPX 0,0,1,1,0,ab", "BOX 0,0,1,1,0,ab"}) {
        EXPECT_EQ(
            eventsOf(line + "\nCLS"),
            (Texts{"command 0 " + line, "command " + std::to_string(line.size() + 1) + " CLS"}));
    }
}

TEST(DownloadData, AreSkippedWhateverTheyHold) {
    EXPECT_EQ(eventsOf("DOWNLOAD \"A.BMP\",8,\r\nCLS\r\n\n\nHOME"),
              (Texts{"command 0 DOWNLOAD \"A.BMP\",8,", "command 28 HOME"}));
}

TEST(DownloadData, FollowTheLetterOfAMemoryToo) {
    EXPECT_EQ(eventsOf("\ndownload F,\"A.BMP\",3,CLS\nHOME"),
              (Texts{"blank 0 1", "command 1 download F,\"A.BMP\",3,", "command 26 HOME"}));
}

TEST(DownloadData, OwnTheLineEndBehindThemOrNone) {
    const std::string head = "DOWNLOAD \"A\",1,";
    EXPECT_EQ(eventsOf(head + "x\r\nCLS"), (Texts{"command 0 " + head, "command 18 CLS"}));
    EXPECT_EQ(eventsOf(head + "xCLS"), (Texts{"command 0 " + head, "command 16 CLS"}));
    EXPECT_EQ(eventsOf(head + "x\n\nCLS"),
              (Texts{"command 0 " + head, "blank 17 1", "command 18 CLS"}));
}

TEST(DownloadData, AreToldToBeCutShort) {
    const std::string head = "\nDOWNLOAD \"A\",3,";
    const std::string command = "command 1 DOWNLOAD \"A\",3,";
    EXPECT_EQ(eventsOf(head), (Texts{"blank 0 1", command, "cut 1 3 0"}));
    EXPECT_EQ(eventsOf(head + "ab"), (Texts{"blank 0 1", command, "cut 1 3 2"}));
    EXPECT_EQ(eventsOf(head + "abc"), (Texts{"blank 0 1", command}));
}

TEST(DownloadData, AreNoneForAFileOfNoSize) {
    EXPECT_EQ(eventsOf("DOWNLOAD \"A\",0,\nCLS"),
              (Texts{"command 0 DOWNLOAD \"A\",0,", "command 16 CLS"}));
}

TEST(DownloadData, DoNotFollowAProgram) {
    EXPECT_EQ(eventsOf("DOWNLOAD \"A.BAS\"\nCLS\nEOP\n"),
              (Texts{"command 0 DOWNLOAD \"A.BAS\"", "command 17 CLS", "command 21 EOP"}));
    EXPECT_EQ(eventsOf("DOWNLOAD F,\"A.BAS\"\nCLS"),
              (Texts{"command 0 DOWNLOAD F,\"A.BAS\"", "command 19 CLS"}));
}

TEST(DownloadData, FollowANameWithACommaInIt) {
    EXPECT_EQ(eventsOf("DOWNLOAD \"A,B\",3,CLS\nHOME"),
              (Texts{"command 0 DOWNLOAD \"A,B\",3,", "command 21 HOME"}));
}

TEST(DownloadData, FollowAMemoryAndANameWithACommaInIt) {
    EXPECT_EQ(eventsOf("DOWNLOAD F,\"A,B\",3,CLS\nHOME"),
              (Texts{"command 0 DOWNLOAD F,\"A,B\",3,", "command 23 HOME"}));
}

TEST(BitmapSizedLine, OfACommandWithFiveCommasStaysALine) {
    EXPECT_EQ(eventsOf("BARCODE 1,2,3,4,5,6,7\nDMATRIX 1,2,3,4,5,6\nBLOCK 1,2,3,\"a\",5,"),
              (Texts{"command 0 BARCODE 1,2,3,4,5,6,7", "command 22 DMATRIX 1,2,3,4,5,6",
                     "command 42 BLOCK 1,2,3,\"a\",5,"}));
}

}  // namespace
}  // namespace tspl
