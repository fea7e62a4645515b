#include "actions/operationslog.h"

#include "actions/aescbc.h"
#include "actions/solelock.h"
#include "app/storedfile.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

#include <optional>
#include <utility>

namespace Mirrix {

namespace {

/// A JSON string, quotes included. Qt's writer keeps lone surrogates of file names, which toUtf8 would lose.
QByteArray jsonText(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

/// The array `json`, or a new one where that is none, with `records` at its end. What it holds stays as it is: building
/// it anew takes four times as long. The members stand in the layout's order; QJsonObject would sort them.
QByteArray appended(QByteArray json, const QList<LogEntry> &records)
{
    if (QJsonDocument::fromJson(json).isArray()) {
        json.truncate(json.lastIndexOf(']'));
        json = std::move(json).trimmed();
    } else {
        json = "[";
    }
    for (const LogEntry &record : records) {
        if (!json.endsWith('['))
            json += ',';
        json += "{\"t\":" + QByteArray::number(record.timeMs) + ",\"a\":" + jsonText(record.action) +
                ",\"d\":" + jsonText(record.detail) + '}';
    }
    return json + ']';
}

QList<LogEntry> recordsOf(const QByteArray &json)
{
    QList<LogEntry> records;
    const QJsonArray items = QJsonDocument::fromJson(json).array();
    for (const QJsonValue &item : items)
        records.append({item[QLatin1String("t")].toInteger(), item[QLatin1String("a")].toString(),
                        item[QLatin1String("d")].toString()});
    return records;
}

/// The file's bytes; none when it does not exist. Nothing when it exists and cannot be read.
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
    if (!lockSolely(lock))
        return false;
    const std::optional<QByteArray> stored = storedBytes(m_filePath);
    if (!stored)
        return false;
    const QByteArray key = operationsLogKey();
    const QByteArray encrypted = encryptAesCbc(key, appended(decryptAesCbc(key, *stored), records));
    return !encrypted.isEmpty() && replaceFile(m_filePath, encrypted);
}

QList<LogEntry> OperationsLog::readAll() const
{
    return recordsOf(decryptAesCbc(operationsLogKey(), storedBytes(m_filePath).value_or(QByteArray())));
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
