#include "core/cache/imagefeaturecache.h"

#include "core/cache/cacheroot.h"
#include "core/platform/filereader.h"
#include "core/platform/nativefileio.h"
#include "core/platform/nativepath.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <limits>
#include <mutex>

namespace MirrixCore {

namespace {

std::mutex &cacheMutex()
{
    static std::mutex mutex;
    return mutex;
}

/// The entry's text; empty when there is none, or one longer than any of ours.
QByteArray readEntryFile(const QString &entryPath)
{
    constexpr qint64 mostBytes = 16 * 1024;
    FileReader reader;
    if (!reader.open(entryPath) || !reader.readState()) // no pipe, no device
        return {};
    QByteArray text(mostBytes, Qt::Uninitialized);
    const qint64 count = reader.readAt(0, text.data(), mostBytes);
    text.truncate(count < mostBytes ? std::max<qint64>(count, 0) : 0);
    return text;
}

/// Writes a file beside the entry and renames it: an entry is whole or is not there. Nothing waits for the disk. Never
/// writes into a file that is there: it might be a pipe, or another name of one of the user's.
bool writeEntryFile(const QString &entryPath, const QByteArray &text)
{
    const QString newPath = entryPath + QLatin1String(".new");
    QFile file;
    std::error_code failure;
    const auto remove = [&] { return std::filesystem::remove(filesystemPath(newPath), failure); };
    constexpr auto mode = QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered;
    if (!openNatively(file, newPath, mode) && !(remove() && openNatively(file, newPath, mode)))
        return false;
    const bool isWhole = file.write(text) == text.size();
    file.close();
    if (isWhole)
        std::filesystem::rename(filesystemPath(newPath), filesystemPath(entryPath), failure);
    if (!isWhole || failure)
        remove();
    return true;
}

QByteArray quoted(quint64 hash)
{
    return '"' + QByteArray::number(hash, 16) + '"';
}

/// Written by hand: the order of the members is part of the form, and QJsonObject has its own.
QByteArray entryText(qint64 sizeBytes, qint64 modifiedMs, const ImageFeature &feature)
{
    QByteArrayList variants;
    for (const quint64 hash : feature.variants)
        variants.append(quoted(hash));
    QByteArray text = R"({"size":)" + QByteArray::number(sizeBytes) + R"(,"mtimeMs":)" +
                      QByteArray::number(modifiedMs) + R"(,"primary":)" + quoted(feature.primary) + R"(,"variants":[)" +
                      variants.join(',') + R"(],"histogramValid":)" + (feature.histogram.isEmpty() ? "false" : "true");
    if (!feature.histogram.isEmpty())
        text += R"(,"histogram":")" + feature.histogram.toBase64() + '"';
    return text + '}';
}

quint64 hashFrom(const QJsonValue &value)
{
    return value.toString().toULongLong(nullptr, 16);
}

ImageFeature featureFrom(const QJsonObject &entry)
{
    ImageFeature feature;
    const QJsonArray variants = entry[QLatin1String("variants")].toArray();
    for (const QJsonValue &variant : variants) {
        if (const quint64 hash = hashFrom(variant))
            feature.variants.append(hash);
    }
    if (feature.variants.isEmpty() || feature.variants.size() > mostVariants)
        return {};
    feature.primary = hashFrom(entry[QLatin1String("primary")]);
    feature.isValid = true;
    if (entry[QLatin1String("histogramValid")].toBool())
        feature.histogram = QByteArray::fromBase64(entry[QLatin1String("histogram")].toString().toLatin1());
    return feature;
}

} // namespace

QString imageFeaturePathFor(const QString &filePath)
{
    return cacheEntryPath(imageFeatureCacheName, filePath);
}

bool loadImageFeature(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs, ImageFeature &feature)
{
    feature = {};
    const QString entryPath = imageFeaturePathFor(filePath);
    if (entryPath.isEmpty())
        return false;
    QByteArray text;
    {
        const std::lock_guard lock(cacheMutex());
        text = readEntryFile(entryPath);
    }
    const QJsonObject entry = QJsonDocument::fromJson(text).object();
    constexpr double missing = std::numeric_limits<double>::quiet_NaN(); // unequal to every number
    if (entry[QLatin1String("size")].toDouble(missing) != static_cast<double>(sizeBytes) ||
        entry[QLatin1String("mtimeMs")].toDouble(missing) != static_cast<double>(modifiedMs))
        return false;
    feature = featureFrom(entry);
    return feature.isValid;
}

void storeImageFeature(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs, const ImageFeature &feature)
{
    const QString entryPath = imageFeaturePathFor(filePath);
    if (!feature.isValid || entryPath.isEmpty())
        return;
    const QByteArray text = entryText(sizeBytes, modifiedMs, feature);
    const std::lock_guard lock(cacheMutex());
    // Nearly always the folder is there; making sure each time would cost more than the entry.
    if (!writeEntryFile(entryPath, text) && makeFolders(QFileInfo(entryPath).path()))
        writeEntryFile(entryPath, text);
}

bool clearImageFeatureCache()
{
    const QString root = cacheRoot();
    if (root.isEmpty())
        return true;
    const std::lock_guard lock(cacheMutex());
    return QDir(root + QLatin1Char('/') + imageFeatureCacheName).removeRecursively();
}

} // namespace MirrixCore
