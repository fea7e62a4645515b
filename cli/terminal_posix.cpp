#include "cli/terminal.h"

#include <atomic>
#include <csignal>
#include <sys/ioctl.h>
#include <unistd.h>

namespace MirrixCli {

namespace {

std::atomic<bool> interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free, "set in a signal handler");

void onSignal(int number)
{
    interrupted = true;
    std::signal(number, SIG_DFL);
}

} // namespace

void prepareTerminal() {}

std::FILE *errorStream()
{
    return stderr;
}

bool isOutputTerminal()
{
    return isatty(STDOUT_FILENO);
}

bool isErrorTerminal()
{
    return isatty(STDERR_FILENO);
}

int terminalColumns()
{
    winsize size = {};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

void catchInterrupts()
{
    std::signal(SIGINT, onSignal);
    std::signal(SIGTERM, onSignal);
}

bool isInterrupted()
{
    return interrupted;
}

} // namespace MirrixCli
