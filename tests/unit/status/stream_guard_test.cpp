// Where the commands of a stream end, however it is cut.
#include "status/stream_guard.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace status {
namespace {

struct Found {
    std::string text;
    PieceKind kind;
    friend bool operator==(const Found&, const Found&) = default;
};

void PrintTo(const Found& found, std::ostream* out) {
    *out << static_cast<int>(found.kind) << ":" << testing::PrintToString(found.text);
}

using Pieces = std::vector<Found>;

std::span<const std::uint8_t> bytesOf(const std::string& text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

// Adds what the guard finds; what comes in parts becomes one again.
void feed(StreamGuard& guard, const std::string& part, Pieces& pieces, std::string& rest) {
    for (std::size_t at = 0; at < part.size();) {
        const Piece piece = guard.take(bytesOf(part).subspan(at));
        rest += part.substr(at, piece.bytes);
        at += piece.bytes;
        const bool isWhole =
            piece.kind != PieceKind::Part && (piece.kind != PieceKind::Data || !guard.isInData());
        if (isWhole) {
            pieces.push_back({rest, piece.kind});
            rest.clear();
        }
    }
}

Pieces piecesOf(const std::vector<std::string>& parts) {
    StreamGuard guard;
    Pieces pieces;
    std::string rest;
    for (const std::string& part : parts) {
        feed(guard, part, pieces, rest);
    }
    if (!rest.empty()) {
        pieces.push_back({rest, guard.finish()});
    }
    return pieces;
}

Pieces piecesOf(const std::string& stream) {
    return piecesOf(std::vector<std::string>{stream});
}

constexpr auto line = PieceKind::Line;
constexpr auto print = PieceKind::Print;
constexpr auto head = PieceKind::DataHead;
constexpr auto data = PieceKind::Data;

TEST(StreamGuard, FindsTheLinesTheBitmapAndThePrint) {
    EXPECT_EQ(piecesOf("\nCLS\r\nBITMAP 0,0,2,2,0,abcd\r\nPRINT 1,1\r\n"),
              (Pieces{{"\n", line},
                      {"CLS\r\n", line},
                      {"BITMAP 0,0,2,2,0,", head},
                      {"abcd\r\n", data},
                      {"PRINT 1,1\r\n", print}}));
}

TEST(StreamGuard, CountsDataThatLookLikeCommands) {
    EXPECT_EQ(
        piecesOf("BITMAP 0,0,1,11,0,\r\nPRINT 1,1\r\nCLS\r\n"),
        (Pieces{{"BITMAP 0,0,1,11,0,", head}, {"\r\nPRINT 1,1\r\n", data}, {"CLS\r\n", line}}));
}

TEST(StreamGuard, TakesWidthTimesHeightAsFarAsThirtyTwoBitsGo) {
    StreamGuard guard;
    const std::string start = "BITMAP 0,0,4294967295,4294967295,0,";
    EXPECT_EQ(guard.take(bytesOf(start)).kind, head);
    const std::string part(100000, '\n');
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(guard.take(bytesOf(part)).bytes, part.size());
    }
    EXPECT_TRUE(guard.isInData());
}

TEST(StreamGuard, CountsOfAPackedBitmapTheBytesThatItNames) {
    EXPECT_EQ(
        piecesOf("BITMAP 0,0,100,100,3,4,ab\n\n\r\nPRINT 1\n"),
        (Pieces{{"BITMAP 0,0,100,100,3,4,", head}, {"ab\n\n\r\n", data}, {"PRINT 1\n", print}}));
}

TEST(StreamGuard, CountsTheDataOfADownload) {
    EXPECT_EQ(piecesOf("DOWNLOAD \"A,5,.PCX\",5,PRINT\r\nCLS\n"),
              (Pieces{{"DOWNLOAD \"A,5,.PCX\",5,", head}, {"PRINT\r\n", data}, {"CLS\n", line}}));
    EXPECT_EQ(piecesOf("download F,\"a.bin\",2,\n\nCLS\n"),
              (Pieces{{"download F,\"a.bin\",2,", head}, {"\n\n", data}, {"CLS\n", line}}));
}

TEST(StreamGuard, TakesAPrintOfAStoredProgramForALine) {
    EXPECT_EQ(piecesOf("DOWNLOAD \"A.BAS\"\r\nPRINT 1\r\nEOP\r\nPRINT 1\r\n"),
              (Pieces{{"DOWNLOAD \"A.BAS\"\r\n", line},
                      {"PRINT 1\r\n", line},
                      {"EOP\r\n", line},
                      {"PRINT 1\r\n", print}}));
}

TEST(StreamGuard, ReadsHeadsInSmallLettersAndWithBlanks) {
    EXPECT_EQ(piecesOf("  bitmap  1 , 2 ,\t1 ,1, 0 ,xprint 1\n"),
              (Pieces{{"  bitmap  1 , 2 ,\t1 ,1, 0 ,", head}, {"x", data}, {"print 1\n", print}}));
}

TEST(StreamGuard, TakesNoLineForDataThatOnlyBeginsLikeThem) {
    for (const std::string text :
         {"BITMAPS 0,0,1,1,0,\n", "BITMAP 0,0,-1,1,0,\n", "BITMAP 0,0,1,x,0,\n",
          "BITMAP 0,0,1,1,\n", "TEXT 0,0,\"BITMAP 0,0,1,1,0,\"\n", "\"BITMAP 0,0,1,1,0,\n",
          "BITMAP ,,,,,\n", "BITMAP 0,0,4294967296,1,0,\n", "DOWNLOADS \"a\",1,\n",
          "PRINTER 1\n"}) {
        EXPECT_EQ(piecesOf(text), (Pieces{{text, line}})) << text;
    }
}

TEST(StreamGuard, TakesABitmapWithoutDotsForOne) {
    EXPECT_EQ(piecesOf("BITMAP 0,0,0,5,0,\r\nCLS\n"),
              (Pieces{{"BITMAP 0,0,0,5,0,", head}, {"\r\n", data}, {"CLS\n", line}}));
}

TEST(StreamGuard, NeedsNoLineEndBehindData) {
    EXPECT_EQ(piecesOf("BITMAP 0,0,1,1,0,xPRINT 1\n"),
              (Pieces{{"BITMAP 0,0,1,1,0,", head}, {"x", data}, {"PRINT 1\n", print}}));
}

TEST(StreamGuard, TakesOneLineEndBehindData) {
    EXPECT_EQ(piecesOf("BITMAP 0,0,1,1,0,x\n\n"),
              (Pieces{{"BITMAP 0,0,1,1,0,", head}, {"x\n", data}, {"\n", line}}));
    EXPECT_EQ(
        piecesOf("BITMAP 0,0,1,1,0,x\r\rPRINT 1\r"),
        (Pieces{{"BITMAP 0,0,1,1,0,", head}, {"x\r", data}, {"\r", line}, {"PRINT 1\r", print}}));
}

TEST(StreamGuard, EndsLinesWithOneOrBothOfTheirEnds) {
    EXPECT_EQ(piecesOf("A\rPRINT 1\r\nPRINT 2\n\rC\n"), (Pieces{{"A\r", line},
                                                                {"PRINT 1\r\n", print},
                                                                {"PRINT 2\n", print},
                                                                {"\r", line},
                                                                {"C\n", line}}));
}

TEST(StreamGuard, TakesTheThreeBytesOfAnImmediateCommandForAWholeOne) {
    EXPECT_EQ(piecesOf("\x1b!?PRINT 1\n\x1b!SCLS\n"),
              (Pieces{{"\x1b!?", line}, {"PRINT 1\n", print}, {"\x1b!S", line}, {"CLS\n", line}}));
}

TEST(StreamGuard, TakesALineBehindAPrintForItself) {
    EXPECT_EQ(piecesOf("PRINT 1\r\n\r\n\n"),
              (Pieces{{"PRINT 1\r\n", print}, {"\r\n", line}, {"\n", line}}));
}

TEST(StreamGuard, TakesALastLineWithoutItsEnd) {
    EXPECT_EQ(piecesOf("PRINT 1"), (Pieces{{"PRINT 1", print}}));
    EXPECT_EQ(piecesOf("BITMAP 0,0,2,2,0,abc"),
              (Pieces{{"BITMAP 0,0,2,2,0,", head}, {"abc", data}}));
}

TEST(StreamGuard, TakesALineLongerThanAnyHeadForALine) {
    const std::string text = "BITMAP " + std::string(300, '1') + ",0,1,1,0,\n";
    EXPECT_EQ(piecesOf(text), (Pieces{{text, line}}));
    const std::string blanks = "BITMAP " + std::string(300, ' ') + "0,0,1,1,0,";
    EXPECT_EQ(piecesOf(blanks + "x\n"), (Pieces{{blanks, head}, {"x\n", data}}));
}

TEST(StreamGuard, IsBetweenCommandsOnlyBehindTheirEnds) {
    StreamGuard guard;
    EXPECT_TRUE(guard.isBetweenCommands());
    for (const auto& [byte, isBetween] :
         std::vector<std::pair<std::string, bool>>{{"C", false}, {"\r", false}, {"\n", true}}) {
        guard.take(bytesOf(byte));
        EXPECT_EQ(guard.isBetweenCommands(), isBetween) << testing::PrintToString(byte);
    }
}

// Every kind of thing that a stream can hold, but not many of each.
const std::string variety =
    "\n\n \nCLS\rSIZE 1 mm,1 mm\r\n\x1b!?BITMAP 0,0,2,2,0,\r\n\x1b!\r\nPRINT 1,1\r\n"
    "BITMAP 0,0,9,9,3,3,\n\n\nprint 2\rDOWNLOAD \"B\",2,xyDOWNLOAD \"A.BAS\"\nPRINT 1\nEOP\n"
    "BITMAP 0,0,0,0,0,\r\nPRINT 1,1\r\nTEXT 0,0,\"a,b,c,d,e,f\"\r\nPRINT";

void expectTheSameHoweverCut(const std::string& stream) {
    const Pieces whole = piecesOf(stream);
    for (std::size_t cut = 0; cut <= stream.size(); ++cut) {
        ASSERT_EQ(piecesOf({stream.substr(0, cut), stream.substr(cut)}), whole) << cut;
    }
    std::vector<std::string> bytes;
    for (const char byte : stream) {
        bytes.emplace_back(1, byte);
    }
    ASSERT_EQ(piecesOf(bytes), whole);
}

TEST(StreamGuard, FindsTheSameHoweverAStreamOfManyKindsIsCut) {
    expectTheSameHoweverCut(variety);
    for (std::size_t first = 0; first < variety.size(); ++first) {
        for (std::size_t second = first; second < variety.size(); ++second) {
            ASSERT_EQ(piecesOf({variety.substr(0, first), variety.substr(first, second - first),
                                variety.substr(second)}),
                      piecesOf(variety))
                << first << " and " << second;
        }
    }
}

std::string goldenStream(const char* name) {
    std::ifstream file(std::string(KESTO_GOLDEN_FOLDER "/") + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(StreamGuard, FindsTheSameHoweverTheFiltersStreamIsCut) {
    const std::string stream = goldenStream("label.tspl");
    ASSERT_GT(stream.size(), 50U * 203U);
    expectTheSameHoweverCut(stream);
}

TEST(StreamGuard, FindsInTheFiltersStreamOneBitmapAndOnePrint) {
    const Pieces pieces = piecesOf(goldenStream("label.tspl"));
    ASSERT_EQ(pieces.size(), 64U + 11U + 3U);
    EXPECT_EQ(pieces[75], (Found{"BITMAP 0,0,50,203,0,", head}));
    EXPECT_EQ(pieces[76].kind, data);
    EXPECT_EQ(pieces[76].text.size(), 50U * 203U + 2U);
    EXPECT_EQ(pieces[77], (Found{"PRINT 1,1\r\n", print}));
}

}  // namespace
}  // namespace status
