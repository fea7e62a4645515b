#pragma once

#include <QThreadPool>

#include <memory>
#include <utility>

namespace Mirrix {

/// The threads for the window's background work: reading, sorting, freeing. Not the global pool: a scan keeps that one
/// busy for minutes. Thread-safe.
[[nodiscard]] QThreadPool *backgroundThreads();

/// Frees what may be a million records without blocking the interface.
template <typename Value>
void discardInBackground(Value &&value)
{
    auto old = std::make_shared<std::decay_t<Value>>(std::forward<Value>(value));
    backgroundThreads()->start([old = std::move(old)]() mutable { old.reset(); });
}

} // namespace Mirrix
