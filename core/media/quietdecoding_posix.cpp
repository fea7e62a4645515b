#include "core/media/quietdecoding.h"

#include <cstdio>
#include <sys/types.h>

namespace MirrixCore {

#ifdef __GLIBC__ // where stderr is a variable

namespace {

FILE *originalStream = nullptr;

ssize_t filterWrite(void *, const char *text, size_t length)
{
    const bool isDropped = QuietDecoding::isActive();
    return static_cast<ssize_t>(isDropped ? length : std::fwrite(text, 1, length, originalStream));
}

} // namespace

void filterCStandardError()
{
    cookie_io_functions_t functions = {};
    functions.write = filterWrite;
    FILE *filter = fopencookie(nullptr, "w", functions);
    if (!filter)
        return;
    // Unbuffered, so that a text is filtered while the thread that wrote it is still decoding.
    std::setvbuf(filter, nullptr, _IONBF, 0);
    originalStream = stderr;
    stderr = filter;
}

#else

void filterCStandardError() {}

#endif

} // namespace MirrixCore
