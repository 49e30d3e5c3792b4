#pragma once

#include <sys/types.h>

#include <string>

#include "tests/system/filter_process.h"
#include "tests/system/memory_file.h"

/// A pipe, each end of which can be closed on its own.
class Pipe {
public:
    Pipe();
    ~Pipe();
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    int readEnd() const { return ends_[0]; }
    int writeEnd() const { return ends_[1]; }
    void closeReadEnd() { closeEnd(ends_[0]); }
    void closeWriteEnd() { closeEnd(ends_[1]); }
    /// Makes room for so many bytes, in whole memory pages.
    void makeRoomFor(std::size_t bytes) const;
    /// Writes all of it, waiting for room.
    void write(const std::string& bytes) const;
    /// Reads at most so many bytes, waiting for the first; nothing at the end.
    std::string read(std::size_t most) const;
    /// Number of bytes that wait to be read.
    std::size_t waiting() const;

private:
    static void closeEnd(int& end);

    int ends_[2];
};

/// A filter while it runs. What its streams are connected to is the test's; its log is kept.
class RunningFilter {
public:
    /// Connects standard input and output to these descriptors.
    RunningFilter(const FilterCall& call, int input, int output);
    /// Kills what still runs.
    ~RunningFilter();
    RunningFilter(const RunningFilter&) = delete;
    RunningFilter& operator=(const RunningFilter&) = delete;

    /// Sends SIGTERM.
    void cancel() const;
    bool isRunning();
    /// Waits for the end: the exit status, or minus the signal that ended it.
    int status();
    std::string log() const { return errors_.content(); }

private:
    MemoryFile errors_;
    pid_t process_;
    bool ended_ = false;
    int status_ = 0;
};

/// Lets the test wait.
void sleepMicroseconds(long microseconds);

/// Seconds since some start.
double now();
