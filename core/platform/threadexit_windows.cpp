// Only where GCC is the compiler. It keeps thread-local variables in memory of its own, and what ends a thread there
// (libwinpthread) goes through its cleaners in the order in which they were registered. Usually the one that frees this
// memory comes first, and the one that runs the variables' destructors after it, on freed memory: a thread on which Qt
// had used a QRegularExpression then ends with an access violation, or corrupts the heap, and the process may never
// end. Registering the second one here, before anything uses the first, turns the order round. Linked into every
// program that links the engine (see core/CMakeLists.txt).

#include "core/platform/win32.h"

namespace {

using Register = int (*)(void (*destructor)(void *), void *object, void *module);

void nothing(void *) {}

} // namespace

extern "C" bool mirrixThreadExitOrder;
bool mirrixThreadExitOrder = false;

[[gnu::constructor(101)]] static void registerDestructorsFirst()
{
    // The library's own function: a program may have got another one of this name from the C run time.
    const HMODULE library = GetModuleHandleW(L"libstdc++-6.dll");
    if (!library)
        return;
    const auto address = reinterpret_cast<void *>(GetProcAddress(library, "__cxa_thread_atexit"));
    if (const auto add = reinterpret_cast<Register>(address))
        mirrixThreadExitOrder = add(nothing, nullptr, &mirrixThreadExitOrder) == 0;
}
