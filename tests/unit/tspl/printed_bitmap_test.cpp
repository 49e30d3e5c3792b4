// BITMAP: polarity, modes and places, by hand.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

constexpr auto sSize = "SIZE 10 dot,3 dot\nCLS\n";

Texts drawn(const std::string& commands, bool onesBurn = false) {
    PrinterOptions options;
    options.onesBurn = onesBurn;
    return pictureOf(sSize + commands + "PRINT 1\n", options);
}

TEST(Bitmap, BurnsItsZeros) {
    EXPECT_EQ(drawn("BITMAP 0,0,1,2,0,\x7F\xFE\n"),
              (Texts{"#.........", ".......#..", ".........."}));
}

TEST(Bitmap, BurnsItsOnesWhenThePrinterDoes) {
    EXPECT_EQ(drawn("BITMAP 0,0,1,2,0,\x7F\xFE\n", true),
              (Texts{".#######..", "#######...", ".........."}));
}

TEST(Bitmap, HasRowsOfWholeBytes) {
    EXPECT_EQ(pictureOf(bitmapOf("0,0", {"#..............#", ".......##......."}) + "PRINT 1"),
              (Texts{"#..............#", ".......##......."}));
}

TEST(Bitmap, StandsAtItsCorner) {
    EXPECT_EQ(drawn(bitmapOf("1,1", {"#.#....#"})),
              (Texts{"..........", ".#.#....#.", ".........."}));
}

TEST(Bitmap, MovesWithTheReference) {
    EXPECT_EQ(drawn("REFERENCE 3,2\n" + bitmapOf("-1,-1", {"#.#....#"})),
              (Texts{"..........", "..#.#....#", ".........."}));
}

TEST(Bitmap, IsCutAtEveryEdge) {
    EXPECT_EQ(
        drawn(bitmapOf("-1,-1", {"########", "##.....#", "########", "########", "########"})),
        (Texts{"#.....#...", "#######...", "#######..."}));
    EXPECT_EQ(drawn(bitmapOf("9,2", {"########", "########"})),
              (Texts{"..........", "..........", ".........#"}));
}

TEST(Bitmap, OfModeZeroOverwritesBurntAndBareDots) {
    EXPECT_EQ(drawn("BAR 0,0,4,1\n" + bitmapOf("0,0", {"..##..##"}, 0)),
              (Texts{"..##..##..", "..........", ".........."}));
}

TEST(Bitmap, OfModeOneAddsToWhatIsThere) {
    EXPECT_EQ(drawn("BAR 0,0,4,1\n" + bitmapOf("0,0", {"..##..##"}, 1)),
              (Texts{"####..##..", "..........", ".........."}));
}

TEST(Bitmap, OfModeTwoSwapsWhatIsThere) {
    EXPECT_EQ(drawn("BAR 0,0,4,1\n" + bitmapOf("0,0", {"..##..##"}, 2)),
              (Texts{"##....##..", "..........", ".........."}));
}

TEST(Bitmap, OfAnyOtherModeIsNotDrawn) {
    for (const int mode : {-1, 3, 2147483647}) {
        EXPECT_EQ(drawn(bitmapOf("0,0", {"########"}, mode)), Texts(3, ".........."));
    }
}

TEST(Bitmap, OfNoSizeDrawsNothing) {
    EXPECT_EQ(drawn("BITMAP 0,0,0,3,0,\nBITMAP 0,0,1,0,0,\n"), Texts(3, ".........."));
}

TEST(Bitmap, IsDrawnTheSameWhateverPiecesItComesIn) {
    const std::string stream = sSize +
                               bitmapOf("1,0", {"#.##..#.#..##.#.", "..##...#########",
                                                "#.#.#.#.........", "################"}) +
                               "PRINT 1\n";
    const Texts expected = pictureOf(stream);
    EXPECT_EQ(expected, (Texts{".#.##..#.#", "...##...##", ".#.#.#.#.."}));
    for (std::size_t at = 0; at <= stream.size(); ++at) {
        RecordingSink sink;
        PrinterModel model(sink, {});
        StreamParser parser(model);
        parser.feed(bytesOf(stream).first(at));
        parser.feed(bytesOf(stream).subspan(at));
        parser.finish();
        ASSERT_EQ(sink.labels.size(), 1U);
        EXPECT_EQ(sink.labels.front().rows, expected) << at;
    }
}

TEST(Bitmap, AtTheLargestNumbersIsCutOff) {
    for (const char* corner : {"2147483647,0", "-2147483648,0", "0,2147483647", "0,-2147483648"}) {
        EXPECT_EQ(drawn("REFERENCE 2147483647,2147483647\n" + bitmapOf(corner, {"########"}) +
                        "REFERENCE -2147483648,-2147483648\n" + bitmapOf(corner, {"########"})),
                  Texts(3, ".........."));
    }
}

}  // namespace
}  // namespace tspl
