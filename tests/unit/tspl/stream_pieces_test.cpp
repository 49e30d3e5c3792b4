// A stream tells the same whatever pieces it comes in.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

const Texts sParts = {
    "\n\r\n \t\r",
    "SIZE 4,6\r\n",
    "  cls\r",
    "\x1b!S",
    "HOME\n",
    "bitmap 0, -1 ,2,4,0,\r\n\n\rCLS\n",
    "\r\n",
    "\r\n",
    "BITMAP 3,4,1,1,1,\n",
    "BITMAP 3,4,0,7,1,",
    "\n",
    "DOWNLOAD \"A\",6,\r\nEOP\r",
    "DOWNLOAD F,\"B\",0,",
    "\x1b!R",
    "BOX 0,0,1,1,1,1\r\n",
    "BITMAP 0,0,1,x,0,\xFF\r",
    "\n\n",
    "TEXT \"a,b\",1,2,3,4,5\r\n",
    "~!T\n",
    "BITMAP 9,9,2,2,2,ab\n",
};

const Texts sEvents = {
    "blank 0 3",
    "command 6 SIZE 4,6",
    "command 18 cls",
    "command 22 \x1b!S",
    "command 25 HOME",
    "bitmap 30 0,-1,2,4,0",
    "data 8 \r\n\n\rCLS\n",
    "blank 60 1",
    "bitmap 62 3,4,1,1,1",
    "data 1 \n",
    "bitmap 80 3,4,0,7,1",
    "data 0",
    "command 98 DOWNLOAD \"A\",6,",
    "command 119 DOWNLOAD F,\"B\",0,",
    "command 136 \x1b!R",
    "command 139 BOX 0,0,1,1,1,1",
    "command 156 BITMAP 0,0,1,x,0,\xFF",
    "blank 176 1",
    "command 177 TEXT \"a,b\",1,2,3,4,5",
    "command 199 ~!T",
    "bitmap 203 9,9,2,2,2",
    "data 3 ab\n",
};

std::string wholeStream() {
    std::string stream;
    for (const std::string& part : sParts) {
        stream += part;
    }
    return stream;
}

TEST(StreamPieces, ThatAreOneTellWhatTheStreamHolds) {
    EXPECT_EQ(eventsOf(wholeStream()), sEvents);
}

TEST(StreamPieces, OfEverySplitInTwoTellTheSame) {
    const std::string stream = wholeStream();
    for (std::size_t at = 0; at <= stream.size(); ++at) {
        const std::string_view view = stream;
        EXPECT_EQ(eventsOfPieces({view.substr(0, at), view.substr(at)}), sEvents) << at;
    }
}

TEST(StreamPieces, OfEveryFixedSizeTellTheSame) {
    const std::string stream = wholeStream();
    for (std::size_t size = 1; size <= stream.size(); ++size) {
        std::vector<std::string_view> pieces;
        for (std::size_t at = 0; at < stream.size(); at += size) {
            pieces.push_back(std::string_view(stream).substr(at, size));
        }
        EXPECT_EQ(eventsOfPieces(pieces), sEvents) << size;
    }
}

TEST(StreamPieces, OfEveryBeginningTellTheSameByteByByte) {
    const std::string stream = wholeStream();
    for (std::size_t size = 0; size <= stream.size(); ++size) {
        std::vector<std::string_view> bytes;
        for (std::size_t at = 0; at < size; ++at) {
            bytes.push_back(std::string_view(stream).substr(at, 1));
        }
        EXPECT_EQ(eventsOfPieces(bytes), eventsOf(stream.substr(0, size))) << size;
    }
}

TEST(StreamPieces, OfALineThatIsTooLongTellTheSame) {
    const std::string line(StreamParser::longestLine, 'x');
    const std::string stream = "\n" + line + "yz\r\nCLS\n";
    const Texts expected = {"blank 0 1", "long 1", "command 65541 CLS"};
    for (std::size_t at = line.size() - 2; at <= stream.size(); ++at) {
        const std::string_view view = stream;
        EXPECT_EQ(eventsOfPieces({view.substr(0, at), view.substr(at)}), expected) << at;
    }
}

// Parts of a stream in any order, whole or cut, so that data swallow commands and heads break.
rc::Gen<std::string> anyStream() {
    const auto part = rc::gen::oneOf(
        rc::gen::elementOf(sParts),
        rc::gen::map(rc::gen::elementOf(sParts),
                     [](const std::string& text) { return text.substr(0, text.size() / 2); }),
        rc::gen::map(rc::gen::elementOf(std::string("\r\n\x1b! ,\"BD0")),
                     [](char c) { return std::string(1, c); }));
    return rc::gen::map(rc::gen::container<Texts>(part), [](const Texts& parts) {
        std::string stream;
        for (const std::string& text : parts) {
            stream += text;
        }
        return stream;
    });
}

RC_GTEST_PROP(StreamPieces, OfAnyStreamTellTheSame, ()) {
    const std::string stream = *anyStream();
    auto cuts = *rc::gen::container<std::vector<std::size_t>>(
        rc::gen::inRange<std::size_t>(0, stream.size() + 1));
    cuts.push_back(stream.size());
    std::sort(cuts.begin(), cuts.end());
    std::vector<std::string_view> pieces;
    std::size_t start = 0;
    for (const std::size_t cut : cuts) {
        pieces.push_back(std::string_view(stream).substr(start, cut - start));
        start = cut;
    }
    RC_ASSERT(eventsOfPieces(pieces) == eventsOf(stream));
}

}  // namespace
}  // namespace tspl
