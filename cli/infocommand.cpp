#include "cli/infocommand.h"

#include "app/sizetext.h"
#include "cli/jsonreport.h"
#include "cli/output.h"
#include "cli/terminal.h"
#include "cli/unread.h"
#include "core/cache/cacheroot.h"
#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthasher.h"
#include "core/media/imagehash.h"
#include "core/media/mediakinds.h"
#include "core/media/metadata.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"
#include "core/walk/enumeration.h"

#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace MirrixCli {

namespace {

using namespace MirrixCore;

const QString formatOption = QStringLiteral("format");

/// What the file system says of the files, by path.
QHash<QString, FileEntry> entriesOf(const QStringList &paths, QList<UnreadPath> &unread)
{
    ScanOptions options;
    options.files = paths;
    options.readFileIdentity = true;
    QHash<QString, FileEntry> entries;
    for (const FileEntry &file : enumerateFiles(options, {}, isInterrupted, &unread))
        entries.insert(pathCaseKey(file.path), file);
    return entries;
}

/// The cached digests that describe the file as it is now, one object for each algorithm.
QJsonArray digestsOf(const FileEntry &file)
{
    QJsonArray digests;
    for (const ContentHashAlgorithm algorithm : {ContentHashAlgorithm::Md5, ContentHashAlgorithm::Blake3}) {
        setContentHashAlgorithm(algorithm);
        const Fingerprint known = lookupFingerprint(file.path, file.size, file.modifiedMs);
        QJsonObject digest;
        if (known.quick.size() == currentDigestLength())
            digest.insert(QStringLiteral("quick"), QString::fromLatin1(known.quick.toHex()));
        if (known.full.size() == currentDigestLength())
            digest.insert(QStringLiteral("full"), QString::fromLatin1(known.full.toHex()));
        if (digest.isEmpty())
            continue;
        digest.insert(QStringLiteral("algorithm"), currentHashAlgorithmName());
        digests.append(digest);
    }
    return digests;
}

QJsonObject factsOf(const FileEntry &file)
{
    FileEntry media = MediaMetadata::readPreviewFacts(file.path);
    media.allocatedBytes = file.allocatedBytes;
    media.createdMs = file.createdMs;
    media.place = file.place;
    QJsonObject facts = jsonOf(media);
    if (file.hasFileId)
        facts.insert(QStringLiteral("links"), static_cast<qint64>(file.linkCount));
    const QJsonArray digests = digestsOf(file);
    facts.insert(QStringLiteral("digests"), digests);
    facts.insert(QStringLiteral("digestsOutOfDate"), digests.isEmpty() && QFile::exists(cachePathFor(file.path)));
    if (const ImageFeature feature =
            isMediaFile(file.path, SearchMode::Images) ? computeImageFeature(file.path, false, false) : ImageFeature();
        feature.isValid)
        facts.insert(QStringLiteral("pictureHash"),
                     QStringLiteral("%1").arg(feature.primary, 16, 16, QLatin1Char('0')));
    QJsonObject tags;
    for (auto it = media.tags.begin(); it != media.tags.end(); ++it)
        tags.insert(it.key(), it.value());
    if (!tags.isEmpty())
        facts.insert(QStringLiteral("tags"), tags);
    return facts;
}

QString timeText(qint64 timeMs)
{
    return timeMs < 1 ? QStringLiteral("unknown")
                      : QDateTime::fromMSecsSinceEpoch(timeMs).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

/// "1:02:03".
QString durationText(qint64 ms)
{
    const auto twoDigits = [](qint64 number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); };
    const qint64 seconds = ms / 1000;
    return QStringLiteral("%1:%2:%3").arg(seconds / 3600).arg(twoDigits(seconds / 60 % 60), twoDigits(seconds % 60));
}

QString bytesText(qint64 bytes)
{
    return bytes < 1024 ? Mirrix::sizeText(bytes)
                        : QStringLiteral("%1 (%2 bytes)").arg(Mirrix::sizeText(bytes)).arg(bytes);
}

/// "cameraMake" as "camera make".
QString worded(const QString &name)
{
    static const QRegularExpression boundary(QStringLiteral("(?<=[a-z])(?=[A-Z])"));
    return QString(name).replace(boundary, QStringLiteral(" ")).toLower();
}

/// The facts whose names and values are put into words.
QList<std::pair<QString, QString>> wordedFacts(QJsonObject &facts)
{
    QList<std::pair<QString, QString>> lines;
    lines.append({QStringLiteral("size"), bytesText(facts.take(QStringLiteral("size")).toInteger())});
    if (const QJsonValue allocated = facts.take(QStringLiteral("allocated")); !allocated.isUndefined())
        lines.append({QStringLiteral("on disk"), bytesText(allocated.toInteger())});
    lines.append({QStringLiteral("modified"), timeText(facts.take(QStringLiteral("modifiedMs")).toInteger())});
    lines.append({QStringLiteral("created"), timeText(facts.take(QStringLiteral("createdMs")).toInteger())});
    if (const QJsonValue links = facts.take(QStringLiteral("links")); !links.isUndefined())
        lines.append({QStringLiteral("hard links"), QString::number(links.toInteger())});
    for (const QJsonValue &digest : facts.take(QStringLiteral("digests")).toArray()) {
        for (const QString &part : {QStringLiteral("quick"), QStringLiteral("full")}) {
            if (!digest[part].isUndefined())
                lines.append({QStringLiteral("%1 %2").arg(digest[QLatin1String("algorithm")].toString(), part),
                              digest[part].toString() + QStringLiteral(" (cached)")});
        }
    }
    if (facts.contains(QStringLiteral("width")))
        lines.append({QStringLiteral("dimensions"), QStringLiteral("%1 x %2")
                                                        .arg(facts.take(QStringLiteral("width")).toInteger())
                                                        .arg(facts.take(QStringLiteral("height")).toInteger())});
    if (const QJsonValue duration = facts.take(QStringLiteral("durationMs")); !duration.isUndefined())
        lines.append({QStringLiteral("duration"), durationText(duration.toInteger())});
    facts.remove(QStringLiteral("shotMs")); // the date taken says it
    if (const QString place = facts.take(QStringLiteral("place")).toString(); !place.isEmpty())
        lines.append({QStringLiteral("place"), worded(place)});
    if (facts.take(QStringLiteral("digestsOutOfDate")).toBool())
        lines.append({QStringLiteral("digest"), QStringLiteral("cached, but out of date")});
    return lines;
}

void writeText(QJsonObject facts, Output &output)
{
    output.write(shownPath(facts.take(QStringLiteral("path")).toString(), output.isTerminal()) + '\n');
    QList<std::pair<QString, QString>> lines = wordedFacts(facts);
    const QJsonObject tags = facts.take(QStringLiteral("tags")).toObject();
    for (auto it = facts.constBegin(); it != facts.constEnd(); ++it)
        lines.append({worded(it.key()), it.value().toVariant().toString()});
    for (auto it = tags.constBegin(); it != tags.constEnd(); ++it)
        lines.append({it.key(), it.value().toString()});
    for (const auto &[name, value] : lines)
        output.write("  " + shownPath(name.leftJustified(14) + QLatin1Char(' ') + value, output.isTerminal()) + '\n');
}

} // namespace

void addInfoOptions(QCommandLineParser &parser)
{
    parser.addOption({formatOption, QStringLiteral("Output format: text (default) or json."), QStringLiteral("FORMAT"),
                      QStringLiteral("text")});
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Files to describe."),
                                 QStringLiteral("FILE..."));
}

ExitStatus runInfo(const QCommandLineParser &parser)
{
    const QString format = parser.value(formatOption);
    if (format != QLatin1String("text") && format != QLatin1String("json"))
        throw UsageError{choiceProblem(formatOption, {QStringLiteral("text"), QStringLiteral("json")}, format)};
    QStringList paths;
    for (const QString &argument : parser.positionalArguments()) {
        if (argument.isEmpty())
            throw UsageError{QStringLiteral("an empty file name")};
        paths.append(cleanedPath(absolutePath(argument)));
    }
    if (paths.isEmpty())
        throw UsageError{QStringLiteral("no file to describe")};
    setCacheRoot(dataDirectoryOf(parser));
    QList<UnreadPath> unread;
    const QHash<QString, FileEntry> entries = entriesOf(paths, unread);
    QJsonArray json;
    Output output;
    if (!output.open({}))
        return ExitStatus::SomeFailed;
    for (const QString &path : std::as_const(paths)) {
        const auto entry = entries.find(pathCaseKey(path));
        if (entry == entries.end())
            continue;
        if (format == QLatin1String("json"))
            json.append(factsOf(*entry));
        else
            writeText(factsOf(*entry), output);
    }
    if (format == QLatin1String("json"))
        output.write(QJsonDocument(json).toJson());
    const bool isWritten = output.finish();
    printUnread(unread);
    return isWritten && unread.isEmpty() ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace MirrixCli
