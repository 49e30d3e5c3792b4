#include "driver/log.h"

#include <cstdarg>
#include <cstdio>

namespace {

// Levels 0 and 1 share a prefix on purpose: the spooler knows one kind of trace.
constexpr const char* sLogLevelTexts[] = {
    "DEBUG:", "DEBUG:", "WARN:", "ERROR:", "CRIT:", "INVALID:"};

const char* prefixOf(int level) {
    const bool known = level >= kestoLogTrace && level <= kestoLogInvalid;
    return sLogLevelTexts[known ? level : kestoLogInvalid];
}

}  // namespace

extern "C" void kestoLogCommon(int level, const char* format, ...) {
    std::fprintf(stderr, "%s", prefixOf(level));
    va_list args;
    va_start(args, format);
    std::vfprintf(stderr, format, args);
    va_end(args);
    std::fprintf(stderr, "\n");
}
