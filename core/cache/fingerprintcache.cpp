#include "core/cache/fingerprintcache.h"

#include "core/cache/cacheroot.h"
#include "core/model/hashalgorithm.h"
#include "core/platform/filereader.h"
#include "core/platform/nativefileio.h"
#include "core/platform/nativepath.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <filesystem>
#include <mutex>
#include <shared_mutex>
#include <system_error>

namespace MirrixCore {

namespace {

namespace Key {
const QString algorithm = QStringLiteral("algo");
const QString size = QStringLiteral("size");
const QString modified = QStringLiteral("mtimeMs");
const QString quick = QStringLiteral("quick");
const QString full = QStringLiteral("full");
} // namespace Key

/// Held alone for a store, which reads, changes and rewrites an entry; lookups share it.
std::shared_mutex &cacheMutex()
{
    static std::shared_mutex mutex;
    return mutex;
}

/// The entry's text; empty when there is none.
QByteArray readEntryFile(const QString &entryPath)
{
    constexpr qint64 firstBytes = 512;    // an entry of ours is shorter
    constexpr qint64 mostBytes = 1 << 20; // no valid entry is longer
    FileReader reader;
    if (!reader.open(entryPath) || !reader.readState()) // no pipe, no device
        return {};
    QByteArray text(firstBytes, Qt::Uninitialized);
    qint64 count = reader.readAt(0, text.data(), firstBytes);
    if (count == firstBytes) {
        text.resize(mostBytes);
        count = reader.readAt(0, text.data(), mostBytes);
    }
    text.truncate(std::max<qint64>(count, 0));
    return text;
}

/// Never writes into a file that is there: it might be a pipe, or another name of one of the user's.
bool writeEntryFile(const QString &entryPath, const QByteArray &text)
{
    constexpr auto mode = QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered;
    QFile file;
    std::error_code failure;
    const auto remove = [&] { return std::filesystem::remove(filesystemPath(entryPath), failure); };
    if (!openNatively(file, entryPath, mode) && !(remove() && openNatively(file, entryPath, mode)))
        return false;
    if (file.write(text) != text.size()) // a full disk: half an entry is useless, and would block a good one
        remove();
    return true;
}

/// A JSON number cut to an integer; 0 for what is no number or beyond 64 bits.
qint64 truncated(const QJsonValue &value)
{
    const double number = value.toDouble();
    return std::abs(number) < 9.2e18 ? static_cast<qint64>(number) : 0;
}

bool isValidFor(const QJsonObject &entry, qint64 sizeBytes, qint64 modifiedMs)
{
    const QString algorithm = entry[Key::algorithm].toString();
    return truncated(entry[Key::size]) == sizeBytes && truncated(entry[Key::modified]) == modifiedMs &&
           (algorithm.isEmpty() || algorithm == currentHashAlgorithmName());
}

/// The digest in a member; empty unless it has the length that the entry's algorithm gives, or for an entry that names
/// none, that some algorithm gives.
QByteArray digestIn(const QJsonObject &entry, const QString &key)
{
    const QByteArray text = entry[key].toString().toLatin1();
    const QByteArray digest = QByteArray::fromHex(text);
    if (digest.toHex() != text.toLower()) // fromHex skips what is no digit
        return {};
    const bool isOfAny = entry[Key::algorithm].toString().isEmpty() && (digest.size() == 16 || digest.size() == 32);
    return isOfAny || digest.size() == currentDigestLength() ? digest : QByteArray();
}

/// The text of a new entry, as QJsonDocument writes it but without a document: there is nothing to escape, and a scan
/// writes one for each file.
QByteArray entryText(qint64 sizeBytes, qint64 modifiedMs, const QByteArray &quick, const QByteArray &full)
{
    const QByteArray fullMember = full.isEmpty() ? QByteArray() : R"("full":")" + full.toHex() + R"(",)";
    return R"({"algo":")" + currentHashAlgorithmName().toLatin1() + R"(",)" + fullMember + R"("mtimeMs":)" +
           QByteArray::number(modifiedMs) + R"(,"quick":")" + quick.toHex() + R"(","size":)" +
           QByteArray::number(sizeBytes) + '}';
}

/// The members of `old`, replaced and completed by those of `entry`. A full digest in `old` stays only if it describes
/// the same state of the file by the same algorithm: kept beside a newer quick digest it would pass for the new
/// content.
QByteArray mergedText(const QByteArray &old, const QByteArray &text)
{
    const QJsonObject entry = QJsonDocument::fromJson(text).object();
    QJsonObject merged = QJsonDocument::fromJson(old).object();
    const bool isSameState = isValidFor(merged, truncated(entry[Key::size]), truncated(entry[Key::modified]));
    if (!isSameState || merged[Key::full].toString().size() != 2 * currentDigestLength())
        merged.remove(Key::full);
    for (auto it = entry.begin(); it != entry.end(); ++it)
        merged.insert(it.key(), it.value());
    return QJsonDocument(merged).toJson(QJsonDocument::Compact);
}

void store(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs, const QByteArray &quick,
           const QByteArray &full)
{
    const QString entryPath = cachePathFor(filePath);
    if (entryPath.isEmpty())
        return;
    QByteArray text = entryText(sizeBytes, modifiedMs, quick, full);

    const std::lock_guard lock(cacheMutex());
    const QByteArray old = readEntryFile(entryPath);
    if (!old.isEmpty())
        text = mergedText(old, text);
    // Nearly always the folder is there; making sure each time would cost more than the entry.
    if (!writeEntryFile(entryPath, text) && makeFolders(QFileInfo(entryPath).path()))
        writeEntryFile(entryPath, text);
}

} // namespace

QString cachePathFor(const QString &filePath)
{
    return cacheEntryPath(fingerprintCacheName, filePath);
}

Fingerprint lookupFingerprint(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs)
{
    const QString entryPath = cachePathFor(filePath);
    if (entryPath.isEmpty())
        return {};
    QByteArray text;
    {
        const std::shared_lock lock(cacheMutex());
        text = readEntryFile(entryPath);
    }
    if (text.isEmpty())
        return {};
    const QJsonObject entry = QJsonDocument::fromJson(text).object();
    if (!isValidFor(entry, sizeBytes, modifiedMs))
        return {};
    return {digestIn(entry, Key::quick), digestIn(entry, Key::full)};
}

bool lookupQuick(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs, QByteArray &digest)
{
    digest = lookupFingerprint(filePath, sizeBytes, modifiedMs).quick;
    return !digest.isEmpty();
}

bool lookupFull(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs, QByteArray &digest)
{
    digest = lookupFingerprint(filePath, sizeBytes, modifiedMs).full;
    return !digest.isEmpty();
}

void storeQuick(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs, const QByteArray &quick)
{
    if (!quick.isEmpty() && sizeBytes >= 1)
        store(filePath, sizeBytes, modifiedMs, quick, {});
}

void storeQuickAndFull(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs, const QByteArray &quick,
                       const QByteArray &full)
{
    if (!quick.isEmpty() && !full.isEmpty() && sizeBytes >= 1)
        store(filePath, sizeBytes, modifiedMs, quick, full);
}

} // namespace MirrixCore
