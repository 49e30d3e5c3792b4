#include "intake/memory_bound.h"

#include <sys/resource.h>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KESTO_SANITIZED
#endif
#endif

namespace intake {

void boundMemory() {
#if !defined(KESTO_SANITIZED) && !defined(__SANITIZE_ADDRESS__)
    constexpr rlim_t most = rlim_t{1} << 30U;
    rlimit limit{};
    if (getrlimit(RLIMIT_DATA, &limit) == 0 && limit.rlim_cur > most) {
        limit.rlim_cur = most;
        setrlimit(RLIMIT_DATA, &limit);
    }
#endif
}

}  // namespace intake
