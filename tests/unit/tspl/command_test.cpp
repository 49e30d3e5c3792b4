// A command line and its parts.
#include "tspl/command.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tspl {
namespace {

using Texts = std::vector<std::string>;

Texts argumentsOf(std::string_view line) {
    return parseCommand({}, line).arguments;
}

TEST(ParseCommand, KeepsTheOffsetAndTheLineAsItCame) {
    const Command command = parseCommand({77, 3}, "size  4 , 6 ");
    EXPECT_EQ(command.offset, 77U);
    EXPECT_EQ(command.text, "size  4 , 6 ");
}

TEST(ParseCommand, NamesTheFirstWordInCapitals) {
    EXPECT_EQ(parseCommand({}, "CLS").name, "CLS");
    EXPECT_EQ(parseCommand({}, "cls").name, "CLS");
    EXPECT_EQ(parseCommand({}, "Direction 1").name, "DIRECTION");
    EXPECT_EQ(parseCommand({}, " \tSET TEAR ON").name, "SET");
    EXPECT_EQ(parseCommand({}, "PDF417 1").name, "PDF417");
    EXPECT_EQ(parseCommand({}, "A_1b").name, "A_1B");
}

TEST(ParseCommand, EndsTheNameAtEveryOtherByte) {
    EXPECT_EQ(parseCommand({}, "TEXT\"a\"").name, "TEXT");
    EXPECT_EQ(parseCommand({}, "PRINT,1").name, "PRINT");
    EXPECT_EQ(parseCommand({}, "CLS\xFF").name, "CLS");
    EXPECT_EQ(parseCommand({}, "CLS\t").name, "CLS");
}

TEST(ParseCommand, NamesNothingThatStartsWithNoLetter) {
    for (const char* line : {"1CLS", "_CLS", "\x1b!S", "~!T", "@1=\"7\"", "\"CLS\"", ",", "\xFF"}) {
        EXPECT_EQ(parseCommand({}, line).name, "") << line;
        EXPECT_EQ(parseCommand({}, line).text, line);
    }
}

TEST(ParseCommand, TakesAnEmptyLine) {
    const Command command = parseCommand({5, 1}, "");
    EXPECT_EQ(command.offset, 5U);
    EXPECT_EQ(command.name, "");
    EXPECT_EQ(command.arguments, Texts{});
    EXPECT_EQ(command.text, "");
}

TEST(ParseCommand, HasNoArgumentsWhenOnlyBlanksFollow) {
    EXPECT_EQ(argumentsOf("CLS"), Texts{});
    EXPECT_EQ(argumentsOf("CLS \t "), Texts{});
}

TEST(ParseCommand, SplitsArgumentsAtCommas) {
    EXPECT_EQ(argumentsOf("FEED 1"), Texts{"1"});
    EXPECT_EQ(argumentsOf("SIZE 4,6"), (Texts{"4", "6"}));
    EXPECT_EQ(argumentsOf("SIZE 101.1 mm, 152.4 mm"), (Texts{"101.1 mm", "152.4 mm"}));
    EXPECT_EQ(argumentsOf("SET TEAR ON"), Texts{"TEAR ON"});
}

TEST(ParseCommand, TrimsEachArgument) {
    EXPECT_EQ(argumentsOf("BAR \t1 ,\t2,  3 4 "), (Texts{"1", "2", "3 4"}));
}

TEST(ParseCommand, KeepsEmptyArguments) {
    EXPECT_EQ(argumentsOf("BAR ,"), (Texts{"", ""}));
    EXPECT_EQ(argumentsOf("BAR 1,,2,"), (Texts{"1", "", "2", ""}));
}

TEST(ParseCommand, LeavesCommasInQuotesAlone) {
    EXPECT_EQ(argumentsOf("TEXT 1,\"a,b\",2"), (Texts{"1", "\"a,b\"", "2"}));
    EXPECT_EQ(argumentsOf("TEXT \"a\"\",\",2"), (Texts{"\"a\"\",\"", "2"}));
    EXPECT_EQ(argumentsOf("TEXT 1,\"a,b"), (Texts{"1", "\"a,b"}));
}

// \["] stands for a quotation mark within a text.
TEST(ParseCommand, LeavesAQuotationMarkWithinATextAlone) {
    EXPECT_EQ(argumentsOf("TEXT 1,\"5\\[\"] a,b\",2"), (Texts{"1", "\"5\\[\"] a,b\"", "2"}));
    EXPECT_EQ(argumentsOf("TEXT \"\\[\"]\",\"\\[\"],\\[\"]\""),
              (Texts{"\"\\[\"]\"", "\"\\[\"],\\[\"]\""}));
}

TEST(ParseCommand, TakesAQuotationMarkOutsideATextAsItIs) {
    EXPECT_EQ(argumentsOf("TEXT \\[\"],1\",2"), (Texts{"\\[\"],1\"", "2"}));
}

TEST(ParseCommand, TakesALineOfNothingButCommas) {
    const Texts arguments = argumentsOf("A" + std::string(65535, ','));
    EXPECT_EQ(arguments.size(), 65536U);
    EXPECT_TRUE(std::all_of(arguments.begin(), arguments.end(),
                            [](const std::string& argument) { return argument.empty(); }));
}

TEST(HasOpenQuote, IsTrueForAnOddNumberOfQuotationMarks) {
    EXPECT_FALSE(hasOpenQuote(""));
    EXPECT_TRUE(hasOpenQuote("\""));
    EXPECT_FALSE(hasOpenQuote("\"\""));
    EXPECT_TRUE(hasOpenQuote("TEXT \"a\",\"b"));
    EXPECT_FALSE(hasOpenQuote("TEXT \"a\",\"b\""));
}

TEST(HasOpenQuote, CountsNoQuotationMarkWithinAText) {
    EXPECT_FALSE(hasOpenQuote("TEXT \"5\\[\"]\""));
    EXPECT_TRUE(hasOpenQuote("TEXT \"5\\[\"]"));
    EXPECT_TRUE(hasOpenQuote("TEXT \\[\"]"));
    EXPECT_FALSE(hasOpenQuote("TEXT \"5\\[\""));
}

TEST(BitmapHead, CountsBytesBeyond32Bits) {
    EXPECT_EQ((BitmapHead{{}, 0, 0, 3, 5, 0}.dataBytes()), 15U);
    EXPECT_EQ((BitmapHead{{}, 0, 0, INT32_MAX, INT32_MAX, 0}.dataBytes()), 4611686014132420609U);
    EXPECT_EQ((BitmapHead{{}, 0, 0, 0, INT32_MAX, 0}.dataBytes()), 0U);
}

}  // namespace
}  // namespace tspl
