#pragma once

#include "actions/records/cleaningmethod.h"
#include "actions/records/operationslog.h"
#include "core/model/scanoptions.h"
#include "core/model/scanresult.h"

#include <QString>

namespace Mirrix {

struct BackupEntry;

// The records of the operations log, each with the current time. The names and the form of the details are read by
// other programs.

[[nodiscard]] LogEntry programStartedEvent();
[[nodiscard]] LogEntry programQuitEvent();
[[nodiscard]] LogEntry scanStartedEvent(const MirrixCore::ScanOptions &options);
[[nodiscard]] LogEntry scanDoneEvent(qsizetype groupCount, qint64 wastedBytes, qint64 candidates);

/// `count` files were marked by a rule, number as in the list of keep rules.
[[nodiscard]] LogEntry markedByRuleEvent(int rule, qsizetype count);

/// `count` files were removed by a method; `isBackupBeforeRemoval`: backed up because the user asked for that in the
/// removal dialog.
[[nodiscard]] LogEntry cleaningEvent(CleaningMethod method, bool isBackupBeforeRemoval, qsizetype count);

/// Removal by a method, number as in the removal dialog.
[[nodiscard]] LogEntry removalEvent(int method, qsizetype count);

/// These empty folders are about to be removed; afterwards, how many of how many were.
[[nodiscard]] LogEntry emptyFoldersEvent(const QStringList &folders);
[[nodiscard]] LogEntry emptyFoldersRemovedEvent(qsizetype count, qsizetype total);

[[nodiscard]] LogEntry restoredEvent(const BackupEntry &entry);

/// A list was written to, or copies were made in, `path`.
[[nodiscard]] LogEntry exportedEvent(const QString &path, bool isCopy);

} // namespace Mirrix
