#pragma once

#include <string>
#include <utility>

namespace intake {

/// Owns a file descriptor, which no child inherits.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() { close(); }

    int number() const { return number_; }
    void close();

private:
    int number_ = -1;
};

struct Pipe {
    Descriptor readEnd;
    Descriptor writeEnd;
};

Pipe makePipe();

/// Opens a file for reading, or makes one that only this user can read. Throws JobFailure.
Descriptor openFile(const std::string& path);
Descriptor makeFile(const std::string& path);

}  // namespace intake
