// Settings from the defaults of a queue description.
#include "filter/job_settings.h"

#include <functional>

#include "tests/unit/filter/test_support.h"

namespace {

// Reads settings into a record of arbitrary content.
Settings parsed(const char* options = "") {
    Settings settings;
    std::memset(static_cast<void*>(&settings), 0x5A, sizeof settings);
    errorOutputOf([&] { parseSettings(&settings, options); });
    return settings;
}

void expectDefaults(const Settings& settings) {
    for (const char* text : {settings.PageSize, settings.Resolution, settings.MediaMethod,
                             settings.PaperType, settings.PostAction, settings.Occurrence,
                             settings.Origin, settings.PrintSpeed, settings.outputFileName}) {
        EXPECT_STREQ(text, "");
    }
    for (const std::int32_t number :
         {settings.GapsHeight, settings.MirrorImage, settings.NegativeImage, settings.Darkness,
          settings.Brightness, settings.DirectBuffer, settings.StoredGraphics,
          settings.OptionDisplayUnit, settings.ForceRotation}) {
        EXPECT_EQ(number, 0);
    }
    EXPECT_EQ(settings.halftoneType, DitherType::None);
    EXPECT_EQ(settings.pageWidth, 0.0F);
    EXPECT_EQ(settings.pageHeight, 0.0F);
}

TEST(ParseSettings, GivesDefaultsWithoutAPpd) {
    const EnvironmentVariable environment("PPD", nullptr);
    expectDefaults(parsed());
}

TEST(ParseSettings, GivesDefaultsForAPpdThatIsNotThere) {
    const TemporaryFolder folder;
    const EnvironmentVariable environment("PPD", folder.path("missing.ppd").c_str());
    expectDefaults(parsed());
}

TEST(ParseSettings, GivesDefaultsForAFileThatIsNoPpd) {
    const TemporaryFolder folder;
    const EnvironmentVariable environment("PPD", folder.write("queue.ppd", "text\n").c_str());
    expectDefaults(parsed());
}

TEST(ParseSettings, GivesDefaultsForAQueueWithoutOptions) {
    const CurrentQueue queue{QueueText()};
    expectDefaults(parsed());
}

TEST(ParseSettings, GivesDefaultsWithoutAPpdWhateverTheOptions) {
    const EnvironmentVariable environment("PPD", nullptr);
    expectDefaults(parsed("PaperType=LabelGaps Darkness=12 RecordPrinterCommands=1"));
}

struct TextKey {
    const char* key;
    char (Settings::*field)[settingsTextSize];
};

class TextSetting : public testing::TestWithParam<TextKey> {
protected:
    static std::string value(const char* options = "") { return parsed(options).*GetParam().field; }
};

TEST_P(TextSetting, IsTheDefaultChoiceOfItsKey) {
    const CurrentQueue queue(QueueText().option(GetParam().key, {"First", "Second"}));
    EXPECT_EQ(value(), "First");
}

TEST_P(TextSetting, IsOverriddenByTheJobOption) {
    const CurrentQueue queue(QueueText().option(GetParam().key, {"First", "Second"}));
    EXPECT_EQ(value((std::string(GetParam().key) + "=Second").c_str()), "Second");
}

TEST_P(TextSetting, KeepsTheDefaultWhenTheJobOptionIsNoChoice) {
    const CurrentQueue queue(QueueText().option(GetParam().key, {"First", "Second"}));
    EXPECT_EQ(value((std::string(GetParam().key) + "=Third").c_str()), "First");
}

TEST_P(TextSetting, KeepsAChoiceOf40Characters) {
    const std::string choice = std::string(39, 'c') + "Z";
    const CurrentQueue queue(QueueText().option(GetParam().key, {choice}));
    EXPECT_EQ(value(), choice);
}

TEST_P(TextSetting, IsNotChangedByTheKeysOfOthers) {
    QueueText others;
    for (const char* key :
         {"PageSize", "Resolution", "MediaMethod", "PaperType", "GapsHeight", "PostAction",
          "Occurrence", "Origin", "HalftoneType", "MirrorImage", "NegativeImage", "PrintSpeed",
          "Darkness", "Brightness", "ForceRotation", "RecordPrinterCommands"}) {
        if (std::string(key) != GetParam().key) {
            others.option(key, {"7"});
        }
    }
    const CurrentQueue queue(others);
    EXPECT_EQ(value(), "");
}

INSTANTIATE_TEST_SUITE_P(Keys, TextSetting,
                         testing::Values(TextKey{"PageSize", &Settings::PageSize},
                                         TextKey{"Resolution", &Settings::Resolution},
                                         TextKey{"MediaMethod", &Settings::MediaMethod},
                                         TextKey{"PaperType", &Settings::PaperType},
                                         TextKey{"PostAction", &Settings::PostAction},
                                         TextKey{"Occurrence", &Settings::Occurrence},
                                         TextKey{"Origin", &Settings::Origin},
                                         TextKey{"PrintSpeed", &Settings::PrintSpeed}),
                         [](const auto& row) { return std::string(row.param.key); });

struct NumberKey {
    const char* key;
    std::int32_t Settings::*field;
};

class NumberSetting : public testing::TestWithParam<NumberKey> {
protected:
    static std::int32_t value(const std::string& choice) {
        const CurrentQueue queue(QueueText().option(GetParam().key, {choice}));
        return parsed().*GetParam().field;
    }
};

TEST_P(NumberSetting, IsTheLeadingNumberOfTheChoice) {
    EXPECT_EQ(value("12"), 12);
    EXPECT_EQ(value("-40"), -40);
    EXPECT_EQ(value("3mm"), 3);
    EXPECT_EQ(value("1000"), 1000);
    EXPECT_EQ(value("Normal"), 0);
}

TEST_P(NumberSetting, IsOverriddenByTheJobOption) {
    const CurrentQueue queue(QueueText().option(GetParam().key, {"1", "2"}));
    EXPECT_EQ(parsed((std::string(GetParam().key) + "=2").c_str()).*GetParam().field, 2);
}

INSTANTIATE_TEST_SUITE_P(Keys, NumberSetting,
                         testing::Values(NumberKey{"GapsHeight", &Settings::GapsHeight},
                                         NumberKey{"Darkness", &Settings::Darkness},
                                         NumberKey{"Brightness", &Settings::Brightness},
                                         NumberKey{"ForceRotation", &Settings::ForceRotation}),
                         [](const auto& row) { return std::string(row.param.key); });

class SwitchSetting : public testing::TestWithParam<NumberKey> {
protected:
    static std::int32_t value(const std::string& choice) {
        const CurrentQueue queue(QueueText().option(GetParam().key, {choice}));
        return parsed().*GetParam().field;
    }
};

TEST_P(SwitchSetting, IsOnForTrueAndYesInAnyCase) {
    EXPECT_EQ(value("True"), 1);
    EXPECT_EQ(value("YES"), 1);
}

TEST_P(SwitchSetting, IsOffForFalseNoAndOtherWords) {
    EXPECT_EQ(value("False"), 0);
    EXPECT_EQ(value("No"), 0);
    EXPECT_EQ(value("Off"), 0);
    EXPECT_EQ(value("On"), 0);
}

TEST_P(SwitchSetting, IsTheLow8BitsOfANumberWithTheirSign) {
    EXPECT_EQ(value("256"), 0);
    EXPECT_EQ(value("-1"), -1);
    EXPECT_EQ(value("255"), -1);
    EXPECT_EQ(value("5"), 5);
}

TEST_P(SwitchSetting, IsOverriddenByTheJobOption) {
    const CurrentQueue queue(QueueText().option(GetParam().key, {"False", "True"}));
    EXPECT_EQ(parsed((std::string(GetParam().key) + "=True").c_str()).*GetParam().field, 1);
}

INSTANTIATE_TEST_SUITE_P(Keys, SwitchSetting,
                         testing::Values(NumberKey{"MirrorImage", &Settings::MirrorImage},
                                         NumberKey{"NegativeImage", &Settings::NegativeImage}),
                         [](const auto& row) { return std::string(row.param.key); });

TEST(HalftoneSetting, IsReadByName) {
    const CurrentQueue queue(
        QueueText().option("HalftoneType", {"Burkes", "Tattoo_X8", "floydsteinberg", "3"}));
    EXPECT_EQ(parsed().halftoneType, DitherType::Burkes);
    EXPECT_EQ(parsed("HalftoneType=Tattoo_X8").halftoneType, DitherType::Tattoo_X8);
    EXPECT_EQ(parsed("HalftoneType=3").halftoneType, DitherType::None);
}

TEST(HalftoneSetting, IsNoneForANameInAnotherCase) {
    const CurrentQueue queue(QueueText().option("HalftoneType", {"floydsteinberg"}));
    EXPECT_EQ(parsed().halftoneType, DitherType::None);
}

TEST(FixedSettings, AreZeroWhateverTheQueueOffers) {
    const CurrentQueue queue(QueueText()
                                 .option("DirectBuffer", {"1"})
                                 .option("StoredGraphics", {"1"})
                                 .option("OptionDisplayUnit", {"1"}));
    const Settings settings = parsed();
    EXPECT_EQ(settings.DirectBuffer, 0);
    EXPECT_EQ(settings.StoredGraphics, 0);
    EXPECT_EQ(settings.OptionDisplayUnit, 0);
}

TEST(SettingsRecord, HasTextFieldsOf41AndARecordingNameOf256Bytes) {
    EXPECT_EQ(sizeof Settings::PageSize, 41U);
    EXPECT_EQ(sizeof Settings::PrintSpeed, 41U);
    EXPECT_EQ(sizeof Settings::outputFileName, 256U);
}

TEST(ParseSettings, TerminatesAndZeroFillsItsTexts) {
    const CurrentQueue queue(QueueText().option("Origin", {"abc"}));
    const Settings settings = parsed();
    EXPECT_EQ(std::string(settings.Origin, sizeof settings.Origin), "abc" + std::string(38, '\0'));
}

}  // namespace
