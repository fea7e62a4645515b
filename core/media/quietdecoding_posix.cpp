#include "core/media/quietdecoding.h"

#include <cstdio>
#include <sys/types.h>

namespace MirrixCore {

namespace {

thread_local int quietDepth = 0;

#ifdef __GLIBC__ // where stderr is a variable

FILE *originalStream = nullptr;

ssize_t filterWrite(void *, const char *text, size_t length)
{
    if (quietDepth > 0)
        return static_cast<ssize_t>(length);
    return static_cast<ssize_t>(std::fwrite(text, 1, length, originalStream));
}

/// Puts a filter in front of standard error once and for good.
void installFilter()
{
    static const bool done = [] {
        cookie_io_functions_t functions = {};
        functions.write = filterWrite;
        if (FILE *filter = fopencookie(nullptr, "w", functions)) {
            std::setvbuf(filter, nullptr, _IONBF, 0);
            originalStream = stderr;
            stderr = filter;
        }
        return true;
    }();
    static_cast<void>(done);
}

#else

void installFilter() {}

#endif

} // namespace

QuietDecoding::QuietDecoding()
{
    installFilter();
    ++quietDepth;
}

QuietDecoding::~QuietDecoding()
{
    --quietDepth;
}

} // namespace MirrixCore
