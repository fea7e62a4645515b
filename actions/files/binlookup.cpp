#include "actions/files/binlookup.h"

#include "actions/files/movefile.h"
#include "core/platform/filereader.h"
#include "core/platform/nativepath.h"
#include "core/walk/folderreader.h"

#include <QDateTime>
#include <QDir>
#include <QtEndian>

#include <algorithm>

namespace Mirrix {

namespace {

const QString trashNoteSuffix = QStringLiteral(".trashinfo");

/// The whole of a small file; empty when it cannot be read or is larger than any note.
QByteArray noteBytes(const QString &path)
{
    constexpr qint64 mostBytes = 256 * 1024;
    MirrixCore::FileReader reader;
    if (!reader.open(path) || !reader.readState() || reader.sizeBytes() > mostBytes)
        return {};
    QByteArray bytes(reader.sizeBytes(), Qt::Uninitialized);
    return reader.readAt(0, bytes.data(), bytes.size()) == bytes.size() ? bytes : QByteArray();
}

/// The value of such a line as "Path=..." in the first group of a trash info file; empty when it is not there.
QByteArray valueOf(const QList<QByteArray> &lines, QByteArrayView key)
{
    for (qsizetype i = 1; i < lines.size() && !lines[i].startsWith('['); ++i) {
        const QByteArrayView line = QByteArrayView(lines[i]).trimmed();
        if (line.startsWith(key))
            return line.sliced(key.size()).toByteArray();
    }
    return {};
}

std::optional<BinEntry> trashEntry(const QString &folder, const QString &name, const QString &top)
{
    const QString notePath = folder + QLatin1String("/info/") + name + trashNoteSuffix;
    std::optional<BinEntry> entry = readTrashNote(noteBytes(notePath), top);
    if (entry) {
        entry->filePath = folder + QLatin1String("/files/") + name;
        entry->infoPath = notePath;
    }
    return entry;
}

/// `name`: that of the pair, without "$I" or "$R".
std::optional<BinEntry> recycleEntry(const QString &folder, const QString &name)
{
    const QString notePath = folder + QLatin1String("/$I") + name;
    std::optional<BinEntry> entry = readRecycleNote(noteBytes(notePath));
    if (entry) {
        entry->filePath = folder + QLatin1String("/$R") + name;
        entry->infoPath = notePath;
    }
    return entry;
}

/// To which folder the notes of this trash relate; empty for the home's.
QString topOf(const QString &trash)
{
    const QString parent = folderOf(trash);
    if (fileNameOf(parent) == QLatin1String(".Trash"))
        return folderOf(parent);
    return fileNameOf(trash).startsWith(QLatin1String(".Trash-")) ? parent : QString();
}

} // namespace

std::optional<BinEntry> readTrashNote(QByteArrayView text, const QString &top)
{
    const QList<QByteArray> lines = text.toByteArray().split('\n');
    const QString path =
        MirrixCore::pathFromBytes(QByteArray::fromPercentEncoding(valueOf(lines, QByteArrayView("Path="))));
    const bool isAbsolute = path.startsWith(QLatin1Char('/'));
    if (lines.constFirst().trimmed() != "[Trash Info]" || path.isEmpty() || (!isAbsolute && top.isEmpty()))
        return std::nullopt;
    // Read as if it were UTC: to convert local time the system looks at its time zone file nine times.
    const QString date = QString::fromLatin1(valueOf(lines, QByteArrayView("DeletionDate="))) + QLatin1Char('Z');
    const QDateTime deleted = QDateTime::fromString(date, Qt::ISODate);
    return BinEntry{{},
                    {},
                    isAbsolute ? path : joinedPath(top, path),
                    deleted.isValid() ? deleted.toMSecsSinceEpoch() : 0,
                    deleted.isValid()};
}

std::optional<BinEntry> readRecycleNote(QByteArrayView bytes)
{
    // All little-endian: version, size of the file, time of deletion (100 ns since 1601). Version 1: 260 units of
    // UTF-16, closed by a zero. Version 2: the number of units, zero included, and the units.
    constexpr qsizetype headBytes = 24;
    constexpr qsizetype unitsOfVersion1 = 260;
    if (bytes.size() < headBytes + qsizetype(sizeof(quint32)))
        return std::nullopt;
    const auto version = qFromLittleEndian<quint64>(bytes.data());
    const auto units = version == 1 ? unitsOfVersion1 : qsizetype(qFromLittleEndian<quint32>(bytes.data() + headBytes));
    const QByteArrayView text = bytes.sliced(version == 1 ? headBytes : headBytes + qsizetype(sizeof(quint32)));
    if ((version != 1 && version != 2) || units > text.size() / 2)
        return std::nullopt;
    QString path(units, Qt::Uninitialized);
    qFromLittleEndian<char16_t>(text.data(), units, path.data());
    if (const qsizetype end = path.indexOf(QChar(u'\0')); end >= 0)
        path.truncate(end);
    if (path.startsWith(QLatin1String("\\\\?\\")))
        path.remove(0, 4);
    constexpr qint64 unixEpochMs = 11644473600000; // since 1601
    const auto deletedMs = static_cast<qint64>(qFromLittleEndian<quint64>(bytes.data() + 16) / 10000) - unixEpochMs;
    if (path.isEmpty())
        return std::nullopt;
    return BinEntry{{}, {}, path.replace(QLatin1Char('\\'), QLatin1Char('/')), deletedMs};
}

std::optional<BinEntry> binEntryAt(const QString &filePath)
{
    const QString name = fileNameOf(filePath);
    const QString folder = folderOf(filePath);
    if (pathState(filePath).kind != PathState::Kind::File)
        return std::nullopt;
    if (fileNameOf(folder) == QLatin1String("files"))
        return trashEntry(folderOf(folder), name, topOf(folderOf(folder)));
    return name.startsWith(QLatin1String("$R")) ? recycleEntry(folder, name.mid(2)) : std::nullopt;
}

std::optional<BinEntry> BinContents::find(const QString &original, qint64 sizeBytes, qint64 modifiedMs,
                                          qint64 recycledNotBeforeMs)
{
    // Notes of a trash are in local time and to the second: an hour of the year comes twice.
    constexpr qint64 uncertaintyMs = 3600 * 1000 + 1000;
    const QList<BinFolder> bins = m_foldersFor(original);
    for (const BinFolder &bin : bins)
        read(bin);
    const qint64 offsetMs = 1000LL * QDateTime::fromMSecsSinceEpoch(recycledNotBeforeMs).offsetFromUtc();
    const auto deletedMs = [offsetMs](const BinEntry &entry) {
        return entry.deletedMs - (entry.isDeletedInLocalTime ? offsetMs : 0);
    };
    QList<BinEntry> entries = m_entries.values(MirrixCore::pathCaseKey(original));
    std::sort(entries.begin(), entries.end(),
              [&](const BinEntry &one, const BinEntry &other) { return deletedMs(one) > deletedMs(other); });
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const BinEntry &entry) {
        const PathState state = pathState(entry.filePath);
        return deletedMs(entry) > recycledNotBeforeMs - uncertaintyMs && state.kind == PathState::Kind::File &&
               state.sizeBytes == sizeBytes && (modifiedMs == 0 || state.modifiedMs == modifiedMs);
    });
    return found == entries.end() ? std::nullopt : std::optional(*found);
}

void BinContents::read(const BinFolder &bin)
{
    if (m_read.contains(bin.folder))
        return;
    m_read.insert(bin.folder);
    const bool isTrash = bin.layout == BinFolder::Layout::Trash;
    MirrixCore::FolderReader reader(isTrash ? bin.folder + QLatin1String("/info") : bin.folder);
    MirrixCore::FolderItem item;
    while (reader.next(item)) {
        std::optional<BinEntry> entry;
        if (isTrash && item.name.endsWith(trashNoteSuffix))
            entry = trashEntry(bin.folder, item.name.chopped(trashNoteSuffix.size()), bin.top);
        else if (!isTrash && item.name.startsWith(QLatin1String("$I")))
            entry = recycleEntry(bin.folder, item.name.mid(2));
        if (entry)
            m_entries.insert(MirrixCore::pathCaseKey(entry->original), *entry);
    }
}

std::optional<BinEntry> findInBin(const QString &original, qint64 sizeBytes, qint64 modifiedMs,
                                  qint64 recycledNotBeforeMs)
{
    return BinContents().find(original, sizeBytes, modifiedMs, recycledNotBeforeMs);
}

FileFault putBackFromBin(const BinEntry &entry)
{
    if (!makeFolders(folderOf(entry.original)))
        return FileFault::Failed;
    const FileFault fault = moveFile(entry.filePath, entry.original);
    if (fault == FileFault::None)
        static_cast<void>(removeFile(entry.infoPath)); // a note on nothing does no harm
    return fault;
}

} // namespace Mirrix
