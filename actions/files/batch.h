#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace Mirrix {

/// Called with the number of files done and of all, before each file. False ends the batch there; what was done stays
/// done. May be empty. Called from the thread that runs the batch.
using BatchProgress = std::function<bool(qsizetype done, qsizetype total)>;

/// Asked just before a file is acted on. A text is the reason, ready for the user, to leave the file alone; empty means
/// go on. May be empty.
using PathGuard = std::function<QString(const QString &path)>;

/// What a caller may add to a batch.
struct BatchControl
{
    BatchProgress progress;
    PathGuard guard;

    [[nodiscard]] bool mayGoOn(qsizetype done, qsizetype total) const { return !progress || progress(done, total); }
    [[nodiscard]] QString refusal(const QString &path) const { return guard ? guard(path) : QString(); }
};

/// The outcome of a batch.
struct BatchResult
{
    qsizetype count = 0; ///< files handled successfully
    QStringList errors;  ///< one message for each failure, translated, in the order of the files
    bool isCancelled = false;
};

} // namespace Mirrix
