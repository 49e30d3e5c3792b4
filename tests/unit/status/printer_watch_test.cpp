// When a printer is asked, what its answers hold back and when a job is over, with made-up times.
#include "status/printer_watch.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace status {
namespace {

using Event = PrinterWatch::Event;
using Time = PrinterWatch::Time;

constexpr std::uint8_t ready = 0x00;
constexpr std::uint8_t noLabels = 0x04;
constexpr std::uint8_t paused = 0x10;
constexpr std::uint8_t printing = 0x20;

// A watch with a clock that the test turns, and a backend that takes everything at once.
class WatchTest : public testing::Test {
protected:
    bool asks() const { return watch_.wantsToAsk(now_); }
    void ask() {
        ASSERT_TRUE(asks());
        watch_.asked(now_);
        watch_.taken(now_);
    }
    Event answer(std::uint8_t byte) { return answerWith({byte}); }
    Event answerWith(const std::vector<std::uint8_t>& bytes) { return watch_.answered(bytes); }
    Event askAndAnswer(std::uint8_t byte) {
        ask();
        return answer(byte);
    }
    Event pass(int milliseconds) {
        now_ += Time{milliseconds};
        return watch_.passed(now_);
    }
    void print() { watch_.printed(++prints_); }

    PrinterWatch watch_{false};
    Time now_{1000000};
    std::uint64_t prints_ = 0;
};

TEST_F(WatchTest, AsksAtTheStart) {
    EXPECT_TRUE(asks());
    ask();
    EXPECT_FALSE(asks());
}

TEST_F(WatchTest, HoldsTheFirstLabelUntilTheFirstAnswer) {
    EXPECT_EQ(watch_.hold(), Hold::Label);
    ask();
    EXPECT_EQ(watch_.hold(), Hold::Label);
    EXPECT_EQ(answer(ready), Event::FirstAnswer);
    EXPECT_EQ(watch_.hold(), Hold::Nothing);
}

TEST_F(WatchTest, HoldsTheFirstLabelWhileTheFirstAnswerIsAnError) {
    askAndAnswer(noLabels);
    EXPECT_EQ(watch_.hold(), Hold::Everything);
}

TEST_F(WatchTest, TakesAPrinterForMuteThatHasNotAnsweredInOneAndAHalfSeconds) {
    ask();
    EXPECT_EQ(watch_.endOfPatience(), now_ + Time{1500});
    EXPECT_EQ(pass(1499), Event::None);
    EXPECT_EQ(watch_.hold(), Hold::Label);
    EXPECT_EQ(pass(1), Event::Mute);
    EXPECT_EQ(watch_.hold(), Hold::Nothing);
    EXPECT_TRUE(watch_.isMute());
}

TEST_F(WatchTest, AsksAMutePrinterNoMoreInThisJob) {
    ask();
    pass(1500);
    for (int label = 0; label < 3; ++label) {
        print();
        EXPECT_FALSE(asks());
        EXPECT_EQ(pass(60000), Event::None);
        EXPECT_EQ(watch_.hold(), Hold::Nothing);
    }
    watch_.streamEnded();
    EXPECT_TRUE(watch_.isOver());
}

TEST_F(WatchTest, ForgetsOfAMutePrinterThatAnswersLateThatItIsMuteButAsksNoMore) {
    ask();
    pass(1500);
    EXPECT_EQ(answer(noLabels), Event::FirstAnswer);
    EXPECT_EQ(watch_.status(), StatusByte(0));
    EXPECT_EQ(watch_.hold(), Hold::Nothing);
    EXPECT_FALSE(asks());
    EXPECT_EQ(answer(ready), Event::None);
}

TEST_F(WatchTest, DoesNotCountTheTimeForWhichTheBackendLooksForThePrinter) {
    watch_.asked(now_);
    EXPECT_TRUE(watch_.waitsForBackend());
    EXPECT_EQ(watch_.endOfPatience(), std::nullopt);
    EXPECT_EQ(pass(600000), Event::None);
    EXPECT_EQ(watch_.hold(), Hold::Label);
    watch_.taken(now_);
    EXPECT_FALSE(watch_.waitsForBackend());
    EXPECT_EQ(pass(1499), Event::None);
    EXPECT_EQ(pass(1), Event::Mute);
}

TEST_F(WatchTest, AsksAPrinterThatIsKnownAsMuteOnceAndWaitsForNothing) {
    watch_ = PrinterWatch(true);
    ask();
    EXPECT_EQ(watch_.hold(), Hold::Nothing);
    print();
    EXPECT_FALSE(asks());
    watch_.streamEnded();
    EXPECT_TRUE(watch_.isOver());
}

// Else the day would begin anew with every job.
TEST_F(WatchTest, DoesNotRememberAnewOfAPrinterThatIsKnownAsMuteThatItIs) {
    watch_ = PrinterWatch(true);
    ask();
    EXPECT_EQ(pass(1500), Event::None);
    EXPECT_TRUE(watch_.isMute());
}

TEST_F(WatchTest, WatchesAPrinterThatIsKnownAsMuteFromItsFirstAnswerOn) {
    watch_ = PrinterWatch(true);
    ask();
    EXPECT_EQ(answer(noLabels), Event::FirstAnswer);
    EXPECT_EQ(watch_.hold(), Hold::Everything);
}

TEST_F(WatchTest, AsksAfterEachPrintAndHoldsTheNextLabelUntilTheAnswer) {
    askAndAnswer(ready);
    for (int label = 0; label < 3; ++label) {
        EXPECT_FALSE(asks());
        print();
        EXPECT_EQ(watch_.hold(), Hold::Everything);
        EXPECT_EQ(askAndAnswer(ready), Event::None);
        EXPECT_EQ(watch_.hold(), Hold::Nothing);
    }
}

TEST_F(WatchTest, LetsTheNextLabelGoWhileOneIsPrinted) {
    askAndAnswer(ready);
    print();
    EXPECT_EQ(askAndAnswer(printing), Event::Changed);
    EXPECT_EQ(watch_.hold(), Hold::Nothing);
}

TEST_F(WatchTest, HoldsTheNextLabelForAsLongAsThePrinterReportsAnError) {
    askAndAnswer(ready);
    print();
    EXPECT_EQ(askAndAnswer(noLabels), Event::Changed);
    for (int second = 0; second < 3600; ++second) {
        EXPECT_EQ(watch_.hold(), Hold::Everything);
        EXPECT_EQ(pass(1000), Event::None);
        EXPECT_EQ(askAndAnswer(noLabels), Event::None);
    }
    pass(500);
    EXPECT_EQ(askAndAnswer(ready), Event::Changed);
    EXPECT_EQ(watch_.hold(), Hold::Nothing);
}

TEST_F(WatchTest, HoldsTheNextLabelWhileThePrinterIsPaused) {
    askAndAnswer(paused);
    EXPECT_EQ(watch_.hold(), Hold::Everything);
    EXPECT_TRUE(watch_.isStopped());
}

TEST_F(WatchTest, AsksAStoppedOrPrintingPrinterTwiceASecond) {
    for (const std::uint8_t state : {noLabels, paused, printing}) {
        watch_ = PrinterWatch(false);
        askAndAnswer(state);
        EXPECT_FALSE(asks());
        EXPECT_EQ(watch_.nextQuestion(), now_ + Time{500});
        pass(499);
        EXPECT_FALSE(asks());
        pass(1);
        EXPECT_TRUE(asks());
    }
}

TEST_F(WatchTest, LeavesAReadyPrinterAlone) {
    askAndAnswer(ready);
    EXPECT_EQ(watch_.nextQuestion(), std::nullopt);
    EXPECT_EQ(watch_.endOfPatience(), std::nullopt);
    EXPECT_EQ(pass(3600000), Event::None);
    EXPECT_FALSE(asks());
}

TEST_F(WatchTest, IsOverWhenThePrinterHasPrintedTheLastLabel) {
    askAndAnswer(ready);
    print();
    watch_.streamEnded();
    EXPECT_FALSE(watch_.isOver());
    askAndAnswer(printing);
    EXPECT_FALSE(watch_.isOver());
    pass(500);
    ask();
    EXPECT_FALSE(watch_.isOver());
    answer(ready);
    EXPECT_TRUE(watch_.isOver());
}

TEST_F(WatchTest, IsNotOverWhileThePrinterIsStopped) {
    for (const std::uint8_t state : {noLabels, paused}) {
        watch_ = PrinterWatch(false);
        askAndAnswer(ready);
        print();
        watch_.streamEnded();
        askAndAnswer(state);
        EXPECT_FALSE(watch_.isOver());
        pass(500);
        askAndAnswer(ready);
        EXPECT_TRUE(watch_.isOver());
    }
}

TEST_F(WatchTest, IsNotOverBeforeTheStreamHasEnded) {
    askAndAnswer(ready);
    EXPECT_FALSE(watch_.isOver());
}

TEST_F(WatchTest, IsOverAtOnceWhenNothingWasPrinted) {
    ask();
    watch_.streamEnded();
    EXPECT_TRUE(watch_.isOver());
}

TEST_F(WatchTest, WaitsTenSecondsForAPrinterThatFallsSilentAndThenGoesOn) {
    askAndAnswer(ready);
    print();
    ask();
    EXPECT_EQ(pass(9999), Event::None);
    EXPECT_EQ(watch_.hold(), Hold::Everything);
    EXPECT_EQ(pass(1), Event::FellSilent);
    EXPECT_EQ(watch_.hold(), Hold::Nothing);
    EXPECT_FALSE(asks());
    watch_.streamEnded();
    EXPECT_TRUE(watch_.isOver());
}

TEST_F(WatchTest, AsksASilentPrinterAgainWithoutWaitingLonger) {
    askAndAnswer(ready);
    print();
    ask();
    const Time silence = *watch_.endOfPatience();
    EXPECT_EQ(watch_.nextQuestion(), now_ + Time{2000});
    pass(1999);
    EXPECT_FALSE(asks());
    pass(1);
    ask();
    EXPECT_EQ(watch_.endOfPatience(), silence);
}

TEST_F(WatchTest, KeepsTheErrorOfAPrinterThatFallsSilentInIt) {
    askAndAnswer(noLabels);
    pass(500);
    ask();
    EXPECT_EQ(pass(10000), Event::FellSilent);
    EXPECT_TRUE(watch_.isStopped());
}

TEST_F(WatchTest, TakesTheFirstByteBehindAQuestionForItsAnswer) {
    ask();
    answerWith({ready, noLabels, 0x0d, 0x0a});
    EXPECT_EQ(watch_.status(), StatusByte(0));
}

TEST_F(WatchTest, TakesNoByteForAnAnswerThatNobodyAskedFor) {
    EXPECT_EQ(answer(noLabels), Event::None);
    askAndAnswer(ready);
    EXPECT_EQ(answer(noLabels), Event::None);
    EXPECT_EQ(watch_.status(), StatusByte(0));
    EXPECT_EQ(watch_.hold(), Hold::Nothing);
}

TEST_F(WatchTest, TakesNoBytesForNoAnswer) {
    ask();
    EXPECT_EQ(answerWith({}), Event::None);
    EXPECT_EQ(watch_.hold(), Hold::Label);
}

TEST_F(WatchTest, KeepsTheLastStateWhenAnAnswerMeansNothing) {
    askAndAnswer(noLabels);
    pass(500);
    EXPECT_EQ(askAndAnswer(0xff), Event::None);
    EXPECT_EQ(watch_.status(), StatusByte(noLabels));
    EXPECT_EQ(watch_.hold(), Hold::Everything);
}

TEST_F(WatchTest, TakesAPrinterForMuteThatAnswersNothingThatMeansAnything) {
    ask();
    for (int i = 0; i < 14; ++i) {
        EXPECT_EQ(answer(0xff), Event::None);
        EXPECT_EQ(pass(100), Event::None);
    }
    EXPECT_EQ(pass(100), Event::Mute);
}

// The answer to a question that was asked again comes twice, and the first one may be older than
// the label that was printed in the meantime.
TEST_F(WatchTest, DoesNotTakeAnAnswerFromBeforeThePrintForOneFromBehindIt) {
    askAndAnswer(ready);
    print();
    ask();
    pass(2000);
    ask();
    answer(ready);
    print();
    watch_.streamEnded();
    ask();
    answer(ready);
    EXPECT_FALSE(watch_.isOver());
    EXPECT_EQ(watch_.hold(), Hold::Everything);
    askAndAnswer(ready);
    EXPECT_TRUE(watch_.isOver());
}

TEST_F(WatchTest, WithoutAWayForAnswersHoldsNothingAndRemembersNothing) {
    ask();
    EXPECT_EQ(watch_.lineClosed(), Event::None);
    EXPECT_EQ(watch_.hold(), Hold::Nothing);
    EXPECT_EQ(pass(1500), Event::None);
    EXPECT_FALSE(asks());
}

TEST_F(WatchTest, TellsOnceThatTheWayForAnswersIsGone) {
    askAndAnswer(ready);
    EXPECT_EQ(watch_.lineClosed(), Event::FellSilent);
    EXPECT_EQ(watch_.lineClosed(), Event::None);
}

}  // namespace
}  // namespace status
