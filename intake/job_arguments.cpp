#include "intake/job_arguments.h"

#include <cstdio>

namespace intake {

JobArguments readArguments(int argc, char* argv[]) {
    return {argv[1], argv[2], argv[3], argv[4], argv[5], argc > fewestArguments ? argv[6] : ""};
}

void printUsage() {
    std::fputs("Usage: documenttokestotspl job_id user title copies options [file]\n", stderr);
}

}  // namespace intake
