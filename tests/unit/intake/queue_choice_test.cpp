// Choices of a job and of its queue.
#include "intake/queue_choice.h"

#include <gtest/gtest.h>

#include "test_queue.h"

namespace intake {
namespace {

const char* const sDescription =
    "*OpenUI *LabelOnPage/Label on a Page: PickOne\n"
    "*DefaultLabelOnPage: Whole\n"
    "*LabelOnPage Whole/Print the Whole Page: \"\"\n"
    "*LabelOnPage Find/Find It: \"\"\n"
    "*CloseUI: *LabelOnPage\n"
    "*de.LabelOnPage Suchen/Suchen: \"\"\n";

std::string choice(std::initializer_list<Option> options) {
    return queueChoice(sDescription, optionsOf(options), "LabelOnPage");
}

TEST(QueueChoice, IsTheJobsOwnWhenTheQueueOffersIt) {
    EXPECT_EQ(choice({{"LabelOnPage", "Find"}}), "Find");
    EXPECT_EQ(choice({{"labelonpage", "FIND"}}), "Find") << "in any case of letters";
}

TEST(QueueChoice, IsTheDefaultWhenTheJobHasNone) {
    EXPECT_EQ(choice({}), "Whole");
    EXPECT_EQ(choice({{"LabelOnPage", ""}}), "Whole");
    EXPECT_EQ(choice({{"LabelOnPage", "Other"}}), "Whole");
    EXPECT_EQ(choice({{"LabelOnPage", "Suchen"}}), "Whole") << "a translation is no choice";
}

TEST(QueueChoice, SeparatesContentWhereItIsMixed) {
    const char* const description =
        "*DefaultContent: AsItIs\n*Content AsItIs: \"\"\n*Content Mixed: \"\"\n";
    EXPECT_FALSE(separatesContent(description, optionsOf({})));
    EXPECT_TRUE(separatesContent(description, optionsOf({{"Content", "Mixed"}})));
    EXPECT_FALSE(separatesContent("*DefaultDarkness: 8\n", optionsOf({{"Content", "Mixed"}})))
        << "an old description does not have it";
}

TEST(QueueChoice, IsNothingOfAnOptionThatTheQueueDoesNotHave) {
    EXPECT_EQ(
        queueChoice("*DefaultDarkness: 8\n", optionsOf({{"LabelOnPage", "Find"}}), "LabelOnPage"),
        "");
}

TEST(QueueChoice, SaysWhetherLabelsAreFound) {
    EXPECT_FALSE(findsLabels(sDescription, optionsOf({})));
    EXPECT_TRUE(findsLabels(sDescription, optionsOf({{"LabelOnPage", "Find"}})));
    EXPECT_FALSE(findsLabels("", optionsOf({{"LabelOnPage", "Find"}})));
}

}  // namespace
}  // namespace intake
