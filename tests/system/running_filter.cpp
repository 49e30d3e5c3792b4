#include "tests/system/running_filter.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <ctime>
#include <stdexcept>

Pipe::Pipe() {
    if (pipe2(ends_, O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe");
    }
}

Pipe::~Pipe() {
    closeReadEnd();
    closeWriteEnd();
}

void Pipe::closeEnd(int& end) {
    if (end != -1) {
        close(end);
        end = -1;
    }
}

void Pipe::makeRoomFor(std::size_t bytes) const {
    if (fcntl(ends_[1], F_SETPIPE_SZ, static_cast<int>(bytes)) == -1) {
        throw std::runtime_error("no pipe of this size");
    }
}

void Pipe::write(const std::string& bytes) const {
    std::size_t written = 0;
    while (written < bytes.size()) {
        const ssize_t count = ::write(ends_[1], bytes.data() + written, bytes.size() - written);
        if (count <= 0) {
            throw std::runtime_error("cannot write to the pipe");
        }
        written += static_cast<std::size_t>(count);
    }
}

std::string Pipe::read(std::size_t most) const {
    std::string bytes(most, '\0');
    const ssize_t count = ::read(ends_[0], bytes.data(), bytes.size());
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return bytes;
}

std::size_t Pipe::waiting() const {
    int bytes = 0;
    ioctl(ends_[0], FIONREAD, &bytes);
    return static_cast<std::size_t>(bytes);
}

RunningFilter::RunningFilter(const FilterCall& call, int input, int output)
    : process_(startFilter(call, {input, output, errors_.descriptor()})) {}

RunningFilter::~RunningFilter() {
    if (isRunning()) {
        kill(process_, SIGKILL);
        status();
    }
}

void RunningFilter::cancel() const {
    kill(process_, SIGTERM);
}

bool RunningFilter::isRunning() {
    int waitStatus = 0;
    if (!ended_ && waitpid(process_, &waitStatus, WNOHANG) == process_) {
        ended_ = true;
        status_ = statusOf(waitStatus);
    }
    return !ended_;
}

int RunningFilter::status() {
    if (isRunning()) {
        status_ = waitForEnd(process_);
        ended_ = true;
    }
    return status_;
}

void sleepMicroseconds(long microseconds) {
    const timespec time = {microseconds / 1000000, microseconds % 1000000 * 1000};
    nanosleep(&time, nullptr);
}

double now() {
    timespec time = {};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}
