// Settings from the option string of a job.
#include <cstddef>

#include "filter/job_settings.h"
#include "tests/unit/filter/test_support.h"

namespace {

class JobOptions : public testing::Test {
protected:
    const CurrentQueue queue{QueueText()
                                 .sizes({{"w288h432", 288, 432}, {"A4", 595, 842}})
                                 .option("PaperType", {"LabelGaps", "LabelMark", "Continue"})
                                 .option("GapsHeight", {"2", "3"})
                                 .option("MirrorImage", {"False", "True"})
                                 .option("Darkness", {"8", "15", "-1"})};

    static Settings parsed(const char* options) {
        Settings settings = {};
        errorOutputOf([&] { parseSettings(&settings, options); });
        return settings;
    }
};

TEST_F(JobOptions, ChangeNothingWhenThereAreNone) {
    const Settings settings = parsed("");
    EXPECT_STREQ(settings.PaperType, "LabelGaps");
    EXPECT_EQ(settings.GapsHeight, 2);
    EXPECT_EQ(settings.Darkness, 8);
}

TEST_F(JobOptions, ChangeOnlyWhatTheyName) {
    const Settings settings = parsed("Darkness=15");
    EXPECT_EQ(settings.Darkness, 15);
    EXPECT_STREQ(settings.PaperType, "LabelGaps");
    EXPECT_EQ(settings.GapsHeight, 2);
}

TEST_F(JobOptions, MayBeSeveral) {
    const Settings settings = parsed("PaperType=LabelMark GapsHeight=3 MirrorImage=True");
    EXPECT_STREQ(settings.PaperType, "LabelMark");
    EXPECT_EQ(settings.GapsHeight, 3);
    EXPECT_EQ(settings.MirrorImage, 1);
}

TEST_F(JobOptions, CountByTheLastOfAKind) {
    EXPECT_STREQ(parsed("PaperType=LabelMark PaperType=Continue").PaperType, "Continue");
}

// Longer than the system lets any single argument be.
TEST_F(JobOptions, MayBeAMegabyteLong) {
    constexpr std::size_t megabyte = std::size_t{1} << 20;
    const std::string last = " Darkness=15";
    for (const std::string& piece :
         {std::string("x"), std::string("a=b "), std::string("{"), std::string("\""),
          std::string("'"), std::string("\\"), std::string(" "), std::string("PaperType=")}) {
        std::string options;
        while (options.size() < megabyte) {
            options += piece;
        }
        EXPECT_STREQ(parsed(options.c_str()).PaperType, "LabelGaps") << piece;
    }
    EXPECT_EQ(parsed(("a=" + std::string(megabyte, 'b') + last).c_str()).Darkness, 15);
}

TEST_F(JobOptions, MayBeNegativeNumbers) {
    EXPECT_EQ(parsed("Darkness=-1").Darkness, -1);
}

TEST_F(JobOptions, ChooseThePageSize) {
    const Settings settings = parsed("PageSize=A4");
    EXPECT_STREQ(settings.PageSize, "A4");
    EXPECT_FLOAT_EQ(settings.pageWidth, 209.916F);
    EXPECT_FLOAT_EQ(settings.pageHeight, 297.0576F);
}

TEST_F(JobOptions, HaveNoEffectWhenTheQueueDoesNotKnowThem) {
    const Settings settings =
        parsed("Brightness=50 PostAction=Cut HalftoneType=Burkes Unknown=1 ForceRotation=1");
    EXPECT_EQ(settings.Brightness, 0);
    EXPECT_STREQ(settings.PostAction, "");
    EXPECT_EQ(settings.halftoneType, DitherType::None);
    EXPECT_EQ(settings.ForceRotation, 0);
    EXPECT_STREQ(settings.PaperType, "LabelGaps");
}

TEST_F(JobOptions, DoNotSwitchRecordingOnWhenTheQueueDoesNotKnowIt) {
    EXPECT_STREQ(parsed("RecordPrinterCommands=1").outputFileName, "");
}

}  // namespace
