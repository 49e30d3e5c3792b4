#pragma once

namespace sizes {

/// A file descriptor that is closed at the end; -1 is none.
class Descriptor {
public:
    explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
    ~Descriptor() { close(); }
    Descriptor(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return descriptor_; }
    /// Closes it now. False when the system then says that not everything was written.
    bool close();

private:
    int descriptor_;
};

/// Opens the standard streams that are closed, so that no file or pipe gets their place. What is
/// written to them then fails.
void fillStandardStreams();

}  // namespace sizes
