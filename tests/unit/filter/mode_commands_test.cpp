// SPEED and DENSITY, SET RIBBON, and what happens behind the last label.
#include "filter/tspl_commands.h"
#include "tests/reference/tspl.h"
#include "tests/unit/filter/test_support.h"

namespace {

constexpr int noDensity = -1;

struct SpeedCase {
    const char* speed;
    const char* command;
};

class SetSpeed : public CommandTest, public testing::WithParamInterface<SpeedCase> {};

TEST_P(SetSpeed, SendsAPositiveNumberAsItIsWritten) {
    setSpeedAndDensity(GetParam().speed, noDensity);
    EXPECT_EQ(sent(), GetParam().command);
}

INSTANTIATE_TEST_SUITE_P(
    Speeds, SetSpeed,
    testing::Values(SpeedCase{"3", "SPEED 3\r\n"}, SpeedCase{"4.5", "SPEED 4.5\r\n"},
                    SpeedCase{"05", "SPEED 05\r\n"}, SpeedCase{"2ips", "SPEED 2ips\r\n"},
                    SpeedCase{"1e-14", "SPEED 1e-14\r\n"}, SpeedCase{"1e-15", ""},
                    SpeedCase{"1e-16", ""}, SpeedCase{"", ""}, SpeedCase{"0", ""},
                    SpeedCase{"0.0", ""}, SpeedCase{"-2", ""}, SpeedCase{"fast", ""},
                    SpeedCase{"Normal", ""}, SpeedCase{"3Normal", ""},
                    SpeedCase{"4 Normal speed", ""}, SpeedCase{"4normal", "SPEED 4normal\r\n"}));

struct DensityCase {
    int density;
    const char* command;
};

class SetDensity : public CommandTest, public testing::WithParamInterface<DensityCase> {};

TEST_P(SetDensity, SendsANumberFrom0To30) {
    setSpeedAndDensity("", GetParam().density);
    EXPECT_EQ(sent(), GetParam().command);
}

INSTANTIATE_TEST_SUITE_P(Densities, SetDensity,
                         testing::Values(DensityCase{-1, ""}, DensityCase{0, "DENSITY 0\r\n"},
                                         DensityCase{1, "DENSITY 1\r\n"},
                                         DensityCase{15, "DENSITY 15\r\n"},
                                         DensityCase{30, "DENSITY 30\r\n"}, DensityCase{31, ""},
                                         DensityCase{-100, ""}, DensityCase{1000, ""}));

class SetSpeedAndDensity : public CommandTest {};

TEST_F(SetSpeedAndDensity, SendsTheSpeedFirst) {
    setSpeedAndDensity("3", 8);
    EXPECT_EQ(sent(), "SPEED 3\r\nDENSITY 8\r\n");
}

TEST_F(SetSpeedAndDensity, SendsEachWithoutTheOther) {
    setSpeedAndDensity("Normal", 8);
    setSpeedAndDensity("3", 31);
    EXPECT_EQ(sent(), "DENSITY 8\r\nSPEED 3\r\n");
}

TEST_F(SetSpeedAndDensity, DoesNotTakeTheSpeedForAFormat) {
    setSpeedAndDensity("3%d", noDensity);
    EXPECT_EQ(sent(), "SPEED 3%d\r\n");
}

struct RibbonCase {
    const char* method;
    const char* command;
};

class SetRibbon : public CommandTest, public testing::WithParamInterface<RibbonCase> {};

TEST_P(SetRibbon, FollowsThePrintMethod) {
    setRibbon(GetParam().method);
    EXPECT_EQ(sent(), GetParam().command);
}

INSTANTIATE_TEST_SUITE_P(Methods, SetRibbon,
                         testing::Values(RibbonCase{"Direct", "SET RIBBON OFF\r\n"},
                                         RibbonCase{"ThermalDirect", "SET RIBBON OFF\r\n"},
                                         RibbonCase{"Transfer", "SET RIBBON ON\r\n"},
                                         RibbonCase{"ThermalTransfer", "SET RIBBON ON\r\n"},
                                         RibbonCase{"TransferOrDirect", "SET RIBBON OFF\r\n"},
                                         RibbonCase{"", ""}, RibbonCase{"Normal", ""},
                                         RibbonCase{"direct", ""}, RibbonCase{"transfer", ""}));

constexpr const char* allOff = "SET TEAR OFF\r\nSET PEEL OFF\r\nSET CUTTER OFF\r\n";
constexpr const char* tear = "SET TEAR ON\r\nSET PEEL OFF\r\nSET CUTTER OFF\r\n";
constexpr const char* peel = "SET TEAR OFF\r\nSET PEEL ON\r\nSET CUTTER OFF\r\n";
constexpr const char* cut = "SET TEAR OFF\r\nSET PEEL OFF\r\nSET CUTTER ON\r\n";

struct ActionCase {
    const char* action;
    const char* commands;
};

class SetPostAction : public CommandTest, public testing::WithParamInterface<ActionCase> {};

TEST_P(SetPostAction, SendsThreeLinesOrNone) {
    setPostAction(GetParam().action);
    EXPECT_EQ(sent(), GetParam().commands);
}

INSTANTIATE_TEST_SUITE_P(Actions, SetPostAction,
                         testing::Values(ActionCase{"Normal", allOff}, ActionCase{"None", allOff},
                                         ActionCase{"TearOff", tear}, ActionCase{"PeelOff", peel},
                                         ActionCase{"Cut", cut}, ActionCase{"PartialCut", cut},
                                         ActionCase{"FullCutter", cut},
                                         ActionCase{"DoTearOffNow", tear}, ActionCase{"", ""},
                                         ActionCase{"cut", ""}, ActionCase{"Tear", ""},
                                         ActionCase{"Peel", ""}, ActionCase{"Off", ""}));

INSTANTIATE_TEST_SUITE_P(OverlappingNames, SetPostAction,
                         testing::Values(ActionCase{"CutNormal", allOff},
                                         ActionCase{"TearOffNone", allOff},
                                         ActionCase{"PeelOffTearOff", tear},
                                         ActionCase{"CutPeelOff", peel},
                                         ActionCase{"CutTearOff", tear}));

class ModeCommands : public CommandTest {};

TEST_F(ModeCommands, AgreeWithTheReference) {
    std::string expected;
    for (const char* name : {"Normal", "None", "TearOff", "PeelOff", "PartialCut", "Direct",
                             "Transfer", "3", "0", "", "12.5"}) {
        setSpeedAndDensity(name, 5);
        setRibbon(name);
        setPostAction(name);
        expected += reference::speedCommand(name) + reference::densityCommand(5) +
                    reference::ribbonCommand(name) + reference::postActionCommands(name);
    }
    EXPECT_EQ(sent(), expected);
}

}  // namespace
