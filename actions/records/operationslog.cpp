#include "actions/records/operationslog.h"

#include "actions/files/exclusivelock.h"
#include "actions/records/aescbc.h"
#include "actions/records/logrecords.h"
#include "app/storedfile.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <optional>

namespace Mirrix {

namespace {

/// The file's bytes; empty when it does not exist. No value when it exists and cannot be read.
std::optional<QByteArray> storedBytes(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.exists() ? std::nullopt : std::optional(QByteArray());
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? std::optional(bytes) : std::nullopt;
}

} // namespace

OperationsLog::OperationsLog(const QString &filePath)
    : m_filePath(filePath)
{}

bool OperationsLog::append(const QString &action, const QString &detail)
{
    return append({logEntryNow(action, detail)});
}

bool OperationsLog::append(const QList<LogEntry> &records)
{
    QDir().mkpath(QFileInfo(m_filePath).path());
    // The window and the console may write at the same time; without this the later one drops the other's record.
    QLockFile lock(m_filePath + QLatin1String(".lock"));
    if (!lockExclusively(lock))
        return false;
    const std::optional<QByteArray> stored = storedBytes(m_filePath);
    if (!stored)
        return false; // replacing the file would lose all earlier records
    const QByteArray key = operationsLogKey();
    const QByteArray encrypted = encryptAesCbc(key, withLogRecords(decryptAesCbc(key, *stored), records));
    return !encrypted.isEmpty() && replaceFile(m_filePath, encrypted);
}

QList<LogEntry> OperationsLog::readAll() const
{
    return logRecordsOf(decryptAesCbc(operationsLogKey(), storedBytes(m_filePath).value_or(QByteArray())));
}

LogEntry logEntryNow(const QString &action, const QString &detail)
{
    return {QDateTime::currentMSecsSinceEpoch(), action, detail};
}

QByteArray operationsLogKey()
{
    return QCryptographicHash::hash(QSysInfo::machineUniqueId() + "Mirrix-OpsJournal-Key-v01",
                                    QCryptographicHash::Sha256);
}

QString operationsLogPath(const QString &dataDirectory)
{
    return dataDirectory + QLatin1String("/ops.log.enc");
}

} // namespace Mirrix
