// Streams that are no TSPL.
#include "tspl/foreign_stream.h"

#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

using namespace std::string_literals;

TEST(ForeignStream, IsNamedByItsFirstLine) {
    const std::pair<std::string, const char*> formats[] = {
        {"^XA^FO50,50^FDx^FS^XZ", "ZPL"},
        {"CT~~CD,~CC^~CT~", "ZPL"},
        {"N", "EPL"},
        {"I8,A,001", "EPL"},
        {"q831", "EPL"},
        {"Q400,024", "EPL"},
        {"rN", "EPL"},
        {"ZT ", "EPL"},
        {"S4", "EPL"},
        {"D7", "EPL"},
        {"~SD15", "ZPL"},
        {"^FX of a program", "ZPL"},
        {"\x10"
         "CT~~CD,~CC^~CT~",
         "ZPL"},
        {"C\0L\0S\0"s, "UTF-16"},
        {"\0S\0I\0Z\0E"s, "UTF-16"},
        {"%PDF-1.4", "PDF"},
        {"%!PS-Adobe-3.0", "PostScript"},
        {"\xFF\xFES\0I\0"s, "UTF-16"},
        {"\xFE\xFF\0S"s, "UTF-16"},
        {"S\0I\0Z\0E\0"s, "UTF-16"},
        {"\x1b@", "ESC/POS"},
        {"! 0 200 200 210 1", "CPCL"},
        {"\x89PNG\r"s, "a PNG picture"},
        {"RaS2PwgRaster", "CUPS raster"},
    };
    for (const auto& [line, name] : formats) {
        EXPECT_EQ(foreignFormat(line), name) << line;
    }
}

TEST(ForeignStream, IsNoneThatBeginsWithACommandOrAnythingElse) {
    for (const char* line :
         {"SIZE 4,6", "CLS", "", "NEXT", "!", "<xpml></xpml>", "\x1b!R", "~!T", "REM ^XA",
          "@1=\"1\"", "Q", "D", "S=4", "D7=1", "I8", "R1X", "NO", "ON"}) {
        EXPECT_EQ(foreignFormat(line), "") << line;
    }
}

TEST(ForeignStream, IsComplainedOfOnce) {
    EXPECT_EQ(findingsOf("\n^XA\n^FO50,50\n^FDtext^FS\nPRINT 1\n^XZ\n"),
              Texts{"complaint 1 this is no TSPL: it looks like ZPL"});
    EXPECT_EQ(findingsOf("%PDF-1.4\n" + std::string(200'000, 'x') + "\nendobj\n").size(), 1U);
}

TEST(ForeignStream, OfEplIsKnownByItsSettings) {
    EXPECT_EQ(findingsOf("I8,A,001\nQ400,024\nq831\nN\nA10,10,0,1,1,1,N,\"x\"\nP1\n"),
              Texts{"complaint 0 this is no TSPL: it looks like EPL"});
}

TEST(ForeignStream, PrintsNothingAndListsNothing) {
    RecordingSink sink;
    obeyStream("N\nA50,50,0,1,1,1,N,\"x\"\nSIZE 4,6\nPRINT 1\n", sink);
    EXPECT_TRUE(sink.labels.empty());
    EXPECT_TRUE(sink.entries.empty());
}

TEST(ForeignStream, OfEplIsToldByItsBeginningOnly) {
    EXPECT_EQ(findingsOf("SIZE 4,6\nN\n"), Texts{"complaint 9 unknown command: N"});
}

TEST(ForeignStream, BehindTsplIsComplainedOfOnceUpToTheNextCommand) {
    EXPECT_EQ(findingsOf("SIZE 4,6\nCLS\n^XA\n^FO50,50\n^FDx^FS\n^XZ\nDENSITY 8\n^FO1,1\n"),
              (Texts{"complaint 13 this is no TSPL: it looks like ZPL",
                     "complaint 48 unknown command: ^FO1,1"}));
    EXPECT_EQ(findingsOf("CLS\n%PDF-1.4\n1 0 obj\nendobj\nCLS\n^XA\n"),
              (Texts{"complaint 4 this is no TSPL: it looks like PDF",
                     "complaint 32 this is no TSPL: it looks like ZPL"}));
}

TEST(ForeignStream, OfNoKnownKindIsComplainedOfTenTimesAndOnce) {
    std::string rows;
    for (int i = 0; i < 3000; ++i) {
        rows += "row," + std::to_string(i) + "\n";
    }
    const Texts findings = findingsOf(rows);
    ASSERT_EQ(findings.size(), 11U);
    EXPECT_EQ(findings[9], "complaint 54 unknown command: row,9");
    EXPECT_EQ(findings[10],
              "complaint 60 no command here either: up to the next one no more is said");
    // A command that is known begins the count anew.
    EXPECT_EQ(findingsOf(rows + "CLS\nFOO\n" + std::string(70000, 'x') + "\n").size(), 13U);
    EXPECT_EQ(findingsOf(rows + std::string(70000, 'x') + "\n").size(), 11U);
    // So does one that is not understood.
    EXPECT_EQ(findingsOf(rows + "BITMAP 0,0,1\nFOO\n").size(), 13U);
}

TEST(ForeignStream, BehindTsplHidesNoCommandOfTheLabel) {
    RecordingSink sink;
    obeyStream("SIZE 4,6\nCLS\n^XA\n^XZ\nBAR 0,0,8,8\nPRINT 1\n", sink);
    ASSERT_EQ(sink.labels.size(), 1U);
    EXPECT_EQ(sink.entries.size(), 6U);
}

TEST(ForeignStream, MayBeTsplBehindAByteOrderMark) {
    EXPECT_EQ(findingsOf("\xEF\xBB\xBFSIZE 4,6\nCLS\n"),
              Texts{"complaint 0 a byte order mark stands in front of the first command; printers "
                    "take it for a part of it"});
}

}  // namespace
}  // namespace tspl
