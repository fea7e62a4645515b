#pragma once

namespace MirrixCli {

/// Makes standard output and error take UTF-8 and pass bytes on unchanged. Call first.
void prepareTerminal();

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
