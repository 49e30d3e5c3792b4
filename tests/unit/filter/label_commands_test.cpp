// SIZE, GAP and BLINE, REFERENCE, DIRECTION and OFFSET.
#include "filter/tspl_commands.h"
#include "tests/reference/tspl.h"
#include "tests/unit/filter/test_support.h"

namespace {

class SetSize : public CommandTest {};

TEST_F(SetSize, SendsBothLengthsInMillimetresWithOneDecimal) {
    setSize(152.4F, 101.6F);
    EXPECT_EQ(sent(), "SIZE 152.4 mm, 101.6 mm\r\n");
}

TEST_F(SetSize, RoundsToOneDecimal) {
    setSize(100.0985F, 0.06F);
    EXPECT_EQ(sent(), "SIZE 100.1 mm, 0.1 mm\r\n");
}

TEST_F(SetSize, SendsZeroToo) {
    setSize(0, 0);
    EXPECT_EQ(sent(), "SIZE 0.0 mm, 0.0 mm\r\n");
}

class SetGap : public CommandTest {
protected:
    std::string log;

    void send(float height, const char* paperType, float offset = 0) {
        log = errorOutputOf([=] { setGap(height, offset, paperType); });
    }
};

TEST_F(SetGap, OfNormalPaperSendsNothingAndLogsSoWhateverTheHeight) {
    for (const float height : {0.0F, 2.0F}) {
        send(height, "Normal");
        EXPECT_EQ(sent(), "");
        EXPECT_EQ(log, "DEBUG:Skip the GAP cmd by Normal paper type\n");
    }
}

TEST_F(SetGap, OfContinuousPaperSendsGapZeroWhateverTheHeight) {
    send(3, "Continue");
    EXPECT_EQ(sent(), "GAP 0, 0\r\n");
    EXPECT_EQ(log, "");
}

TEST_F(SetGap, OfLabelsWithGapsSendsTheirHeight) {
    send(2, "LabelGaps");
    EXPECT_EQ(sent(), "GAP 2.0 mm, 0.0 mm\r\n");
    EXPECT_EQ(log, "");
}

TEST_F(SetGap, OfLabelsWithMarksSendsTheMarksHeight) {
    send(3, "LabelMark");
    EXPECT_EQ(sent(), "BLINE 3.0 mm, 0.0 mm\r\n");
    EXPECT_EQ(log, "");
}

TEST_F(SetGap, SendsTheOffsetBehindTheHeight) {
    send(2.25F, "LabelGaps", 1.5F);
    send(3, "LabelMark", -0.5F);
    EXPECT_EQ(sent(), "GAP 2.2 mm, 1.5 mm\r\nBLINE 3.0 mm, -0.5 mm\r\n");
}

TEST_F(SetGap, OfAnUnknownPaperSendsNothingAndNamesItInTheLog) {
    send(2, "Roll");
    EXPECT_EQ(sent(), "");
    EXPECT_EQ(log, "DEBUG:Unknown paper type: Roll!\n");
}

TEST_F(SetGap, OfAnEmptyPaperTypeIsUnknownToo) {
    send(2, "");
    EXPECT_EQ(sent(), "");
    EXPECT_EQ(log, "DEBUG:Unknown paper type: !\n");
}

TEST_F(SetGap, WithoutAHeightSendsGapZeroForAnyPaperButNormal) {
    for (const char* paperType : {"LabelGaps", "LabelMark", "Roll", "", "Continue"}) {
        send(0, paperType);
        EXPECT_EQ(log, "") << paperType;
    }
    EXPECT_EQ(sent(), "GAP 0, 0\r\nGAP 0, 0\r\nGAP 0, 0\r\nGAP 0, 0\r\nGAP 0, 0\r\n");
}

TEST_F(SetGap, TakesANegativeHeightForNone) {
    send(-2, "LabelGaps");
    EXPECT_EQ(sent(), "GAP 0, 0\r\n");
}

TEST_F(SetGap, TakesAMillionthOfAMillimetreForNone) {
    send(0.0000009F, "LabelGaps");
    send(0.0000011F, "LabelGaps");
    EXPECT_EQ(sent(), "GAP 0, 0\r\nGAP 0.0 mm, 0.0 mm\r\n");
}

TEST_F(SetGap, FindsPaperTypesInsideLongerNames) {
    send(2, "MyLabelGaps2");
    send(2, "XLabelMark");
    send(2, "Continued");
    send(2, "LabelNormalGaps");
    EXPECT_EQ(sent(), "GAP 2.0 mm, 0.0 mm\r\nBLINE 2.0 mm, 0.0 mm\r\nGAP 0, 0\r\n");
}

TEST_F(SetGap, TriesNormalThenContinueThenGapsThenMark) {
    send(2, "LabelGaps Continue Normal");
    EXPECT_EQ(sent(), "");
    send(2, "LabelMark LabelGaps Continue");
    send(2, "LabelMark LabelGaps");
    EXPECT_EQ(sent(), "GAP 0, 0\r\nGAP 2.0 mm, 0.0 mm\r\n");
}

TEST_F(SetGap, MindsTheCase) {
    send(2, "labelgaps");
    EXPECT_EQ(sent(), "");
    EXPECT_EQ(log, "DEBUG:Unknown paper type: labelgaps!\n");
}

TEST_F(SetGap, AgreesWithTheReference) {
    std::string expected;
    for (const char* paperType : {"Normal", "Continue", "LabelGaps", "LabelMark", "x", ""}) {
        for (const float height : {-1.0F, 0.0F, 1.0F, 7.0F, 100.0F}) {
            send(height, paperType);
            expected += reference::gapCommand(height, paperType);
            EXPECT_EQ(log, reference::joined(reference::gapLog(height, paperType)));
        }
    }
    EXPECT_EQ(sent(), expected);
}

class SetReference : public CommandTest {};

TEST_F(SetReference, SendsTheCorner) {
    setReference();
    EXPECT_EQ(sent(), "REFERENCE 0,0\r\n");
}

class SetDirection : public CommandTest {};

TEST_F(SetDirection, IsOneForARotatedOrigin) {
    setDirection("Rotation180", 0);
    EXPECT_EQ(sent(), "DIRECTION 1,0\r\n");
}

TEST_F(SetDirection, IsZeroForAnyOtherOrigin) {
    for (const char* origin : {"", "Normal", "Rotation90", "rotation180", "Rotation18"}) {
        setDirection(origin, 0);
    }
    EXPECT_EQ(sent(),
              "DIRECTION 0,0\r\nDIRECTION 0,0\r\nDIRECTION 0,0\r\nDIRECTION 0,0\r\n"
              "DIRECTION 0,0\r\n");
}

TEST_F(SetDirection, FindsTheRotationInsideALongerName) {
    setDirection("UseRotation180Please", 0);
    EXPECT_EQ(sent(), "DIRECTION 1,0\r\n");
}

TEST_F(SetDirection, NeverMirrors) {
    setDirection("Rotation180", 1);
    setDirection("", 1);
    setDirection("", -1);
    EXPECT_EQ(sent(), "DIRECTION 1,0\r\nDIRECTION 0,0\r\nDIRECTION 0,0\r\n");
}

class SetOffset : public CommandTest {};

TEST_F(SetOffset, SendsMillimetresWithOneDecimal) {
    setOffset(0);
    setOffset(1.25F);
    setOffset(-3);
    EXPECT_EQ(sent(), "OFFSET 0.0 mm\r\nOFFSET 1.2 mm\r\nOFFSET -3.0 mm\r\n");
}

}  // namespace
