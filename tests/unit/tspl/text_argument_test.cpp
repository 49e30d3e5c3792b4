#include "tspl/text_argument.h"

#include <gtest/gtest.h>

namespace tspl {
namespace {

std::string bytesOf(const char* argument) {
    const auto text = parseTextArgument(argument);
    return text ? text->bytes : "no text";
}

TEST(TextArgument, IsWhatStandsBetweenQuotationMarks) {
    EXPECT_EQ(bytesOf(R"("a, b")"), "a, b");
    EXPECT_EQ(bytesOf(R"("")"), "");
    EXPECT_EQ(bytesOf(R"(" a ")"), " a ");
}

TEST(TextArgument, NeedsBothMarks) {
    for (const char* argument : {"", "a", "a\"", "\"", "\"a", R"("a\["])"}) {
        EXPECT_EQ(bytesOf(argument), "no text") << argument;
    }
}

TEST(TextArgument, HasQuotationMarksAndLineEndsInBrackets) {
    EXPECT_EQ(bytesOf(R"("5\["] pipe")"), "5\" pipe");
    EXPECT_EQ(bytesOf(R"("a\[R]b\[L]c")"), "a\rb\nc");
    EXPECT_EQ(bytesOf(R"("\[r]\[x]\["])"
                      "\""),
              "\\[r]\\[x]\"");
}

TEST(TextArgument, TellsWhatStandsBehindIt) {
    EXPECT_EQ(parseTextArgument(R"("a"bc)")->behind, "bc");
    EXPECT_EQ(parseTextArgument(R"("a" "b")")->behind, "\"b\"");
    EXPECT_EQ(parseTextArgument(R"("a" )")->behind, "");
}

TEST(Name, IsWhatStandsBetweenItsMarksOrTheArgument) {
    EXPECT_EQ(nameOf(R"("A.BMP")"), "A.BMP");
    EXPECT_EQ(nameOf(R"("5\["]")"), "5\"");
    EXPECT_EQ(nameOf(R"("")"), "");
    for (const char* argument : {"A.BMP", "", "\"", "\"a", "a\"", R"("a"b)"}) {
        EXPECT_EQ(nameOf(argument), argument);
    }
}

TEST(Expression, IsAVariableACounterAFunctionOrASum) {
    for (const char* argument :
         {"A$", "x", "@1", "STR$(N)", "(1+2)", R"("No. "+A$)", R"("a" + "b")"}) {
        EXPECT_TRUE(isExpression(argument)) << argument;
    }
    for (const char* argument : {"", "3", "-1", R"("a")", R"("a"b)", "\"a", "$", "#"}) {
        EXPECT_FALSE(isExpression(argument)) << argument;
    }
}

}  // namespace
}  // namespace tspl
