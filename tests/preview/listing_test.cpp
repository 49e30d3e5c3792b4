#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/preview/preview_run.h"

namespace {

using nlohmann::json;

// Every kind of line that a list can have. The offsets in the lists are counted by hand.
const std::string everyLine =
    "\n\r\n\n"                                // 0, of 1, 2 and 1 bytes
    "SIZE 2 mm,1 mm\r\n"                      // 4
    "cls\r\n"                                 // 20
    "BITMAP 0,0,2,8,0," +                     // 25
    letterBitmap +                            // 42
    "\r\n"                                    // 58
    "BITMAP 0, 2, 1, 1, 1,\x0f"               // 60, data at 81
    "\n"                                      // 82
    "TLC39 10,0,\"3\",0,1,1,\"a, b\\c\"\r\n"  // 83
    "NONSENSE \x01\xff\r\n"                   // 114
    "SET TEAR ON\r\n"                         // 127
    "\x1b!?"                                  // 140
    "PRINT 1,2\r\n"                           // 143
    "BITMAP 0,0,4,4,0,abc";                   // 154

TEST(List, HasALineForEveryCommandWithItsOffset) {
    const TemporaryFolder folder;
    const FilterResult result = runPreview(folder, {"--list"}, everyLine);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardOutput,
              "         0  (3 blank lines)\n"
              "         4  SIZE 2 mm,1 mm\n"
              "        20  cls\n"
              "        25  BITMAP 0,0,2,8,0,  (16 x 8 dots, 16 bytes, 16.4 % of the dots burnt)\n"
              "        60  BITMAP 0,2,1,1,1,  (8 x 1 dots, 1 byte, 50.0 % of the dots burnt)\n"
              "        83  TLC39 10,0,\"3\",0,1,1,\"a, b\\x5cc\"  [not drawn]\n"
              "       114  NONSENSE \\x01\\xff  [unknown]\n"
              "       127  SET TEAR ON\n"
              "       140  \\x1b!?  [not part of the picture]\n"
              "       143  PRINT 1,2\n"
              "       154  BITMAP 0,0,4,4,0,  (32 x 4 dots, 3 of 16 bytes, 58.3 % of the dots "
              "burnt)\n");
    EXPECT_EQ(result.standardError,
              "standard input: line 8, byte 83: TLC39 is not drawn\n"
              "standard input: line 9, byte 114: unknown command: NONSENSE \\x01\\xff\n"
              "standard input: label 1: 16 x 8 dots at 203 dpi (by its bitmaps)\n"
              "standard input: line 12, byte 154: BITMAP is cut short: 3 of 16 bytes are there\n");
}

TEST(List, NamesTheFileInWhatItSays) {
    const TemporaryFolder folder;
    folder.write("label.tspl", "NONSENSE");
    EXPECT_EQ(runPreview(folder, {"--list", "label.tspl"}).standardError,
              "label.tspl: line 1, byte 0: unknown command: NONSENSE\n");
}

// The lines of a list as JSON; every one of them must be a whole object.
std::vector<json> jsonLines(const std::string& list) {
    std::vector<json> lines;
    std::istringstream stream(list);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(json::parse(line));
    }
    return lines;
}

TEST(JsonList, HasTheSameLinesAsObjects) {
    const TemporaryFolder folder;
    const FilterResult result = runPreview(folder, {"--json"}, everyLine);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardError, "");
    // 'a' = 0x61, 'b' = 0x62 and 'c' = 0x63 have 5, 5 and 4 bits that are 0: 14 of 24.
    const std::vector<json> expected = {
        {{"type", "other"}, {"offset", 0}, {"text", "(3 blank lines)"}},
        {{"type", "command"},
         {"offset", 4},
         {"command", "SIZE"},
         {"arguments", {"2 mm", "1 mm"}},
         {"text", "SIZE 2 mm,1 mm"}},
        {{"type", "command"},
         {"offset", 20},
         {"command", "CLS"},
         {"arguments", json::array()},
         {"text", "cls"}},
        {{"type", "command"},
         {"offset", 25},
         {"command", "BITMAP"},
         {"arguments", {"0", "0", "2", "8", "0"}},
         {"text", "BITMAP 0,0,2,8,0,"},
         {"bitmap",
          {{"width", 16},
           {"height", 8},
           {"expectedBytes", 16},
           {"receivedBytes", 16},
           {"burntDots", 21},
           {"burntShare", 21.0 / 128}}}},
        {{"type", "command"},
         {"offset", 60},
         {"command", "BITMAP"},
         {"arguments", {"0", "2", "1", "1", "1"}},
         {"text", "BITMAP 0,2,1,1,1,"},
         {"bitmap",
          {{"width", 8},
           {"height", 1},
           {"expectedBytes", 1},
           {"receivedBytes", 1},
           {"burntDots", 4},
           {"burntShare", 0.5}}}},
        {{"type", "remark"}, {"offset", 83}, {"line", 8}, {"text", "TLC39 is not drawn"}},
        {{"type", "command"},
         {"offset", 83},
         {"command", "TLC39"},
         {"arguments", {"10", "0", "\"3\"", "0", "1", "1", "\"a, b\\x5cc\""}},
         {"text", "TLC39 10,0,\"3\",0,1,1,\"a, b\\x5cc\""},
         {"remark", "not drawn"}},
        {{"type", "complaint"},
         {"offset", 114},
         {"line", 9},
         {"text", "unknown command: NONSENSE \\x01\\xff"}},
        {{"type", "command"},
         {"offset", 114},
         {"command", "NONSENSE"},
         {"arguments", {"\\x01\\xff"}},
         {"text", "NONSENSE \\x01\\xff"},
         {"remark", "unknown"}},
        {{"type", "command"},
         {"offset", 127},
         {"command", "SET"},
         {"arguments", {"TEAR ON"}},
         {"text", "SET TEAR ON"}},
        {{"type", "other"},
         {"offset", 140},
         {"text", "\\x1b!?"},
         {"remark", "not part of the picture"}},
        // Mode 1 burns the first four dots of row 2, two of which burn already.
        {{"type", "label"},
         {"number", 1},
         {"width", 16},
         {"height", 8},
         {"dpi", 203},
         {"dpiFrom", "bitmaps"},
         {"direction", 0},
         {"mirrored", false},
         {"sets", 1},
         {"copies", 2},
         {"burntDots", 23}},
        {{"type", "command"},
         {"offset", 143},
         {"command", "PRINT"},
         {"arguments", {"1", "2"}},
         {"text", "PRINT 1,2"}},
        {{"type", "complaint"},
         {"offset", 154},
         {"line", 12},
         {"text", "BITMAP is cut short: 3 of 16 bytes are there"}},
        {{"type", "command"},
         {"offset", 154},
         {"command", "BITMAP"},
         {"arguments", {"0", "0", "4", "4", "0"}},
         {"text", "BITMAP 0,0,4,4,0,"},
         {"bitmap",
          {{"width", 32},
           {"height", 4},
           {"expectedBytes", 16},
           {"receivedBytes", 3},
           {"burntDots", 14},
           {"burntShare", 14.0 / 24}}}},
        {{"type", "summary"}, {"labels", 1}, {"complaints", 2}, {"remarks", 1}},
    };
    auto lines = jsonLines(result.standardOutput);
    ASSERT_EQ(lines.size(), expected.size() + 1) << result.standardOutput;
    EXPECT_EQ(lines.front()["type"], "schema");
    lines.erase(lines.begin());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(lines[i], expected[i]);
    }
}

TEST(JsonList, NamesThePictureOfALabelWhenItIsThere) {
    const TemporaryFolder folder;
    const auto withPicture = jsonLines(
        runPreview(folder, {"--json", "-o", "p"}, smallLabel(letterBitmap)).standardOutput);
    EXPECT_EQ(withPicture.at(4)["type"], "label");
    EXPECT_EQ(withPicture.at(4)["picture"], "p-1.png");
    EXPECT_EQ(folder.names(), std::set<std::string>{"p-1.png"});
    const auto without =
        jsonLines(runPreview(folder, {"--json"}, smallLabel(letterBitmap)).standardOutput);
    EXPECT_EQ(without.at(4)["type"], "label");
    EXPECT_FALSE(without.at(4).contains("picture"));
}

TEST(JsonList, NamesNoPictureThatCouldNotBeWritten) {
    const TemporaryFolder folder;
    const FilterResult result =
        runPreview(folder, {"--json", "-o", "missing/p"}, smallLabel(letterBitmap));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(jsonLines(result.standardOutput).at(4)["type"], "label");
    EXPECT_FALSE(jsonLines(result.standardOutput).at(4).contains("picture"));
}

TEST(JsonList, HasNoSummaryOfAStreamThatCannotBeRead) {
    const TemporaryFolder folder;
    const FilterResult result = runPreview(folder, {"--json", "."});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardOutput.find("summary"), std::string::npos);
}

TEST(JsonList, IsAsciiForEveryByteAndEveryLineEnd) {
    std::string stream;
    for (int byte = 0; byte < 256; ++byte) {
        stream += "TLC39 1,1,\"" + std::string(1, static_cast<char>(byte)) + "\",0,1,1,\"x\"\r\n";
        stream += std::string(1, static_cast<char>(byte)) + "\n";
    }
    const TemporaryFolder folder;
    const FilterResult result = runPreview(folder, {"--json"}, stream);
    EXPECT_EQ(result.status, 0);
    for (const char byte : result.standardOutput) {
        EXPECT_TRUE(byte == '\n' || (byte >= ' ' && byte <= '~')) << int{byte};
    }
    EXPECT_GE(jsonLines(result.standardOutput).size(), 512U);
}

}  // namespace
