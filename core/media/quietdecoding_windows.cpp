#include "core/media/quietdecoding.h"

#include "core/platform/win32.h"

#include <fcntl.h>
#include <io.h>

namespace MirrixCore {

// The C runtime does not let us see which thread writes, so the stream goes nowhere for the whole process. The console
// program has a stream of its own by then, and the system's handle stays what it was.
void filterCStandardError()
{
    constexpr int standardError = 2;
    const HANDLE process = GetCurrentProcess();
    HANDLE kept = nullptr;
    if (!DuplicateHandle(process, GetStdHandle(STD_ERROR_HANDLE), process, &kept, 0, TRUE, DUPLICATE_SAME_ACCESS))
        return; // a program with windows has no standard error
    const int nowhere = _open("NUL", _O_WRONLY);
    if (nowhere >= 0) {
        _dup2(nowhere, standardError);
        _close(nowhere);
    }
    SetStdHandle(STD_ERROR_HANDLE, kept);
}

} // namespace MirrixCore
