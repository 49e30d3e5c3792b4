#pragma once

#include <cstddef>
#include <cstdint>

#include "lanes/byte_words.h"
#include "lanes/bytes.h"
#include "lanes/native.h"

// Marks on sixteen pixels of a byte each: all bits of those set for which something holds.

namespace lanes {

/// Eight limits or pixels, twice.
inline Bytes repeated(ByteWord word) {
    std::uint8_t bytes[sizeof(Bytes)];
    storeWord(word, bytes);
    storeWord(word, bytes + sizeof word);
    return loadBytes(bytes);
}

/// Marks each byte that is not below its limit.
inline Bytes isAtLeast(Bytes bytes, Bytes limits) {
    return reinterpret_cast<Bytes>(bytes >= limits);
}

/// Marks each byte that is 0.
inline Bytes isZero(Bytes bytes) {
    return reinterpret_cast<Bytes>(bytes == Bytes{});
}

}  // namespace lanes
