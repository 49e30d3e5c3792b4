#include "driver/ppd_choices.h"

#include <memory>

#include "tests/unit/driver/test_support.h"

namespace {

struct PpdCloser {
    void operator()(ppd_file_t* ppd) const { ppdClose(ppd); }
};

// An option with the given choices, the first of them its default.
std::string optionText(const std::string& keyword, const std::vector<std::string>& choices) {
    std::string text = "*OpenUI *" + keyword + "/" + keyword + ": PickOne\n" + "*Default" +
                       keyword + ": " + choices.front() + "\n";
    for (const std::string& choice : choices) {
        text += "*" + keyword + " " + choice + ": \"\"\n";
    }
    return text + "*CloseUI: *" + keyword + "\n";
}

class Queue {
public:
    explicit Queue(const std::string& options)
        : ppd_(ppdOpenFile(folder_.write("queue.ppd", ppdOpening + options).c_str())) {
        if (ppd_ == nullptr) {
            throw std::runtime_error("not a valid queue description");
        }
    }
    ppd_file_t* ppd() const { return ppd_.get(); }
    Queue& marked() {
        ppdMarkDefaults(ppd());
        return *this;
    }
    Queue& marked(const char* keyword, const char* choice) {
        ppdMarkDefaults(ppd());
        ppdMarkOption(ppd(), keyword, choice);
        return *this;
    }

private:
    TemporaryFolder folder_;
    std::unique_ptr<ppd_file_t, PpdCloser> ppd_;
};

// A queue whose one option "Key" has one choice.
Queue queueWith(const std::string& choice) {
    return Queue(optionText("Key", {choice}));
}

TEST(PpdChoice, IsTheMarkedOne) {
    Queue queue(optionText("Key", {"First", "Second"}));
    const ppd_choice_t* choice = kestoPpdGetChoice(queue.marked("Key", "Second").ppd(), "Key");
    ASSERT_NE(choice, nullptr);
    EXPECT_STREQ(choice->choice, "Second");
}

TEST(PpdChoice, IsTheDefaultWhereNothingIsMarked) {
    const Queue queue(optionText("Key", {"First", "Second"}));
    const ppd_choice_t* choice = kestoPpdGetChoice(queue.ppd(), "Key");
    ASSERT_NE(choice, nullptr);
    EXPECT_STREQ(choice->choice, "First");
}

TEST(PpdChoice, IsNoneForAnUnknownOption) {
    EXPECT_EQ(kestoPpdGetChoice(queueWith("First").marked().ppd(), "Other"), nullptr);
}

TEST(PpdChoice, IsNoneWhereTheDefaultIsNoChoice) {
    const Queue queue(
        "*OpenUI *Key/Key: PickOne\n*DefaultKey: Third\n*Key First: \"\"\n"
        "*CloseUI: *Key\n");
    EXPECT_EQ(kestoPpdGetChoice(queue.ppd(), "Key"), nullptr);
}

TEST(PpdChoice, IsNoneWithoutAPpd) {
    EXPECT_EQ(kestoPpdGetChoice(nullptr, "Key"), nullptr);
}

TEST(PpdText, IsTheNameOfTheChoice) {
    Queue queue(optionText("Key", {"First", "Second"}));
    EXPECT_STREQ(kestoPpdGetChoiceAsStrDefault(queue.ppd(), "Key", "none"), "First");
    EXPECT_STREQ(kestoPpdGetChoiceAsStrDefault(queue.marked("Key", "Second").ppd(), "Key", "none"),
                 "Second");
}

TEST(PpdText, IsTheDefaultWithoutAChoice) {
    EXPECT_STREQ(kestoPpdGetChoiceAsStrDefault(queueWith("A").ppd(), "Other", "none"), "none");
    EXPECT_STREQ(kestoPpdGetChoiceAsStrDefault(nullptr, "Key", "none"), "none");
}

struct NumberChoice {
    const char* choice;
    int number;
};

class PpdNumber : public testing::TestWithParam<NumberChoice> {};

TEST_P(PpdNumber, IsTheLeadingNumberOfTheChoice) {
    EXPECT_EQ(kestoPpdGetChoiceAsIntDefault(queueWith(GetParam().choice).ppd(), "Key", 99),
              GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(Names, PpdNumber,
                         testing::Values(NumberChoice{"0", 0}, NumberChoice{"12", 12},
                                         NumberChoice{"-3", -3}, NumberChoice{"4.9", 4},
                                         NumberChoice{"3mm", 3}, NumberChoice{"Normal", 0},
                                         NumberChoice{"100000", 100000}));

TEST(PpdNumber, IsTheDefaultWithoutAChoice) {
    EXPECT_EQ(kestoPpdGetChoiceAsIntDefault(queueWith("1").ppd(), "Other", -42), -42);
    EXPECT_EQ(kestoPpdGetChoiceAsIntDefault(nullptr, "Key", 42), 42);
}

class PpdSwitch : public testing::TestWithParam<NumberChoice> {};

TEST_P(PpdSwitch, IsAWordOrTheLow8BitsOfANumber) {
    EXPECT_EQ(kestoPpdGetChoiceAsBoolDefault(queueWith(GetParam().choice).ppd(), "Key", 99),
              GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(
    Names, PpdSwitch,
    testing::Values(NumberChoice{"True", 1}, NumberChoice{"true", 1}, NumberChoice{"TRUE", 1},
                    NumberChoice{"YES", 1}, NumberChoice{"yes", 1}, NumberChoice{"False", 0},
                    NumberChoice{"FALSE", 0}, NumberChoice{"No", 0}, NumberChoice{"no", 0},
                    NumberChoice{"Off", 0}, NumberChoice{"On", 0}, NumberChoice{"TrueColor", 0},
                    NumberChoice{"0", 0}, NumberChoice{"1", 1}, NumberChoice{"2", 2},
                    NumberChoice{"-1", -1}, NumberChoice{"127", 127}, NumberChoice{"128", -128},
                    NumberChoice{"255", -1}, NumberChoice{"256", 0}, NumberChoice{"257", 1}));

TEST(PpdSwitch, IsTheDefaultWithoutAChoice) {
    EXPECT_EQ(kestoPpdGetChoiceAsBoolDefault(queueWith("True").ppd(), "Other", -1), -1);
    EXPECT_EQ(kestoPpdGetChoiceAsBoolDefault(nullptr, "Key", 1), 1);
}

}  // namespace
