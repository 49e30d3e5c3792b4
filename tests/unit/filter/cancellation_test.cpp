// SIGTERM, tried on processes that end.
#include "filter/cancellation.h"

#include <fcntl.h>
#include <sys/resource.h>

#include <cerrno>
#include <csignal>
#include <ctime>

#include "tests/support/child_process.h"
#include "tests/unit/filter/test_support.h"

namespace {

constexpr int held = 0;
constexpr int broken = 1;

int verdict(bool holds) {
    return holds ? held : broken;
}

// A pipe to read from, to which nothing is ever written although it could be.
class SilentInput {
public:
    SilentInput() { opened_ = pipe(ends_) == 0; }
    ~SilentInput() {
        close(ends_[0]);
        close(ends_[1]);
    }
    SilentInput(const SilentInput&) = delete;
    SilentInput& operator=(const SilentInput&) = delete;

    int descriptor() const { return opened_ ? ends_[0] : -1; }
    bool isAtItsEnd() const {
        char byte = 0;
        return read(descriptor(), &byte, 1) == 0;
    }

private:
    int ends_[2] = {-1, -1};
    bool opened_;
};

void sleepMilliseconds(long milliseconds) {
    const timespec time = {0, milliseconds * 1000000};
    nanosleep(&time, nullptr);
}

TEST(Cancellation, IsNotThereAtFirst) {
    EXPECT_FALSE(isCancelled());
    EXPECT_EQ(endOfChild([] {
                  const SilentInput input;
                  heedCancellation(input.descriptor());
                  return verdict(!isCancelled());
              }),
              held);
}

TEST(Cancellation, EndsTheInputAtTheFirstSignal) {
    EXPECT_EQ(endOfChild([] {
                  const SilentInput input;
                  heedCancellation(input.descriptor());
                  std::raise(SIGTERM);
                  return verdict(isCancelled() && input.isAtItsEnd());
              }),
              held);
}

TEST(Cancellation, EndsAFileAsInput) {
    const TemporaryFolder folder;
    const std::string path = folder.write("page.ras", "RaS3");
    EXPECT_EQ(endOfChild([&path] {
                  const int input = open(path.c_str(), O_RDONLY);
                  heedCancellation(input);
                  std::raise(SIGTERM);
                  char byte = 0;
                  return verdict(read(input, &byte, 1) == 0);
              }),
              held);
}

TEST(Cancellation, EndsTheInputForAReaderWhoWaits) {
    const SilentInput input;
    const pid_t child = startChild([&input] {
        heedCancellation(input.descriptor());
        return verdict(input.isAtItsEnd() && isCancelled());
    });
    sleepMilliseconds(50);
    kill(child, SIGTERM);
    EXPECT_EQ(endOf(child), held);
}

TEST(Cancellation, EndsTheProcessAtTheSecondSignal) {
    EXPECT_EQ(endOfChild([] {
                  const SilentInput input;
                  heedCancellation(input.descriptor());
                  std::raise(SIGTERM);
                  std::raise(SIGTERM);
                  return held;
              }),
              -SIGTERM);
}

TEST(Cancellation, ComesThroughWhereTheSignalWasIgnored) {
    EXPECT_EQ(endOfChild([] {
                  std::signal(SIGTERM, SIG_IGN);
                  const SilentInput input;
                  heedCancellation(input.descriptor());
                  std::raise(SIGTERM);
                  return verdict(isCancelled());
              }),
              held);
}

TEST(Cancellation, ComesThroughWhereTheSignalWasBlocked) {
    EXPECT_EQ(endOfChild([] {
                  sigset_t signals;
                  sigemptyset(&signals);
                  sigaddset(&signals, SIGTERM);
                  sigprocmask(SIG_BLOCK, &signals, nullptr);
                  std::raise(SIGTERM);
                  const SilentInput input;
                  heedCancellation(input.descriptor());
                  return verdict(isCancelled() && input.isAtItsEnd());
              }),
              held);
}

TEST(Cancellation, LeavesTheErrorNumberOfWhatItInterrupts) {
    EXPECT_EQ(endOfChild([] {
                  heedCancellation(-1);
                  errno = ENOSPC;
                  std::raise(SIGTERM);
                  return verdict(errno == ENOSPC);
              }),
              held);
}

TEST(Cancellation, IsLeftToTheSignalItselfWhereNoDescriptorIsLeft) {
    const TemporaryFolder folder;
    const std::string log = folder.path("log");
    EXPECT_EQ(endOfChild([&log] {
                  std::freopen(log.c_str(), "w", stderr);
                  std::signal(SIGTERM, SIG_IGN);
                  const rlimit none = {0, 0};
                  setrlimit(RLIMIT_NOFILE, &none);
                  heedCancellation(0);
                  std::fflush(stderr);
                  std::raise(SIGTERM);
                  return held;
              }),
              -SIGTERM);
    EXPECT_EQ(readFile(log), "ERROR:SIGTERM ends the filter wherever it is: Too many open files\n");
}

}  // namespace
