#include "tests/preview/terminal_run.h"

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace {

[[noreturn]] void startShell(const TemporaryFolder& folder, const std::string& script) {
    setenv("PREVIEW", KESTO_PREVIEWER, 1);
    alarm(60);
    if (chdir(folder.path("").c_str()) == 0) {
        execl("/bin/sh", "sh", "-c", script.c_str(), nullptr);
    }
    _exit(127);
}

}  // namespace

TerminalRun runOnTerminal(const TemporaryFolder& folder, const std::string& script,
                          const Window& window) {
    int terminal = -1;
    const winsize size = {window.lines, window.columns, 0, 0};
    const pid_t child = forkpty(&terminal, nullptr, nullptr, &size);
    if (child == -1) {
        throw std::runtime_error("no terminal for the test");
    }
    if (child == 0) {
        startShell(folder, script);
    }
    TerminalRun run;
    char bytes[4096];
    // Reading fails when the last process on the terminal is gone.
    for (ssize_t count = 0; (count = read(terminal, bytes, sizeof bytes)) > 0;) {
        run.shown.append(bytes, static_cast<std::size_t>(count));
    }
    close(terminal);
    int status = 0;
    waitpid(child, &status, 0);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    return run;
}
