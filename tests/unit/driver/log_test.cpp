#include "driver/log.h"

#include "tests/unit/driver/test_support.h"

namespace {

struct LevelLine {
    int level;
    const char* line;
};

class LogLevel : public testing::TestWithParam<LevelLine> {};

TEST_P(LogLevel, PutsItsPrefixDirectlyBeforeTheMessage) {
    EXPECT_EQ(errorOutputOf([] { kestoLogCommon(GetParam().level, "x"); }), GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(AllLevels, LogLevel,
                         testing::Values(LevelLine{0, "DEBUG:x\n"}, LevelLine{1, "DEBUG:x\n"},
                                         LevelLine{2, "WARN:x\n"}, LevelLine{3, "ERROR:x\n"},
                                         LevelLine{4, "CRIT:x\n"}, LevelLine{5, "INVALID:x\n"}),
                         [](const auto& row) { return std::to_string(row.param.level); });

TEST(Log, NamesItsLevelsByTheirNumbers) {
    EXPECT_EQ(kestoLogTrace, 0);
    EXPECT_EQ(kestoLogDebug, 1);
    EXPECT_EQ(kestoLogWarning, 2);
    EXPECT_EQ(kestoLogError, 3);
    EXPECT_EQ(kestoLogCritical, 4);
    EXPECT_EQ(kestoLogInvalid, 5);
}

TEST(Log, TakesAnUnknownLevelForInvalid) {
    EXPECT_EQ(errorOutputOf([] { kestoLogCommon(6, "x"); }), "INVALID:x\n");
    EXPECT_EQ(errorOutputOf([] { kestoLogCommon(-1, "x"); }), "INVALID:x\n");
}

TEST(Log, FormatsTheMessage) {
    const std::string line =
        errorOutputOf([] { kestoLogCommon(0, "pageWidth: %f,pageHeight: %f", 101.6, 152.4); });
    EXPECT_EQ(line, "DEBUG:pageWidth: 101.600000,pageHeight: 152.400000\n");
}

TEST(Log, LeavesAnEmptyLineBehindAMessageThatEndsItsOwnLine) {
    EXPECT_EQ(errorOutputOf([] { kestoLogCommon(0, "PAGE: %d %d\n", 2, 3); }),
              "DEBUG:PAGE: 2 3\n\n");
}

TEST(Log, WritesAnEmptyMessageAsItsPrefixAlone) {
    EXPECT_EQ(errorOutputOf([] { kestoLogCommon(3, "%s", ""); }), "ERROR:\n");
}

TEST(Log, DoesNotCutLongMessages) {
    const std::string text(5000, 'm');
    EXPECT_EQ(errorOutputOf([&text] { kestoLogCommon(0, "%s", text.c_str()); }),
              "DEBUG:" + text + "\n");
}

TEST(Log, WritesNothingToStandardOutput) {
    EXPECT_EQ(outputOf([] { errorOutputOf([] { kestoLogCommon(3, "x"); }); }), "");
}

}  // namespace
