#pragma once

/// Severities of the diagnostic log. Traces go out at `kestoLogTrace`.
enum KestoLogLevel : int {
    kestoLogTrace = 0,
    kestoLogDebug = 1,
    kestoLogWarning = 2,
    kestoLogError = 3,
    kestoLogCritical = 4,
    kestoLogInvalid = 5,
};

/// Writes one line to standard error, where the spooler reads it: the level's prefix, the
/// formatted message directly behind it, a line end. Nothing is filtered; a level outside
/// 0 to 5 counts as invalid.
extern "C" void kestoLogCommon(int level, const char* format, ...)
    __attribute__((format(printf, 2, 3)));
