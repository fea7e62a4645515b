#include "actions/records/logevents.h"

#include "actions/files/fileoperations.h"
#include "actions/records/backupindex.h"

namespace Mirrix {

namespace {

RemovalMethod removalNumber(CleaningMethod method)
{
    switch (method) {
    case CleaningMethod::Delete:
        return RemovalMethod::Delete;
    case CleaningMethod::Move:
        return RemovalMethod::Move;
    case CleaningMethod::SymbolicLink:
    case CleaningMethod::BackupAndSymbolicLink:
        return RemovalMethod::SymbolicLink;
    case CleaningMethod::HardLink:
    case CleaningMethod::BackupAndHardLink:
        return RemovalMethod::HardLink;
    case CleaningMethod::Recycle:
    case CleaningMethod::Backup:
        break;
    }
    return RemovalMethod::Recycle;
}

} // namespace

LogEntry programStartedEvent()
{
    return logEntryNow(QStringLiteral("app_start"), QStringLiteral("Mirrix started"));
}

LogEntry programQuitEvent()
{
    return logEntryNow(QStringLiteral("app_quit"), QStringLiteral("user quit"));
}

LogEntry scanStartedEvent(const MirrixCore::ScanOptions &options)
{
    return logEntryNow(QStringLiteral("scan_start"), options.roots.join(QLatin1Char('|')));
}

LogEntry scanDoneEvent(qsizetype groupCount, qint64 wastedBytes, qint64 candidates)
{
    return logEntryNow(
        QStringLiteral("scan_done"),
        QStringLiteral("groups=%1 wasted=%2 candidates=%3").arg(groupCount).arg(wastedBytes).arg(candidates));
}

LogEntry markedByRuleEvent(int rule, qsizetype count)
{
    return logEntryNow(QStringLiteral("auto_keep"), QStringLiteral("rule=%1 count=%2").arg(rule).arg(count));
}

LogEntry cleaningEvent(CleaningMethod method, bool isBackupBeforeRemoval, qsizetype count)
{
    const QString counted = QStringLiteral("count=%1").arg(count);
    if (isBackupBeforeRemoval)
        return logEntryNow(QStringLiteral("auto_backup_delete_batch"), counted);
    if (method == CleaningMethod::Backup)
        return logEntryNow(QStringLiteral("backup_batch"), counted);
    return removalEvent(static_cast<int>(removalNumber(method)), count);
}

LogEntry removalEvent(int method, qsizetype count)
{
    return logEntryNow(QStringLiteral("remove_batch"), QStringLiteral("method=%1 count=%2").arg(method).arg(count));
}

LogEntry emptyFoldersEvent(const QStringList &folders)
{
    return logEntryNow(QStringLiteral("empty_folders"), folders.join(QLatin1Char('|')));
}

LogEntry emptyFoldersRemovedEvent(qsizetype count, qsizetype total)
{
    return logEntryNow(QStringLiteral("empty_folders_removed"), QStringLiteral("count=%1 of=%2").arg(count).arg(total));
}

LogEntry restoredEvent(const BackupEntry &entry)
{
    return logEntryNow(QStringLiteral("restore"), entry.backup.isEmpty() ? entry.original : backupLine(entry));
}

LogEntry exportedEvent(const QString &path, bool isCopy)
{
    return logEntryNow(isCopy ? QStringLiteral("export_copy") : QStringLiteral("export"), path);
}

} // namespace Mirrix
