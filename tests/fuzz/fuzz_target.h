#pragma once

#include <cstddef>
#include <cstdint>

/// What every harness defines: takes one input of any kind. Always returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
