// Which label a job is printed on, from its options and the queue's description.
#include "intake/label_choice.h"

#include <gtest/gtest.h>

#include "test_queue.h"

namespace intake {
namespace {

using sizes::DotSize;

class LabelChoice : public testing::Test {
protected:
    QueueDescription queue_ = readDescription(sLabelPpd + sCustomLines, {}, someMedia);
    std::optional<SizeWish> spoolersAnswer_;
    int questions_ = 0;

    Label choose(std::initializer_list<Option> options) {
        const auto ask = [this] {
            ++questions_;
            return spoolersAnswer_;
        };
        const auto request = readRequest(optionsOf(options), queue_, someMedia, ask);
        return chooseLabel(request, queue_, someMedia).value_or(Label{});
    }

    void spoolerSays(double width, double height) {
        spoolersAnswer_ = SizeWish{"", nullptr, sizes::inMillimetres(width, height), false};
    }

    void expect(std::initializer_list<Option> options, const char* name, DotSize dots,
                const char* difference = "") {
        const Label label = choose(options);
        EXPECT_EQ(label.name, name);
        EXPECT_EQ(label.page.dots, dots);
        EXPECT_EQ(label.difference, difference);
    }
};

TEST_F(LabelChoice, IsTheDefaultWhenNothingIsAskedFor) {
    expect({}, "4x6in", {808, 1218});
    expect({{"PageSize", ""}, {"media", ","}}, "4x6in", {808, 1218});
    EXPECT_EQ(questions_, 2);
}

TEST_F(LabelChoice, IsWhatIsAskedForByName) {
    for (const char* option : {"media", "PageSize", "PageRegion"}) {
        expect({{option, "60x40mm"}}, "60x40mm", {480, 320});
    }
    expect({{"media", "60X40MM"}}, "60x40mm", {480, 320});
    expect({{"media", "60x40mm.Borderless"}}, "60x40mm", {480, 320});
    EXPECT_EQ(questions_, 0) << "the options say it all";
}

TEST_F(LabelChoice, IsTheFirstNameOfAListThatMeansSomething) {
    expect({{"media", "auto,,60x40mm,4x6in"}}, "60x40mm", {480, 320});
}

TEST_F(LabelChoice, HeedsPageSizeMoreThanMedia) {
    expect({{"media", "60x40mm"}, {"PageSize", "50x30mm"}}, "50x30mm", {400, 240});
    expect({{"media", "60x40mm"}, {"PageRegion", "50x30mm"}}, "50x30mm", {400, 240});
    expect({{"PageSize", "60x40mm"}, {"PageRegion", "50x30mm"}}, "60x40mm", {480, 320});
}

TEST_F(LabelChoice, HeedsMediaMoreThanWhatTheSchedulerMadeOfIt) {
    // 100 x 100 mm is within 1.76 mm of 4 x 4 in, of which it made the custom size.
    expect({{"media", "100x100mm"}, {"PageSize", "101.6x101.6mm"}}, "100x100mm", {800, 800});
    // 1.77 mm are too much: somebody has said so.
    expect({{"media", "60x40mm"}, {"PageSize", "61.77x40mm"}}, "61.77x40mm", {488, 320});
    expect({{"media", "73x41mm"}, {"PageSize", "Custom.206x116"}}, "73x41mm", {584, 328});
}

TEST_F(LabelChoice, LeavesANameThatMeansNothing) {
    expect({{"PageSize", "nonsense"}, {"media", "60x40mm"}}, "60x40mm", {480, 320});
    expect({{"media", "nonsense"}, {"PageSize", "60x40mm"}}, "60x40mm", {480, 320});
}

TEST_F(LabelChoice, IsTheOneOfTheSameDimensions) {
    for (const char* name : {"w288h432", "4x6", "Custom.4x6in", "na_index-4x6_4x6in",
                             "custom_101.11x152.4mm_101.11x152.4mm", "oe_x_4x6in", "Custom.288x432",
                             "101.11x152.4mm.Borderless", "10.16x15.24cm"}) {
        expect({{"media", name}}, "4x6in", {808, 1218});
    }
}

TEST_F(LabelChoice, SaysWhenAnotherSizeIsNear) {
    expect({{"media", "59.1x40.9mm"}}, "60x40mm", {480, 320},
           "The label is 60 x 40 mm; 59.1 x 40.9 mm was asked for");
    expect({{"media", "59x39mm"}}, "60x40mm", {480, 320},
           "The label is 60 x 40 mm; 59 x 39 mm was asked for");
    expect({{"media", "58.9x40mm"}}, "58.9x40mm", {464, 320});
}

TEST_F(LabelChoice, SaysNothingOfWhatWholePointsCutOff) {
    expect({{"PageSize", "Custom.170x113"}}, "60x40mm", {480, 320});
    // 60 x 40 mm are 170.08 x 113.39 points: nobody cuts these up.
    expect({{"PageSize", "Custom.171x114"}}, "60x40mm", {480, 320},
           "The label is 60 x 40 mm; 60.33 x 40.22 mm was asked for");
}

TEST_F(LabelChoice, TurnsAnOfferedSize) {
    expect({{"media", "1x2in"}}, "2x1in", {400, 203},
           "The label is 2 x 1 in, turned; 1 x 2 in was asked for");
    expect({{"media", "50x30mm.Transverse"}}, "50x30mm", {400, 240},
           "The label is 50 x 30 mm, turned; 30 x 50 mm was asked for");
}

TEST_F(LabelChoice, MakesALabelOfAnyOtherSize) {
    expect({{"PageSize", "Custom.73x41mm"}}, "73x41mm", {584, 328});
    expect({{"media", "custom_2.5x3in_2.5x3in"}}, "2.5x3in", {504, 609});
    expect({{"media", "A6"}}, "105x148mm", {840, 1183});
    expect({{"media", "iso_a6_105x148mm"}}, "105x148mm", {840, 1183});
}

TEST_F(LabelChoice, TurnsALabelThatIsTooWide) {
    expect({{"media", "150x50mm"}}, "50x150mm", {400, 1199},
           "The label is 50 x 150 mm, turned; 150 x 50 mm was asked for");
}

TEST_F(LabelChoice, IsTheDefaultForSizesBeyondThePrinter) {
    expect({{"media", "A4"}}, "4x6in", {808, 1218},
           "The label is 4 x 6 in, the queue's default; 210 x 297 mm was asked for, which is "
           "larger than the printer takes");
    expect({{"media", "7x50mm"}}, "4x6in", {808, 1218},
           "The label is 4 x 6 in, the queue's default; 7 x 50 mm was asked for, which is smaller "
           "than the printer takes");
}

TEST_F(LabelChoice, IsTheDefaultForNamesThatMeanNothing) {
    expect({{"PageSize", "non\nsense"}}, "4x6in", {808, 1218},
           "The label is 4 x 6 in, the queue's default; \"non?sense\" was asked for, which is no "
           "known size");
}

TEST_F(LabelChoice, MayBeACustomDefault) {
    queue_.defaultSize = "Custom.73x41mm";
    expect({}, "73x41mm", {584, 328});
    queue_.defaultSize = "unknown";
    expect({}, "4x6in", {808, 1218});
}

TEST_F(LabelChoice, AsksTheSpoolerForWhatWholePointsLost) {
    spoolerSays(73, 41);
    expect({{"media", "Custom.206x116"}, {"PageSize", "Custom.206x116"}}, "73x41mm", {584, 328});
    EXPECT_EQ(questions_, 1);
    // Another size in the options was meant to be another one.
    spoolerSays(50, 30);
    expect({{"PageSize", "Custom.206x116"}}, "72.67x40.92mm", {576, 327});
}

TEST_F(LabelChoice, AsksTheSpoolerForASizeThatDidNotCome) {
    spoolerSays(30, 50);
    expect({}, "50x30mm", {400, 240}, "The label is 50 x 30 mm, turned; 30 x 50 mm was asked for");
    spoolerSays(210, 297);
    expect({{"media", "nonsense"}}, "4x6in", {808, 1218},
           "The label is 4 x 6 in, the queue's default; 210 x 297 mm was asked for, which is "
           "larger than the printer takes");
}

TEST_F(LabelChoice, OfAQueueWithoutSizesIsNone) {
    queue_.sizes.clear();
    EXPECT_EQ(choose({{"media", "60x40mm"}}).name, "");
    queue_ = readDescription(sLabelPpd, {}, someMedia);
    queue_.dpi = 0;
    EXPECT_EQ(choose({}).name, "");
}

TEST_F(LabelChoice, KnowsSquareLabels) {
    EXPECT_TRUE(choose({{"media", "100x100mm"}}).isSquare());
    EXPECT_FALSE(choose({{"media", "60x40mm"}}).isSquare());
}

}  // namespace
}  // namespace intake
