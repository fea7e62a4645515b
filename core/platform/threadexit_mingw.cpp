// GCC keeps thread-local variables on Windows in memory of its own, and what ends a thread there (libwinpthread) goes
// through its cleaners in the order in which they were registered. Usually the one that frees this memory comes first,
// and the one that runs the variables' destructors after it, on freed memory: a thread on which Qt had used a
// QRegularExpression then ends with an access violation, or corrupts the heap, and the process may never end.
// Registering the second one here, before anything uses the first, turns the order round. Linked into every program
// that links the engine (see core/CMakeLists.txt).

#include <cxxabi.h>

namespace {

void nothing(void *) {}

} // namespace

extern "C" int mirrixThreadExitOrder;
int mirrixThreadExitOrder = 0;

[[gnu::constructor(101)]] static void registerDestructorsFirst()
{
    mirrixThreadExitOrder = abi::__cxa_thread_atexit(nothing, nullptr, &mirrixThreadExitOrder);
}
