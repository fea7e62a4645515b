#pragma once

#include "ui/state/backgroundthreads.h"

#include <QFutureWatcher>
#include <QtConcurrent>

#include <type_traits>
#include <utility>

namespace Mirrix {

/// Runs `work` on a pool thread and hands its result to `done` in the owner's thread. When the owner is gone by then
/// the result is dropped.
template <typename Work, typename Done>
void runInBackground(QObject *owner, Work work, Done done)
{
    using Watcher = QFutureWatcher<std::invoke_result_t<Work>>;
    auto *watcher = new Watcher(owner);
    QObject::connect(watcher, &Watcher::finished, owner, [watcher, done = std::move(done)] {
        watcher->deleteLater();
        done(watcher->result());
    });
    watcher->setFuture(QtConcurrent::run(backgroundThreads(), std::move(work)));
}

} // namespace Mirrix
