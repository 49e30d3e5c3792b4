// Commands, labels and findings as JSON, read back.
#include "preview/json_listing.h"

#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/unit/tspl/test_support.h"

namespace preview {
namespace {

using nlohmann::json;

std::string listed(std::string_view stream) {
    std::ostringstream out;
    JsonListing listing(out);
    tspl::obeyStream(stream, listing);
    return out.str();
}

// The objects of a list, one per line.
std::vector<json> objectsOf(std::string_view stream) {
    std::istringstream lines(listed(stream));
    std::vector<json> objects;
    for (std::string line; std::getline(lines, line);) {
        objects.push_back(json::parse(line));
    }
    return objects;
}

TEST(JsonListing, HasAnObjectForEachCommand) {
    EXPECT_EQ(objectsOf("cls\nSIZE 4 , 6\r\n"), (std::vector<json>{{{"type", "command"},
                                                                    {"offset", 0},
                                                                    {"command", "CLS"},
                                                                    {"arguments", json::array()},
                                                                    {"text", "cls"}},
                                                                   {{"type", "command"},
                                                                    {"offset", 4},
                                                                    {"command", "SIZE"},
                                                                    {"arguments", {"4", "6"}},
                                                                    {"text", "SIZE 4 , 6"}}}));
}

TEST(JsonListing, WritesMembersInAFixedOrderOnOneLine) {
    EXPECT_EQ(listed("FEED 1\n"),
              "{\"type\":\"command\",\"offset\":0,\"command\":\"FEED\",\"arguments\":[\"1\"],"
              "\"text\":\"FEED 1\"}\n");
}

TEST(JsonListing, HasOtherObjectsForWhatIsNoCommand) {
    EXPECT_EQ(objectsOf("\n\n~!T"),
              (std::vector<json>{
                  {{"type", "other"}, {"offset", 0}, {"text", "(2 blank lines)"}},
                  {{"type", "other"},
                   {"offset", 2},
                   {"text", "~!T"},
                   {"remark", "not part of the picture"}},
              }));
}

TEST(JsonListing, SumsUpBitmaps) {
    const auto objects = objectsOf("BITMAP 0,0,2,3,0,\xFF\x0F");
    ASSERT_EQ(objects.size(), 2U);
    EXPECT_EQ(objects[0], (json{{"type", "complaint"},
                                {"offset", 0},
                                {"line", 1},
                                {"text", "BITMAP is cut short: 2 of 6 bytes are there"}}));
    EXPECT_EQ(objects[1]["command"], "BITMAP");
    EXPECT_EQ(objects[1]["arguments"], (json{"0", "0", "2", "3", "0"}));
    EXPECT_EQ(objects[1]["bitmap"], (json{{"width", 16},
                                          {"height", 3},
                                          {"expectedBytes", 6},
                                          {"receivedBytes", 2},
                                          {"burntDots", 4},
                                          {"burntShare", 0.25}}));
    EXPECT_FALSE(objects[1].contains("remark"));
}

TEST(JsonListing, TellsFindingsBeforeTheirCommands) {
    const auto objects = objectsOf("WHAT\nTLC39 1,20,3,4,5\n");
    ASSERT_EQ(objects.size(), 4U);
    EXPECT_EQ(
        objects[0],
        (json{
            {"type", "complaint"}, {"offset", 0}, {"line", 1}, {"text", "unknown command: WHAT"}}));
    EXPECT_EQ(objects[1]["remark"], "unknown");
    EXPECT_EQ(
        objects[2],
        (json{{"type", "remark"}, {"offset", 5}, {"line", 2}, {"text", "TLC39 is not drawn"}}));
    EXPECT_EQ(objects[3]["remark"], "not drawn");
}

TEST(JsonListing, TellsLabels) {
    const auto objects = objectsOf("SIZE 9 dot,4 dot\nBAR 0,0,2,2\nPRINT 2,3\n");
    ASSERT_EQ(objects.size(), 4U);
    EXPECT_EQ(objects[2], (json{{"type", "label"},
                                {"number", 1},
                                {"width", 9},
                                {"height", 4},
                                {"dpi", 203},
                                {"dpiFrom", "default"},
                                {"direction", 0},
                                {"mirrored", false},
                                {"sets", 2},
                                {"copies", 3},
                                {"burntDots", 4}}));
    EXPECT_EQ(objects[3]["command"], "PRINT");
}

TEST(JsonListing, TellsTheDirectionOfALabel) {
    const auto turned = objectsOf("SIZE 9 dot,4 dot\nDIRECTION 1\nBAR 0,0,2,2\nPRINT 1\n").at(3);
    EXPECT_EQ(turned["direction"], 1);
    EXPECT_EQ(turned["mirrored"], false);
    const auto mirrored =
        objectsOf("SIZE 9 dot,4 dot\nDIRECTION 0,1\nBAR 0,0,2,2\nPRINT 1\n").at(3);
    EXPECT_EQ(mirrored["direction"], 0);
    EXPECT_EQ(mirrored["mirrored"], true);
}

// 2 mm are 16 dots of 203 to the inch and 24 of 300.
TEST(JsonListing, TellsHowTheResolutionIsKnown) {
    const std::string bitmap = "BITMAP 0,0,3,1,0,abc\n";
    const auto objects =
        objectsOf("SIZE 2 mm,1 mm\n" + bitmap + "PRINT 1\nCLS\nBAR 0,0,2,2\nPRINT 1\n");
    EXPECT_EQ(objects.at(2)["dpiFrom"], "bitmaps");
    EXPECT_EQ(objects.at(2)["dpi"], 300);
    EXPECT_EQ(objects.at(6)["dpiFrom"], "label before");
    EXPECT_EQ(objects.at(6)["dpi"], 300);
}

TEST(JsonListing, CallsTheResolutionOfAnOptionByThatName) {
    std::ostringstream out;
    JsonListing listing(out);
    tspl::PrinterOptions options;
    options.dpi = 300;
    tspl::PrinterModel model(listing, options);
    tspl::StreamParser parser(model);
    parser.feed(tspl::bytesOf("SIZE 2 mm,1 mm\nBAR 0,0,2,2\nPRINT 1\n"));
    EXPECT_NE(out.str().find("\"dpi\":300,\"dpiFrom\":\"option\""), std::string::npos) << out.str();
}

TEST(JsonListing, SumsUpAStream) {
    std::ostringstream out;
    JsonListing listing(out);
    StreamTally tally;
    tspl::obeyStream("TLC39 1,20,3,4,5\nSPIN\nSPIN\nPRINT 1\n", tally);
    listing.onEnd(tally);
    EXPECT_EQ(out.str(), "{\"type\":\"summary\",\"labels\":1,\"complaints\":3,\"remarks\":1}\n");
}

TEST(JsonListing, NamesTheRulesOfItsObjects) {
    std::ostringstream out;
    JsonListing::writeSchema(out);
    const json schema = json::parse(out.str());
    EXPECT_EQ(schema["type"], "schema");
    EXPECT_EQ(schema["version"], 1);
    EXPECT_EQ(schema["program"].get<std::string>().substr(0, 12), "tsplpreview ");
}

TEST(JsonListing, HoldsTheLargestNumbers) {
    const auto objects = objectsOf("BITMAP 0,0,2147483647,2147483647,0,");
    EXPECT_EQ(objects.at(1)["bitmap"]["expectedBytes"], 4611686014132420609U);
    EXPECT_EQ(objects.at(1)["bitmap"]["width"], 17179869176);
    std::ostringstream out;
    JsonListing listing(out);
    listing.onFinding({tspl::Finding::Kind::Remark, UINT64_MAX, ""});
    EXPECT_EQ(json::parse(out.str())["offset"], UINT64_MAX);
}

TEST(JsonListing, ShowsOtherBytesAsTheirNumbers) {
    const auto objects = objectsOf("TLC39 1,20,3,4,5,\"\xE4\\\"");
    ASSERT_EQ(objects.size(), 2U);
    EXPECT_EQ(objects[1]["text"], "TLC39 1,20,3,4,5,\"\\xe4\\x5c\"");
    EXPECT_EQ(objects[1]["arguments"][5], "\"\\xe4\\x5c\"");
}

TEST(JsonListing, CanBeReadBackWhateverBytesALineHolds) {
    std::string stream;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\n' && byte != '\r') {
            stream += "X" + std::string(1, static_cast<char>(byte)) + "\nCLS\n";
        }
    }
    const auto objects = objectsOf(stream);
    ASSERT_EQ(objects.size(), 3U * 254);
    EXPECT_EQ(objects.at(1)["text"], "X\\x00");
    EXPECT_EQ(objects.at(objects.size() - 2)["text"], "X\\xff");
}

}  // namespace
}  // namespace preview
