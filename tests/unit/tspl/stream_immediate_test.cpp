// Immediate commands: escape, exclamation mark and one more byte.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

TEST(ImmediateCommand, NeedsNoLineEnd) {
    EXPECT_EQ(eventsOf("\x1b!SCLS\n"), (Texts{"command 0 \x1b!S", "command 3 CLS"}));
    EXPECT_EQ(eventsOf("\x1b!S\x1b!R"), (Texts{"command 0 \x1b!S", "command 3 \x1b!R"}));
}

TEST(ImmediateCommand, LeavesALineEndBehindItAsABlankLine) {
    EXPECT_EQ(eventsOf("\x1b!S\r\nCLS"), (Texts{"command 0 \x1b!S", "blank 3 1", "command 5 CLS"}));
}

TEST(ImmediateCommand, StandsAtTheStartOfALineOnly) {
    EXPECT_EQ(eventsOf("CLS\x1b!SHOME\n"), Texts{"command 0 CLS\x1b!SHOME"});
    EXPECT_EQ(eventsOf("\n  \x1b!SHOME\n"),
              (Texts{"blank 0 1", "command 3 \x1b!S", "command 6 HOME"}));
}

TEST(ImmediateCommand, StandsBehindData) {
    EXPECT_EQ(eventsOf("BITMAP 0,0,1,1,0,a\x1b!SCLS"),
              (Texts{"bitmap 0 0,0,1,1,0", "data 1 a", "command 18 \x1b!S", "command 21 CLS"}));
}

TEST(ImmediateCommand, IsOfDataWithinThem) {
    EXPECT_EQ(eventsOf("BITMAP 0,0,1,3,0,\x1b!SCLS"),
              (Texts{"bitmap 0 0,0,1,3,0", "data 3 \x1b!S", "command 20 CLS"}));
}

TEST(ImmediateCommand, MayHaveAnyByteButALineEnd) {
    for (int byte = 0; byte < 256; ++byte) {
        const auto c = static_cast<char>(byte);
        if (c == '\n' || c == '\r' || c == ',') {
            continue;
        }
        const std::string command = std::string("\x1b!") + c;
        EXPECT_EQ(eventsOf(command + "CLS"), (Texts{"command 0 " + command, "command 3 CLS"}));
    }
}

TEST(ImmediateCommand, MayHaveAComma) {
    EXPECT_EQ(eventsOf("\x1b!,CLS"), (Texts{"command 0 \x1b!,", "command 3 CLS"}));
}

TEST(ImmediateCommand, IsALineWhenItEndsEarly) {
    EXPECT_EQ(eventsOf("\x1b\nCLS"), (Texts{"command 0 \x1b", "command 2 CLS"}));
    EXPECT_EQ(eventsOf("\x1b!\nCLS"), (Texts{"command 0 \x1b!", "command 3 CLS"}));
    EXPECT_EQ(eventsOf("\x1b!"), Texts{"command 0 \x1b!"});
}

TEST(ImmediateCommand, IsNoneWithAnotherSecondByte) {
    EXPECT_EQ(eventsOf("\x1b?SCLS\n"), Texts{"command 0 \x1b?SCLS"});
    EXPECT_EQ(eventsOf("~!TCLS\n"), Texts{"command 0 ~!TCLS"});
}

}  // namespace
}  // namespace tspl
