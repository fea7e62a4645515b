#pragma once

#include <cstdio>

namespace MirrixCli {

/// Makes standard output and error take UTF-8 and pass bytes on unchanged. Call first.
void prepareTerminal();

/// Standard error, for this program's own words. Where the engine silences libraries by taking the C library's stderr
/// away from the whole process, this is a stream of its own.
[[nodiscard]] std::FILE *errorStream();

[[nodiscard]] bool isOutputTerminal();
[[nodiscard]] bool isErrorTerminal();

/// Columns of the terminal behind standard error; 80 when that is not known.
[[nodiscard]] int terminalColumns();

/// From the first call on, Ctrl-C and a polite request to end are noted instead of ending the program; a second one
/// ends it.
void catchInterrupts();

/// Whether one was noted. Thread-safe.
[[nodiscard]] bool isInterrupted();

} // namespace MirrixCli
