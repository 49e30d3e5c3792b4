// The block of commands that precedes a page.
#include "driver/text.h"
#include "filter/tspl_commands.h"
#include "tests/reference/tspl.h"
#include "tests/unit/filter/test_support.h"

namespace {

struct Names {
    const char* paperType;
    const char* speed;
    const char* method;
    const char* action;
};

reference::Settings referenceSettings(const Names& names, int number) {
    reference::Settings settings;
    settings.pageWidth = static_cast<float>(number) * 1.37F;
    settings.gapsHeight = number;
    settings.darkness = number;
    settings.paperType = names.paperType;
    settings.printSpeed = names.speed;
    settings.mediaMethod = names.method;
    settings.postAction = names.action;
    return settings;
}

class JobSetup : public CommandTest {
protected:
    Settings settings = {};
    std::string log;

    static void set(char (&field)[settingsTextSize], const std::string& text) {
        kestoStrCpy(field, text.c_str(), settingsTextSize);
    }
    void setAll(const Names& names, int number) {
        settings.pageWidth = static_cast<float>(number) * 1.37F;
        settings.GapsHeight = number;
        settings.Darkness = number;
        set(settings.PaperType, names.paperType);
        set(settings.PrintSpeed, names.speed);
        set(settings.MediaMethod, names.method);
        set(settings.PostAction, names.action);
    }
    void send() {
        log = errorOutputOf([this] { jobSetup(&settings); });
    }
};

TEST_F(JobSetup, SendsEveryCommandInItsPlace) {
    settings.pageWidth = 152.4F;
    settings.pageHeight = 101.6F;
    settings.GapsHeight = 2;
    settings.Darkness = 12;
    set(settings.PaperType, "LabelGaps");
    set(settings.Origin, "Rotation180");
    set(settings.PrintSpeed, "4.5");
    set(settings.MediaMethod, "Transfer");
    set(settings.PostAction, "TearOff");
    send();
    EXPECT_EQ(sent(),
              "SIZE 152.4 mm, 101.6 mm\r\n"
              "GAP 2.0 mm, 0.0 mm\r\n"
              "REFERENCE 0,0\r\n"
              "DIRECTION 1,0\r\n"
              "SPEED 4.5\r\n"
              "DENSITY 12\r\n"
              "SET RIBBON ON\r\n"
              "OFFSET 0.0 mm\r\n"
              "SET TEAR ON\r\n"
              "SET PEEL OFF\r\n"
              "SET CUTTER OFF\r\n");
    EXPECT_EQ(log, "");
}

TEST_F(JobSetup, LeavesOutWhatTheSettingsDoNotSay) {
    settings.Darkness = -1;
    send();
    EXPECT_EQ(sent(),
              "SIZE 0.0 mm, 0.0 mm\r\nGAP 0, 0\r\nREFERENCE 0,0\r\nDIRECTION 0,0\r\n"
              "OFFSET 0.0 mm\r\n");
}

TEST_F(JobSetup, DoesNotMirrorThroughTheDirection) {
    settings.MirrorImage = 1;
    send();
    EXPECT_NE(sent().find("DIRECTION 0,0\r\n"), std::string::npos);
}

TEST_F(JobSetup, LogsASkippedGap) {
    set(settings.PaperType, "Normal");
    send();
    EXPECT_EQ(sent().find("GAP"), std::string::npos);
    EXPECT_EQ(log, "DEBUG:Skip the GAP cmd by Normal paper type\n");
}

TEST_F(JobSetup, LeavesTheSettingsAsTheyAre) {
    set(settings.PaperType, "LabelMark");
    settings.GapsHeight = 3;
    Settings before;
    std::memcpy(&before, &settings, sizeof before);
    send();
    EXPECT_EQ(std::memcmp(&before, &settings, sizeof before), 0);
}

TEST_F(JobSetup, AgreesWithTheReference) {
    std::string expected;
    for (const Names& names :
         {Names{"Continue", "3", "Direct", "Cut"}, Names{"LabelMark", "Normal", "", "PeelOff"},
          Names{"", "0", "Other", "None"}, Names{"LabelGaps", "12", "Transfer", ""}}) {
        for (int number = -1; number < 33; ++number) {
            setAll(names, number);
            send();
            expected += reference::setUpBlock(referenceSettings(names, number));
        }
    }
    EXPECT_EQ(sent(), expected);
}

}  // namespace
