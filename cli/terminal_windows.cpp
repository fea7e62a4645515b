#include "cli/terminal.h"

#include "core/platform/win32.h"

#include <atomic>
#include <fcntl.h>
#include <io.h>
#include <stdio.h>

namespace MirrixCli {

namespace {

std::atomic<bool> interrupted = false;
FILE *ownErrorStream = nullptr;

BOOL WINAPI onControl(DWORD)
{
    return interrupted.exchange(true) ? FALSE : TRUE; // false: the default handler ends the program
}

bool isConsole(DWORD which)
{
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(which), &mode);
}

} // namespace

void prepareTerminal()
{
    SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    ownErrorStream = _fdopen(_dup(_fileno(stderr)), "wb");
    if (ownErrorStream)
        setvbuf(ownErrorStream, nullptr, _IONBF, 0);
    // Lets the console understand the sequence that clears the progress line.
    constexpr DWORD virtualTerminal = 0x0004;
    DWORD mode = 0;
    const HANDLE error = GetStdHandle(STD_ERROR_HANDLE);
    if (GetConsoleMode(error, &mode))
        SetConsoleMode(error, mode | virtualTerminal);
}

FILE *errorStream()
{
    return ownErrorStream ? ownErrorStream : stderr;
}

bool isOutputTerminal()
{
    return isConsole(STD_OUTPUT_HANDLE);
}

bool isErrorTerminal()
{
    return isConsole(STD_ERROR_HANDLE);
}

int terminalColumns()
{
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    const bool isKnown = GetConsoleScreenBufferInfo(GetStdHandle(STD_ERROR_HANDLE), &info);
    return isKnown ? info.srWindow.Right - info.srWindow.Left + 1 : 80;
}

void catchInterrupts()
{
    SetConsoleCtrlHandler(onControl, TRUE);
}

bool isInterrupted()
{
    return interrupted;
}

} // namespace MirrixCli
