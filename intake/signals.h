#pragma once

#include <poll.h>

#include <csignal>
#include <span>

namespace intake {

/// From now on SIGTERM, SIGINT and SIGHUP are the wish to end the job, which is noted and
/// otherwise felt only in waitFor, as are ends of children. SIGINT and SIGHUP stay ignored where
/// the starter had them ignored. Writing where nobody reads, or beyond a limit, becomes an error.
void takeSignals();

/// Whether the job is to end.
bool isCancelled();

/// Sleeps until one of the descriptors has something to tell, a child has ended, the job is to
/// end or so many milliseconds have passed (-1: any number). What each descriptor tells stands in
/// its revents.
void waitFor(std::span<pollfd> descriptors, int milliseconds);

/// The signals that a child starts with: none blocked.
const sigset_t* noSignals();

}  // namespace intake
