// The log of the settings of a job.
#include "filter/job_settings.h"
#include "tests/reference/job_log.h"
#include "tests/unit/filter/test_support.h"

namespace {

std::string logOf(const char* options = "") {
    Settings settings = {};
    return errorOutputOf([&] { parseSettings(&settings, options); });
}

TEST(SettingsLog, ListsTheDefaultsWithoutAPpd) {
    const EnvironmentVariable environment("PPD", nullptr);
    EXPECT_EQ(logOf(),
              "DEBUG:PageSizeName: \n"
              "DEBUG:settings->Resolution:\n"
              "DEBUG:settings->MediaMethod:\n"
              "DEBUG:settings->PaperType:\n"
              "DEBUG:settings->GapsHeight:0\n"
              "DEBUG:settings->PostAction:\n"
              "DEBUG:settings->Occurrence:\n"
              "DEBUG:settings->Origin:\n"
              "DEBUG:settings->MirrorImage:0\n"
              "DEBUG:settings->NegativeImage:0\n"
              "DEBUG:settings->PrintSpeed:\n"
              "DEBUG:settings->Darkness:0\n"
              "DEBUG:settings->halftoneType:0\n"
              "DEBUG:settings->DirectBuffer:0\n"
              "DEBUG:settings->StoredGraphics:0\n"
              "DEBUG:settings->OptionDisplayUnit:0\n"
              "DEBUG:settings->PageSize:\n"
              "DEBUG:settings->pageWidth:0.000000\n"
              "DEBUG:settings->pageHeight:0.000000\n");
}

QueueText fullQueue() {
    return QueueText()
        .sizes({{"w288h432", 288, 432}})
        .option("Resolution", {"203dpi"})
        .option("MediaMethod", {"Direct"})
        .option("PaperType", {"LabelMark"})
        .option("GapsHeight", {"3"})
        .option("PostAction", {"TearOff"})
        .option("Occurrence", {"EveryPage"})
        .option("Origin", {"Rotation180"})
        .option("HalftoneType", {"Stucki"})
        .option("MirrorImage", {"True"})
        .option("NegativeImage", {"-1"})
        .option("PrintSpeed", {"4.5"})
        .option("Darkness", {"12"})
        .option("Brightness", {"20"})
        .option("ForceRotation", {"1"});
}

// 288 points are 288 × 0.3528 = 101.6064 mm, 432 points are 152.4096 mm, as floats.
TEST(SettingsLog, ListsTheSettingsInAFixedOrder) {
    const CurrentQueue queue(fullQueue());
    EXPECT_EQ(logOf(),
              "DEBUG:PageSizeName: w288h432\n"
              "DEBUG:Custom Size: (288.000000,432.000000,9.000000,18.000000,261.000000,"
              "396.000000)\n"
              "DEBUG:Set page size: width 101.606400 mm, height 152.409607 mm\n"
              "DEBUG:settings->Resolution:203dpi\n"
              "DEBUG:settings->MediaMethod:Direct\n"
              "DEBUG:settings->PaperType:LabelMark\n"
              "DEBUG:settings->GapsHeight:3\n"
              "DEBUG:settings->PostAction:TearOff\n"
              "DEBUG:settings->Occurrence:EveryPage\n"
              "DEBUG:settings->Origin:Rotation180\n"
              "DEBUG:settings->MirrorImage:1\n"
              "DEBUG:settings->NegativeImage:-1\n"
              "DEBUG:settings->PrintSpeed:4.5\n"
              "DEBUG:settings->Darkness:12\n"
              "DEBUG:settings->halftoneType:4\n"
              "DEBUG:settings->DirectBuffer:0\n"
              "DEBUG:settings->StoredGraphics:0\n"
              "DEBUG:settings->OptionDisplayUnit:0\n"
              "DEBUG:settings->PageSize:w288h432\n"
              "DEBUG:settings->pageWidth:101.606400\n"
              "DEBUG:settings->pageHeight:152.409607\n");
}

TEST(SettingsLog, AgreesWithTheReference) {
    const CurrentQueue queue(fullQueue());
    const reference::PpdSize size = {
        .width = 288, .length = 432, .left = 9, .bottom = 18, .right = 261, .top = 396};
    reference::Settings settings;
    settings.pageSize = "w288h432";
    settings.resolution = "203dpi";
    settings.mediaMethod = "Direct";
    settings.paperType = "LabelMark";
    settings.gapsHeight = 3;
    settings.postAction = "TearOff";
    settings.occurrence = "EveryPage";
    settings.origin = "Rotation180";
    settings.halftoneType = 4;
    settings.mirrorImage = 1;
    settings.negativeImage = -1;
    settings.printSpeed = "4.5";
    settings.darkness = 12;
    EXPECT_EQ(logOf(), reference::joined(
                           reference::settingsLog(reference::withPpdSize(settings, size), size)));
}

TEST(SettingsLog, LeavesOutWhatIsNotShown) {
    const CurrentQueue queue(fullQueue()
                                 .option("RecordPrinterCommands", {"1"})
                                 .attribute("kestoFilterOutputFile", "/some/where"));
    const std::string log = logOf();
    EXPECT_EQ(log.find("Brightness"), std::string::npos);
    EXPECT_EQ(log.find("ForceRotation"), std::string::npos);
    EXPECT_EQ(log.find("/some/where"), std::string::npos);
}

}  // namespace
