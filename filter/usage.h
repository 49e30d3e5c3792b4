#pragma once

/// Writes the version and the command line that the filter expects to standard error.
void printUsage(const char* programPath);
