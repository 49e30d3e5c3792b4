#pragma once

#include <string>

#include "tests/reference/job.h"
#include "tests/system/filter_process.h"
#include "tests/system/spool_files.h"

/// A log with the two addresses of each page's processing buffer replaced by "<address>", as
/// the reference writes them. The two must agree: where they do not, they stay.
std::string withoutAddresses(const std::string& log);

/// Fails the current test wherever a filter process did not do exactly what the reference
/// says: standard output, standard error without its remarks, exit status, trace file and dumps.
void expectOutcome(const reference::Outcome& expected, const FilterResult& actual,
                   const SpoolFiles& files);

/// Fails the current test where two byte strings differ, and says where.
void expectSameBytes(const std::string& expected, const std::string& actual, const char* what);
