#include "filter/usage.h"

#include <cstdio>

#include "driver/text.h"

void printUsage(const char* programPath) {
    constexpr const char* version = "3.13.32";
    const char* name = kestoPathGetBasename(programPath);
    std::fprintf(stderr, "%s v%s\n\nUsage:\n\n    %s job_id user title copyies options [file]\n\n",
                 name, version, name);
}
