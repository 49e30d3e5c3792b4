// SET: what it takes, and what it switches on.
#include "tspl/set_command.h"

#include <gtest/gtest.h>

namespace tspl {
namespace {

std::string faultOf(const std::string& line) {
    AfterLabel afterLabel;
    return obeySet(parseCommand({}, line), afterLabel).value_or("");
}

// What the lines switch on: T for tear, P for peel, C for cut.
std::string switchedOn(const std::vector<std::string>& lines) {
    AfterLabel afterLabel;
    for (const std::string& line : lines) {
        EXPECT_EQ(obeySet(parseCommand({}, line), afterLabel), std::nullopt) << line;
    }
    return std::string(afterLabel.tear ? "T" : "") +
           (afterLabel.peel || afterLabel.strip ? "P" : "") +
           (afterLabel.cut || afterLabel.partCut ? "C" : "");
}

TEST(AfterLabel, IsBalancedWhenAtMostOneIsOn) {
    EXPECT_TRUE((AfterLabel{false, false, false}.isBalanced()));
    EXPECT_TRUE((AfterLabel{true, false, false}.isBalanced()));
    EXPECT_TRUE((AfterLabel{false, true, false}.isBalanced()));
    EXPECT_TRUE((AfterLabel{false, false, true}.isBalanced()));
    EXPECT_FALSE((AfterLabel{true, true, false}.isBalanced()));
    EXPECT_FALSE((AfterLabel{true, false, true}.isBalanced()));
    EXPECT_FALSE((AfterLabel{false, true, true}.isBalanced()));
    EXPECT_FALSE((AfterLabel{true, true, true}.isBalanced()));
}

TEST(ObeySet, SwitchesTearPeelAndCutterOnAndOff) {
    EXPECT_EQ(switchedOn({"SET TEAR ON"}), "T");
    EXPECT_EQ(switchedOn({"SET PEEL ON"}), "P");
    EXPECT_EQ(switchedOn({"SET STRIPER ON"}), "P");
    EXPECT_EQ(switchedOn({"SET CUTTER ON"}), "C");
    EXPECT_EQ(switchedOn({"SET TEAR ON", "SET PEEL ON", "SET CUTTER ON"}), "TPC");
    EXPECT_EQ(switchedOn({"SET TEAR ON", "SET TEAR OFF"}), "");
    EXPECT_EQ(switchedOn({"SET PEEL ON", "SET PEEL OFF"}), "");
    EXPECT_EQ(switchedOn({"SET CUTTER ON", "SET CUTTER OFF"}), "");
}

TEST(ObeySet, TakesABatchOrANumberOfLabelsForACutterThatIsOn) {
    EXPECT_EQ(switchedOn({"SET CUTTER BATCH"}), "C");
    EXPECT_EQ(switchedOn({"SET CUTTER 3"}), "C");
    EXPECT_EQ(switchedOn({"SET PARTIAL_CUTTER 1"}), "C");
    EXPECT_EQ(switchedOn({"SET CUTTER 3", "SET CUTTER 0"}), "");
}

TEST(ObeySet, LeavesTheRestAlone) {
    EXPECT_EQ(switchedOn({"SET RIBBON ON", "SET BACK ON", "SET GAP ON", "SET COUNTER @1 1"}), "");
    EXPECT_EQ(switchedOn({"SET TEAR ON", "SET RIBBON OFF"}), "T");
}

TEST(ObeySet, MindsNoCaseAndNoBlanks) {
    EXPECT_EQ(switchedOn({"set tear on"}), "T");
    EXPECT_EQ(switchedOn({"Set \t Peel\t On \t"}), "P");
}

TEST(ObeySet, TakesEverySettingOfATsplPrinter) {
    for (const char* line : {"SET TEAR OFF",
                             "SET PEEL OFF",
                             "SET STRIPER OFF",
                             "SET CUTTER OFF",
                             "SET PARTIAL_CUTTER OFF",
                             "SET BACK OFF",
                             "SET RIBBON ON",
                             "SET HEAD ON",
                             "SET REPRINT OFF",
                             "SET KEY1 ON",
                             "SET KEY2 OFF",
                             "SET KEY3 ON",
                             "SET LED1 ON",
                             "SET LED2 OFF",
                             "SET LED3 ON",
                             "SET DEBUG ON",
                             "SET COUNTER @1 1",
                             "SET GAP 5",
                             "SET BLINE REVERSE",
                             "SET COM1 96,N,8,1",
                             "SET PRINTKEY AUTO",
                             "SET RESPONSE ON",
                             "SET PRINTQUALITY DRAFT",
                             "SET STANDBY 5",
                             "SET ENCODER ON",
                             "SET USBHOST ON",
                             "SET PRINTER DT",
                             "SET SENSOR_REF ON",
                             "SET LABELERROR ON"}) {
        EXPECT_EQ(faultOf(line), "") << line;
    }
}

TEST(ObeySet, RefusesASettingThatNoPrinterHas) {
    EXPECT_EQ(faultOf("SET TEER ON"), "SET does not take TEER");
    EXPECT_EQ(faultOf("SET tears on"), "SET does not take TEARS");
    EXPECT_EQ(faultOf("SET \xFF ON"), "SET does not take \\xff");
    EXPECT_EQ(faultOf("SET ,TEAR ON"), "SET does not take ,TEAR");
}

TEST(ObeySet, RefusesASettingWithoutAValue) {
    EXPECT_EQ(faultOf("SET TEAR"), "SET TEAR without a value");
    EXPECT_EQ(faultOf("SET counter  "), "SET COUNTER without a value");
}

TEST(ObeySet, RefusesASwitchThatIsNeitherOnNorOff) {
    EXPECT_EQ(faultOf("SET TEAR MAYBE"), "SET TEAR takes ON or OFF, not MAYBE");
    EXPECT_EQ(faultOf("SET RIBBON 1"), "SET RIBBON takes ON or OFF, not 1");
    EXPECT_EQ(faultOf("SET PEEL ON ON"), "SET PEEL takes ON or OFF, not ON ON");
    EXPECT_EQ(faultOf("SET PEEL \x80"), "SET PEEL takes ON or OFF, not \\x80");
}

TEST(ObeySet, RefusesACutterThatCutsNeitherLabelsNorJobs) {
    EXPECT_EQ(faultOf("SET CUTTER WHEN"),
              "SET CUTTER takes ON, OFF, BATCH or 0 to 65535, not WHEN");
    EXPECT_EQ(faultOf("SET PARTIAL_CUTTER 1.5"),
              "SET PARTIAL_CUTTER takes ON, OFF, BATCH or 0 to 65535, not 1.5");
    EXPECT_EQ(faultOf("SET CUTTER -1"), "SET CUTTER takes ON, OFF, BATCH or 0 to 65535, not -1");
    EXPECT_EQ(faultOf("SET CUTTER 65536"),
              "SET CUTTER takes ON, OFF, BATCH or 0 to 65535, not 65536");
    EXPECT_EQ(faultOf("SET CUTTER 65535"), "");
}

TEST(ObeySet, ChangesNothingWhenItRefuses) {
    AfterLabel afterLabel{true, false, false};
    EXPECT_TRUE(obeySet(parseCommand({}, "SET PEEL MAYBE"), afterLabel));
    EXPECT_TRUE(obeySet(parseCommand({}, "SET TEAR"), afterLabel));
    EXPECT_TRUE(afterLabel.tear);
    EXPECT_FALSE(afterLabel.peel);
}

TEST(ObeySet, TakesZeroForASwitchWhenItTakesOne) {
    EXPECT_EQ(faultOf("SET TEAR 0").empty(), faultOf("SET TEAR 1").empty());
}

// A printer may have both kinds of cutter, or both names for peeling.
TEST(ObeySet, KeepsOneCutterOnWhenTheOtherGoesOff) {
    EXPECT_EQ(switchedOn({"SET CUTTER ON", "SET PARTIAL_CUTTER OFF"}), "C");
    EXPECT_EQ(switchedOn({"SET PARTIAL_CUTTER ON", "SET CUTTER OFF"}), "C");
}

TEST(ObeySet, TakesAnEqualsSignAsNoPartOfTheValue) {
    EXPECT_EQ(switchedOn({"SET CUTTER=OFF"}), "");
}

}  // namespace
}  // namespace tspl
