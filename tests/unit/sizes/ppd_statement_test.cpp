// PPD files taken apart.
#include "sizes/ppd_statement.h"

#include <gtest/gtest.h>

#include <string>

namespace sizes {
namespace {

PpdStatement only(std::string_view ppd) {
    const auto statements = ppdStatements(ppd);
    EXPECT_EQ(statements.size(), 1U) << ppd;
    return statements.empty() ? PpdStatement() : statements[0];
}

void expectStatement(std::string_view ppd, const PpdStatement& expected) {
    const PpdStatement statement = only(ppd);
    EXPECT_EQ(statement.text, ppd);
    EXPECT_EQ(statement.language, expected.language) << ppd;
    EXPECT_EQ(statement.keyword, expected.keyword) << ppd;
    EXPECT_EQ(statement.option, expected.option) << ppd;
    EXPECT_EQ(statement.value, expected.value) << ppd;
}

TEST(PpdStatement, HasKeywordOptionAndValue) {
    expectStatement("*PageSize 4x6in/4 x 6 in: \"<</PageSize[1 2]>>\"\n",
                    {"", "", "PageSize", "4x6in", "<</PageSize[1 2]>>"});
    expectStatement("*PaperDimension A4: \"595 842\"\n",
                    {"", "", "PaperDimension", "A4", "595 842"});
    expectStatement("*DefaultPageSize: 4x6in\n", {"", "", "DefaultPageSize", "", "4x6in"});
    expectStatement("*NickName:\t \"Name\" \r\n", {"", "", "NickName", "", "Name"});
    expectStatement("*OpenUI *PageSize/Media Size: PickOne",
                    {"", "", "OpenUI", "*PageSize", "PickOne"});
}

TEST(PpdStatement, HasTheLanguageOfATranslation) {
    expectStatement("*de.PageSize 4x6in/4 x 6 in: \"\"\n", {"", "de", "PageSize", "4x6in", ""});
    expectStatement("*zh_TW.PageSize 4x6in/4: \"\"\n", {"", "zh_TW", "PageSize", "4x6in", ""});
}

TEST(PpdStatement, GoesOnUntilItsQuotesEnd) {
    const std::string first = "*PageSize A/B: \"one\n*PageSize two\nthree\"\n";
    const std::string second = "*End\n";
    const std::string text = first + second;
    const auto statements = ppdStatements(text);
    ASSERT_EQ(statements.size(), 2U);
    EXPECT_EQ(statements[0].text, first);
    EXPECT_EQ(statements[0].value, "one\n*PageSize two\nthree");
    EXPECT_EQ(statements[1].text, second);
}

// "4" x 6"" is a text that people may have written.
TEST(PpdStatement, DoesNotTakeQuotesBeforeTheColonForThoseOfAValue) {
    const std::string text = "*PageSize A/4\" wide: None\n*PageSize B/b: None\n";
    EXPECT_EQ(ppdStatements(text).size(), 2U);
}

TEST(PpdStatement, OfALineOfAnotherKindIsTheLine) {
    for (const char* line : {"*% \"comment\n", "\n", "text: \"x\n", "  *PageSize A: b\n"}) {
        expectStatement(line, {"", "", "", "", ""});
    }
    EXPECT_EQ(only("*").keyword, "");
    EXPECT_EQ(only("*End").keyword, "End");
}

TEST(PpdStatement, WithoutItsLastQuoteTakesTheRest) {
    const std::string text = "*PageSize A/B: \"one\n*PageSize B/C: ";
    EXPECT_EQ(only(text).text, text);
}

TEST(PpdStatements, MakeTheWholeFileAgain) {
    const std::string text = "*PPD-Adobe: \"4.3\"\n\n*% c\n*A B/C: \"d\ne\"\n*End\n*F: g";
    std::string again;
    for (const PpdStatement& statement : ppdStatements(text)) {
        again += statement.text;
    }
    EXPECT_EQ(again, text);
    EXPECT_TRUE(ppdStatements("").empty());
}

TEST(PpdStatement, IsOfAPageSizeInItsFourKinds) {
    for (const char* keyword : {"PageSize", "PageRegion", "ImageableArea", "PaperDimension"}) {
        EXPECT_TRUE(isOfPageSize(only(std::string("*") + keyword + " A4: \"\"\n"))) << keyword;
        EXPECT_FALSE(isOfPageSize(only(std::string("*") + keyword + ": \"\"\n"))) << keyword;
        EXPECT_TRUE(isOfDefaultPageSize(only(std::string("*Default") + keyword + ": A4\n")))
            << keyword;
    }
    EXPECT_TRUE(isOfPageSize(only("*de.PageSize A4/A4: \"\"\n")));
    EXPECT_FALSE(isOfPageSize(only("*PageSizes A4: \"\"\n")));
    EXPECT_FALSE(isOfPageSize(only("*OpenUI *PageSize: PickOne\n")));
    EXPECT_FALSE(isOfDefaultPageSize(only("*DefaultResolution: 203dpi\n")));
    EXPECT_FALSE(isOfDefaultPageSize(only("*PageSize A4: \"\"\n")));
}

}  // namespace
}  // namespace sizes
