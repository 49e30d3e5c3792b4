// The options of a job, and the text that CUPS reads back as the same options.
#include "intake/option_list.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "intake/cups_options.h"

namespace intake {
namespace {

std::vector<Option> sorted(std::vector<Option> options) {
    std::sort(options.begin(), options.end(),
              [](const Option& one, const Option& other) { return one.name < other.name; });
    return options;
}

void expectReadBack(const OptionList& list) {
    EXPECT_EQ(sorted(readOptions(list.text()).all()), sorted(list.all())) << list.text();
}

OptionList listOf(std::initializer_list<Option> options) {
    OptionList list;
    for (const Option& option : options) {
        list.set(option.name, option.value);
    }
    return list;
}

TEST(OptionList, KnowsNamesInAnyCaseOfLettersOnce) {
    OptionList list = listOf({{"Media", "A"}, {"x", "1"}, {"media", "B"}});
    EXPECT_EQ(list.all().size(), 2U);
    ASSERT_NE(list.find("MEDIA"), nullptr);
    EXPECT_EQ(*list.find("MEDIA"), "B");
    list.remove({"MEDIA", "nothing"});
    EXPECT_EQ(list.find("media"), nullptr);
    EXPECT_TRUE(list.has("x"));
}

TEST(OptionList, HasNoOptionWithAnEmptyValue) {
    const OptionList list = listOf({{"a", ""}});
    EXPECT_FALSE(list.has("a"));
    ASSERT_NE(list.find("a"), nullptr);
    EXPECT_EQ(*list.find("a"), "");
}

TEST(OptionText, IsNothingWithoutOptions) {
    EXPECT_EQ(OptionList().text(), "");
}

TEST(OptionText, NamesOptionsWithBlanksBetween) {
    EXPECT_EQ(listOf({{"PageSize", "4x6in"}, {"mirror", "true"}}).text(),
              "PageSize=4x6in mirror=true");
}

TEST(OptionText, IsReadBackWithQuotesAndBackslashesInValues) {
    expectReadBack(listOf({{"a", "it's"},
                           {"b", "\"x"},
                           {"c", "'"},
                           {"d", "\\"},
                           {"e", "x\\"},
                           {"f", "a\"b c'd"},
                           {"g", "\\\"'\\"}}));
}

TEST(OptionText, IsReadBackWithWhiteSpaceInValues) {
    expectReadBack(listOf({{"a", " "}, {"b", "x y"}, {"c", "\t\n\r\f\v"}, {"d", " x "}}));
}

TEST(OptionText, IsReadBackWithEmptyValues) {
    expectReadBack(listOf({{"a", ""}, {"b", "x"}, {"c", ""}}));
    expectReadBack(listOf({{"a", ""}}));
}

TEST(OptionText, IsReadBackWithCommasAndBraces) {
    expectReadBack(listOf({{"a", ","},
                           {"b", "4x6in,auto"},
                           {"c", ",'x'"},
                           {"d", "{x=1 y={z}}"},
                           {"e", "{"},
                           {"f", "}"},
                           {"g", "{{'}"}}));
}

TEST(OptionText, IsReadBackWhenTheFirstNameBeginsWithABrace) {
    expectReadBack(listOf({{"{a", "x}"}}));
    expectReadBack(listOf({{"{a", "1"}, {"b", "}"}}));
}

TEST(OptionText, IsReadBackWithNamesThatBeginWithNo) {
    expectReadBack(listOf({{"number-up", "2"}, {"no", "x"}, {"noble", "y"}}));
}

TEST(OptionText, LeavesOutWhatNoFilterHasAUseFor) {
    const OptionList list =
        listOf({{"a", std::string(100000, 'x')}, {"b", "1"}, {"c", std::string(8000, 'y')}});
    EXPECT_EQ(list.text(), "b=1 c=" + std::string(8000, 'y'));
}

TEST(CupsOptions, AreReadWithoutTheirQuotes) {
    const OptionList list = readOptions(R"(a="x y" b=it\'s nomirror landscape c= d={e=1 f=2})");
    const std::vector<Option> expected{
        {"a", "x y"},       {"b", "it's"},         {"c", ""},
        {"d", "{e=1 f=2}"}, {"landscape", "true"}, {"mirror", "false"}};
    EXPECT_EQ(sorted(list.all()), expected);
}

// Values of all bytes but 0, most of them of those that mean something.
std::string anyValue() {
    static const std::string special = " \t\\'\"{},=a\n";
    const auto letter = rc::gen::oneOf(rc::gen::elementOf(special),
                                       rc::gen::distinctFrom(rc::gen::arbitrary<char>(), '\0'));
    return *rc::gen::container<std::string>(letter);
}

std::string anyName() {
    static const std::string letters = "abno-_{}'\"\\,x";
    return *rc::gen::nonEmpty(rc::gen::container<std::string>(rc::gen::elementOf(letters)));
}

RC_GTEST_PROP(OptionText, IsReadBackWhateverTheValuesAre, ()) {
    OptionList list;
    const int count = *rc::gen::inRange(0, 6);
    for (int i = 0; i < count; ++i) {
        list.set(anyName(), anyValue());
    }
    RC_ASSERT(sorted(readOptions(list.text()).all()) == sorted(list.all()));
}

RC_GTEST_PROP(OptionText, OfWhateverWasReadIsReadBack, ()) {
    const OptionList once = readOptions(anyValue() + "=" + anyValue());
    RC_ASSERT(sorted(readOptions(once.text()).all()) == sorted(once.all()));
}

}  // namespace
}  // namespace intake
