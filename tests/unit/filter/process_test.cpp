// What the process is readied for, tried on processes that end.
#include "filter/process.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <exception>

#include "driver/log.h"
#include "tests/support/child_process.h"
#include "tests/unit/filter/test_support.h"

namespace {

constexpr int held = 0;
constexpr int broken = 1;

int verdict(bool holds) {
    return holds ? held : broken;
}

std::string nextWrite(int socket) {
    char bytes[256];
    const ssize_t length = recv(socket, bytes, sizeof bytes, MSG_DONTWAIT);
    return {bytes, static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
}

TEST(PreparedProcess, SurvivesWritingWhereNobodyReads) {
    EXPECT_EQ(endOfChild([] {
                  prepareProcess();
                  int ends[2];
                  if (pipe(ends) != 0) {
                      return broken;
                  }
                  close(ends[0]);
                  return verdict(write(ends[1], "x", 1) == -1 && errno == EPIPE);
              }),
              held);
}

TEST(PreparedProcess, SurvivesWritingBeyondTheLimitOfAFile) {
    const TemporaryFolder folder;
    const std::string path = folder.path("file");
    EXPECT_EQ(endOfChild([&path] {
                  prepareProcess();
                  const rlimit limit = {1, 1};
                  setrlimit(RLIMIT_FSIZE, &limit);
                  const int file = open(path.c_str(), O_WRONLY | O_CREAT, 0600);
                  const bool first = write(file, "x", 1) == 1;
                  return verdict(first && write(file, "y", 1) == -1 && errno == EFBIG);
              }),
              held);
}

TEST(PreparedProcess, OpensNothingAsAStandardStream) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "x");
    EXPECT_EQ(endOfChild([&path] {
                  for (const int stream : {0, 1, 2}) {
                      close(stream);
                  }
                  prepareProcess();
                  return verdict(open(path.c_str(), O_RDONLY) > 2);
              }),
              held);
}

TEST(PreparedProcess, StillCannotUseAStandardStreamThatWasClosed) {
    EXPECT_EQ(endOfChild([] {
                  close(0);
                  close(1);
                  prepareProcess();
                  char byte = 0;
                  return verdict(read(0, &byte, 1) == -1 && write(1, &byte, 1) == -1);
              }),
              held);
}

TEST(PreparedProcess, LeavesOpenStandardStreamsAlone) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "x");
    EXPECT_EQ(endOfChild([&path] {
                  dup2(open(path.c_str(), O_RDONLY), 0);
                  prepareProcess();
                  char byte = 0;
                  return verdict(read(0, &byte, 1) == 1 && byte == 'x');
              }),
              held);
}

// A socket of datagrams keeps writes apart.
TEST(PreparedProcess, WritesEachLineOfTheLogAtOnce) {
    int ends[2];
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_DGRAM, 0, ends), 0);
    EXPECT_EQ(endOfChild([&ends] {
                  dup2(ends[1], STDERR_FILENO);
                  prepareProcess();
                  kestoLogCommon(kestoLogTrace, "first %d", 1);
                  kestoLogCommon(kestoLogError, "second %s", "line");
                  return held;
              }),
              held);
    close(ends[1]);
    EXPECT_EQ(nextWrite(ends[0]), "DEBUG:first 1\n");
    EXPECT_EQ(nextWrite(ends[0]), "ERROR:second line\n");
    close(ends[0]);
}

// As an allocation that fails and that nothing catches has it.
TEST(PreparedProcess, SendsWhatItHasAndSaysSoWhenMemoryRunsOut) {
    const TemporaryFolder folder;
    const std::string output = folder.path("out");
    const std::string log = folder.path("log");
    EXPECT_EQ(endOfChild([&output, &log] {
                  prepareProcess();
                  if (std::freopen(output.c_str(), "w", stdout) == nullptr ||
                      std::freopen(log.c_str(), "w", stderr) == nullptr) {
                      return held;
                  }
                  std::fputs("CLS\r\n", stdout);
                  std::terminate();
                  return held;
              }),
              1);
    EXPECT_EQ(readFile(output), "CLS\r\n");
    EXPECT_EQ(readFile(log), "CRIT:Out of memory, the job ends\n");
}

}  // namespace
