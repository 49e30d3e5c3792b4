#pragma once

namespace intake::picture {

/// Dots of one picture as its decoder makes them.
inline constexpr long mostSamples = 100'000'000;

/// Prepares the library that decodes pictures, once per process and before anything else of it, and
/// bounds what it may take, as SECURITY.md says.
void startDecoder(long samples = mostSamples);

/// While one of these lives a picture may have four times as many dots and four times the memory:
/// its decoder makes it smaller, but may have to hold all of it before that.
class RoomForReduction {
public:
    RoomForReduction();
    ~RoomForReduction();
    RoomForReduction(const RoomForReduction&) = delete;
    RoomForReduction& operator=(const RoomForReduction&) = delete;

private:
    long samples_;
    long memory_;
};

}  // namespace intake::picture
