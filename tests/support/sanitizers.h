// Which sanitizers watch this build, for what cannot be tried under them.
#pragma once

// The address sanitizer maps far more memory than any limit of the address space that a test
// could set, and ends a process that asks for more than there can be.
#if defined(__SANITIZE_ADDRESS__)
#define KESTO_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KESTO_ADDRESS_SANITIZER
#endif
#endif
