// The name of the recording file.
#include <regex>

#include "filter/job_settings.h"
#include "tests/unit/filter/test_support.h"

namespace {

std::string recordingName(const QueueText& queue, const char* options = "") {
    const CurrentQueue current(queue);
    Settings settings;
    std::memset(static_cast<void*>(&settings), 0x5A, sizeof settings);
    errorOutputOf([&] { parseSettings(&settings, options); });
    return settings.outputFileName;
}

QueueText recordingQueue(const std::string& base) {
    return QueueText()
        .option("RecordPrinterCommands", {"1", "0", "-1", "7", "On"})
        .attribute("kestoFilterOutputFile", base);
}

// The names that a base has at the seconds of a test.
std::set<std::string> namesOf(const std::string& base, const TimeWindow& window) {
    std::set<std::string> names;
    for (const std::tm& time : window.times()) {
        char text[32];
        std::strftime(text, sizeof text, "%Y%m%d%H%M%S", &time);
        names.insert(base + "-" + text + ".bin");
    }
    return names;
}

TEST(RecordingName, IsTheAttributeWithTheLocalTime) {
    const TimeWindow window;
    const std::string name = recordingName(recordingQueue("/some/where/job"));
    EXPECT_EQ(namesOf("/some/where/job", window).count(name), 1U) << name;
}

TEST(RecordingName, HasNumbersOfTwoDigits) {
    const EnvironmentVariable zone("TZ", timeZoneOfFiveMinutesPastNine().c_str());
    const std::string name = recordingName(recordingQueue("B"));
    EXPECT_TRUE(std::regex_match(name, std::regex("B-[0-9]{8}0905[0-9]{2}\\.bin"))) << name;
}

TEST(RecordingName, StartsWithADashWithoutTheAttribute) {
    const TimeWindow window;
    const std::string name = recordingName(QueueText().option("RecordPrinterCommands", {"1"}));
    EXPECT_EQ(namesOf("", window).count(name), 1U) << name;
}

TEST(RecordingName, MayBeSwitchedOnByAnyPositiveNumber) {
    const TimeWindow window;
    const std::string name = recordingName(recordingQueue("B"), "RecordPrinterCommands=7");
    EXPECT_EQ(namesOf("B", window).count(name), 1U) << name;
}

TEST(RecordingName, IsEmptyWhenRecordingIsOff) {
    EXPECT_EQ(recordingName(recordingQueue("B"), "RecordPrinterCommands=0"), "");
    EXPECT_EQ(recordingName(recordingQueue("B"), "RecordPrinterCommands=-1"), "");
    EXPECT_EQ(recordingName(recordingQueue("B"), "RecordPrinterCommands=On"), "");
}

TEST(RecordingName, IsEmptyWithoutTheOption) {
    EXPECT_EQ(recordingName(QueueText().attribute("kestoFilterOutputFile", "B")), "");
}

TEST(RecordingName, DoesNotTakeTheAttributeForAFormat) {
    const TimeWindow window;
    const std::string name = recordingName(recordingQueue("a%d%s%n"));
    EXPECT_EQ(namesOf("a%d%s%n", window).count(name), 1U) << name;
}

// A text of this size, in lines that libcups reads: it takes none beyond 255 characters.
std::string longBase(std::size_t size) {
    std::string base(size, 'n');
    for (std::size_t end = 100; end < size; end += 101) {
        base[end] = '\n';
    }
    return base;
}

// 255 characters are 236 of the attribute, a dash, 14 digits and ".bin".
TEST(RecordingName, HasRoomForAnAttributeOf236Characters) {
    const TimeWindow window;
    const std::string name = recordingName(recordingQueue(longBase(236)));
    EXPECT_EQ(name.size(), 255U);
    EXPECT_EQ(namesOf(longBase(236), window).count(name), 1U) << name;
}

TEST(RecordingName, LosesItsEndWhereTheAttributeIsLonger) {
    const TimeWindow window;
    const std::string name = recordingName(recordingQueue(longBase(237)));
    EXPECT_EQ(name.size(), 255U);
    EXPECT_EQ(namesOf(longBase(237), window).count(name + "n"), 1U) << name;
}

TEST(RecordingName, IsCutTo255Characters) {
    EXPECT_EQ(recordingName(recordingQueue(longBase(255))), longBase(255));
    EXPECT_EQ(recordingName(recordingQueue(longBase(2000))), longBase(2000).substr(0, 255));
}

TEST(RecordingName, DoesNotOverrunTheFieldBehindIt) {
    const CurrentQueue current(recordingQueue(longBase(2000)).option("ForceRotation", {"3"}));
    Settings settings = {};
    errorOutputOf([&] { parseSettings(&settings, ""); });
    EXPECT_EQ(settings.ForceRotation, 3);
}

}  // namespace
