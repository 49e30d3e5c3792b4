// How the stream passes: whole, command by command, and not where it is held.
#include "status/stream_gate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace status {
namespace {

void fill(StreamGate& gate, const std::string& text) {
    const auto room = gate.room();
    ASSERT_GE(room.size(), text.size());
    std::copy(text.begin(), text.end(), room.begin());
    gate.filled(text.size());
}

// Everything that passes, as often as something does.
std::string passed(StreamGate& gate, Hold hold = Hold::Nothing) {
    std::string text;
    for (;;) {
        const auto bytes = gate.next(hold);
        if (bytes.empty()) {
            return text;
        }
        text.append(bytes.begin(), bytes.end());
        gate.handedOn(bytes.size());
    }
}

// Some bytes, as a pipe takes that is nearly full.
std::string passedBytes(StreamGate& gate, std::size_t count, Hold hold = Hold::Nothing) {
    std::string text;
    while (text.size() < count) {
        const auto bytes = gate.next(hold);
        const auto part = bytes.first(std::min(bytes.size(), count - text.size()));
        if (part.empty()) {
            return text;
        }
        text.append(part.begin(), part.end());
        gate.handedOn(part.size());
    }
    return text;
}

const std::string setUp = "\n\nSIZE 1 mm,1 mm\r\nCLS\r\n";
const std::string bitmap = "BITMAP 0,0,2,2,0,abcd\r\n";
const std::string print = "PRINT 1,1\r\n";

TEST(StreamGate, PassesAStreamAsItIs) {
    StreamGate gate;
    fill(gate, setUp + bitmap + print);
    EXPECT_EQ(passed(gate), setUp + bitmap + print);
    EXPECT_EQ(gate.prints(), 1U);
    EXPECT_FALSE(gate.isDrained());
    gate.end();
    EXPECT_TRUE(gate.isDrained());
}

TEST(StreamGate, CountsDataThatGoPastIt) {
    StreamGate gate;
    fill(gate, "BITMAP 0,0,2,5,0,ab");
    EXPECT_EQ(gate.dataLeft(), 0U) << "some of them are still to be handed on";
    EXPECT_EQ(passed(gate), "BITMAP 0,0,2,5,0,ab");
    EXPECT_EQ(gate.dataLeft(), 8U);
    gate.passed(7);
    EXPECT_EQ(gate.dataLeft(), 1U);
    EXPECT_TRUE(gate.isInData());
    gate.passed(1);
    EXPECT_EQ(gate.dataLeft(), 0U);
    EXPECT_FALSE(gate.isBetweenCommands());
    EXPECT_TRUE(gate.needsLineEnd());
    fill(gate, "\r\n" + print);
    EXPECT_EQ(passed(gate), "\r\n" + print);
    EXPECT_EQ(gate.prints(), 1U);
    EXPECT_TRUE(gate.isBetweenCommands());
}

TEST(StreamGate, IsCancelledBehindDataOfWhichSomeWentPastIt) {
    StreamGate gate;
    fill(gate, "BITMAP 0,0,2,5,0,ab");
    passed(gate);
    gate.passed(6);
    fill(gate, "ij\r\n" + print);
    EXPECT_EQ(passedBytes(gate, 1), "i");
    gate.cancel();
    EXPECT_EQ(passed(gate), "j\r\n");
    EXPECT_TRUE(gate.isFinished());
    EXPECT_EQ(gate.prints(), 0U);
}

TEST(StreamGate, LetsTheSetUpPassWhereLabelsAreHeld) {
    StreamGate gate;
    fill(gate, setUp + bitmap + print);
    EXPECT_EQ(passed(gate, Hold::Label), setUp);
    EXPECT_TRUE(gate.isBetweenCommands());
    EXPECT_EQ(passed(gate, Hold::Nothing), bitmap + print);
}

TEST(StreamGate, HoldsAPrintWhereLabelsAreHeld) {
    StreamGate gate;
    fill(gate, "TEXT 0,0,\"1\",0,1,1,\"a\"\r\n" + print);
    EXPECT_EQ(passed(gate, Hold::Label), "TEXT 0,0,\"1\",0,1,1,\"a\"\r\n");
    EXPECT_EQ(gate.prints(), 0U);
}

TEST(StreamGate, LetsNothingPassWhereEverythingIsHeld) {
    StreamGate gate;
    fill(gate, setUp + bitmap + print);
    EXPECT_EQ(passed(gate, Hold::Everything), "");
    EXPECT_TRUE(gate.isBetweenCommands());
}

TEST(StreamGate, BringsWhatIsUnderWayToItsEndWhateverIsHeld) {
    StreamGate gate;
    fill(gate, bitmap + print);
    EXPECT_EQ(passedBytes(gate, 3), "BIT");
    EXPECT_FALSE(gate.isBetweenCommands());
    EXPECT_EQ(passed(gate, Hold::Everything), bitmap.substr(3));
    EXPECT_TRUE(gate.isBetweenCommands());
}

TEST(StreamGate, KeepsALineUntilItIsWhole) {
    StreamGate gate;
    fill(gate, "CLS\r\nPRI");
    EXPECT_EQ(passed(gate), "CLS\r\n");
    EXPECT_TRUE(gate.isBetweenCommands());
    fill(gate, "NT 1\r");
    EXPECT_EQ(passed(gate), "");
    fill(gate, "\n");
    EXPECT_EQ(passed(gate), "PRINT 1\r\n");
    EXPECT_EQ(gate.prints(), 1U);
}

TEST(StreamGate, KeepsAHeadUntilItIsWholeAndPassesDataAsTheyCome) {
    StreamGate gate;
    fill(gate, "BITMAP 0,0,2,2");
    EXPECT_EQ(passed(gate), "");
    fill(gate, ",0,ab");
    EXPECT_EQ(passed(gate), "BITMAP 0,0,2,2,0,ab");
    EXPECT_FALSE(gate.isBetweenCommands());
    fill(gate, "cd");
    EXPECT_EQ(passed(gate), "cd");
    EXPECT_FALSE(gate.isBetweenCommands());
    fill(gate, "\r\n");
    EXPECT_EQ(passed(gate), "\r\n");
    EXPECT_TRUE(gate.isBetweenCommands());
}

TEST(StreamGate, PassesALastLineWithoutItsEnd) {
    StreamGate gate;
    fill(gate, "CLS\nPRINT 1");
    EXPECT_EQ(passed(gate), "CLS\n");
    gate.end();
    EXPECT_EQ(passed(gate), "PRINT 1");
    EXPECT_TRUE(gate.isDrained());
    EXPECT_EQ(gate.prints(), 1U);
}

TEST(StreamGate, PassesALineThatIsLongerThanItsRoom) {
    StreamGate gate;
    const std::string line = "TEXT " + std::string(gate.room().size() - 5, 'x');
    fill(gate, line);
    EXPECT_EQ(passed(gate), line);
    EXPECT_FALSE(gate.isBetweenCommands());
    fill(gate, "yyy");
    EXPECT_EQ(passed(gate, Hold::Everything), "yyy");
    fill(gate, "z\n" + print);
    EXPECT_EQ(passed(gate), "z\n" + print);
    EXPECT_TRUE(gate.isBetweenCommands());
}

TEST(StreamGate, IsNotBetweenCommandsInAProgramThatIsStored) {
    StreamGate gate;
    fill(gate, "DOWNLOAD \"A.BAS\"\nPRINT 1\n");
    EXPECT_EQ(passed(gate, Hold::Everything), "");
    EXPECT_TRUE(gate.isBetweenCommands());
    passed(gate);
    EXPECT_FALSE(gate.isBetweenCommands());
    EXPECT_EQ(gate.prints(), 0U);
    fill(gate, "EOP\n");
    passed(gate);
    EXPECT_TRUE(gate.isBetweenCommands());
}

TEST(StreamGate, IsBetweenCommandsWhereTheStreamEndsInAProgram) {
    StreamGate gate;
    fill(gate, "DOWNLOAD \"A.BAS\"\nPRINT 1\n");
    passed(gate);
    gate.end();
    EXPECT_TRUE(gate.isBetweenCommands());
}

TEST(StreamGate, IsNotBetweenCommandsWhereTheStreamEndsInABitmap) {
    StreamGate gate;
    fill(gate, "BITMAP 0,0,2,2,0,abc");
    passed(gate);
    gate.end();
    EXPECT_TRUE(gate.isDrained());
    EXPECT_FALSE(gate.isBetweenCommands());
}

TEST(StreamGate, CancelledBetweenCommandsLetsNothingPass) {
    StreamGate gate;
    fill(gate, setUp + bitmap + print);
    passed(gate, Hold::Label);
    gate.cancel();
    EXPECT_EQ(passed(gate), "");
    EXPECT_TRUE(gate.isFinished());
}

TEST(StreamGate, CancelledInABitmapBringsItToItsEndWithItsLineEnd) {
    StreamGate gate;
    fill(gate, "BITMAP 0,0,2,2,0,a");
    passed(gate);
    gate.cancel();
    EXPECT_FALSE(gate.isFinished());
    fill(gate, "bcd\r\n" + print + setUp);
    EXPECT_EQ(passed(gate), "bcd\r\n");
    EXPECT_TRUE(gate.isFinished());
    EXPECT_EQ(gate.prints(), 0U);
}

TEST(StreamGate, CancelledInABitmapSaysWhenOnlyItsLineEndIsMissing) {
    StreamGate gate;
    fill(gate, "BITMAP 0,0,2,2,0,ab");
    passed(gate);
    gate.cancel();
    EXPECT_FALSE(gate.needsLineEnd());
    fill(gate, "cd");
    EXPECT_FALSE(gate.needsLineEnd());
    passed(gate);
    EXPECT_TRUE(gate.needsLineEnd());
    gate.endData();
    EXPECT_TRUE(gate.isFinished());
}

TEST(StreamGate, CancelledInLinesBringsOneToItsEnd) {
    for (const auto& [taken, rest] :
         {std::pair<std::size_t, const char*>{1, "IZE 1\r\n"}, {7, "\n"}, {8, ""}, {9, "LS\r\n"}}) {
        StreamGate gate;
        fill(gate, "SIZE 1\r\nCLS\r\n" + bitmap);
        passedBytes(gate, taken);
        gate.cancel();
        EXPECT_EQ(passed(gate), rest) << taken;
        EXPECT_TRUE(gate.isFinished()) << taken;
    }
}

// Chance decides how much comes, how much goes and what is held.
TEST(StreamGate, LosesNothingAndDoublesNothingWhateverIsHeld) {
    std::string stream;
    for (int label = 0; label < 40; ++label) {
        const std::string data(static_cast<std::size_t>(label) * 500, label % 2 == 0 ? '\n' : 'P');
        stream += setUp + "BITMAP 0,0,500," + std::to_string(label) + ",0," + data + "\r\n" + print;
    }
    for (unsigned seed = 0; seed < 200; ++seed) {
        std::mt19937 chance(seed);
        StreamGate gate;
        std::string out;
        std::size_t in = 0;
        while (!gate.isDrained()) {
            const auto room = gate.room();
            const std::size_t count =
                std::min({room.size(), stream.size() - in, std::size_t{chance() % 70000}});
            std::copy_n(stream.begin() + static_cast<std::ptrdiff_t>(in), count, room.begin());
            gate.filled(count);
            in += count;
            if (in == stream.size()) {
                gate.end();
            }
            out += passedBytes(gate, chance() % 70000, static_cast<Hold>(chance() % 3));
        }
        ASSERT_EQ(out, stream) << seed;
        ASSERT_EQ(gate.prints(), 40U) << seed;
    }
}

}  // namespace
}  // namespace status
