// What some programs wrap commands in.
#include "tspl/wrapper.h"

#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

TEST(Wrapper, IsAnElementThatIsClosed) {
    for (const char* text : {"<xpml></xpml>", "<xpml><page quantity='0' pitch='50.8 mm'></xpml>",
                             "<a>1</a>", "<xpml></page></xpml>"}) {
        EXPECT_TRUE(isWrapper(text)) << text;
    }
    for (const char* text : {"", "<", "<>", "</>", "<xpml>", "<xpml></page>", "xpml></xpml>",
                             "<xpml></xpml>SIZE 4,6", "<></>"}) {
        EXPECT_FALSE(isWrapper(text)) << text;
    }
}

TEST(Wrapper, HasANameOfAHundredLettersAtMost) {
    const std::string longest(100, 'n');
    EXPECT_TRUE(isWrapper("<" + longest + "></" + longest + ">"));
    EXPECT_FALSE(isWrapper("<" + longest + "n></" + longest + "n>"));
}

TEST(Wrapper, StandsInFrontOfACommandOnItsLine) {
    EXPECT_EQ(eventsOf("<xpml><page pitch='50.8 mm'></xpml>SIZE 4,6\r\n"),
              (Texts{"command 0 <xpml><page pitch='50.8 mm'></xpml>", "command 35 SIZE 4,6"}));
    EXPECT_EQ(eventsOf("<xpml></page></xpml><xpml><end/></xpml>"),
              (Texts{"command 0 <xpml></page></xpml>", "command 20 <xpml><end/></xpml>"}));
}

TEST(Wrapper, StandsInFrontOfABitmap) {
    EXPECT_EQ(eventsOf("<xpml></xpml>BITMAP 0,0,1,1,0,a\n"),
              (Texts{"command 0 <xpml></xpml>", "bitmap 13 0,0,1,1,0", "data 1 a"}));
}

TEST(Wrapper, IsNotComplainedOf) {
    EXPECT_EQ(findingsOf("<xpml><page quantity='0' pitch='50.8 mm'></xpml>SIZE 4,6\n<xpml></xpml>"),
              Texts{});
    EXPECT_EQ(findingsOf("<xpml>SIZE 4,6\n"), Texts{"complaint 0 unknown command: <xpml>SIZE 4,6"});
}

TEST(Wrapper, LeavesALineEndBehindItAsABlankLine) {
    EXPECT_EQ(eventsOf("<a></a>\nCLS"), (Texts{"command 0 <a></a>", "blank 7 1", "command 8 CLS"}));
}

}  // namespace
}  // namespace tspl
