#include "actions/files/movefile.h"

#include "core/platform/filereader.h"

#include <QDir>
#include <QRandomGenerator>

#include <algorithm>
#include <cstring>

namespace Mirrix {

namespace {

using MirrixCore::FileReader;

constexpr qint64 pieceBytes = 1 << 20;

bool openWhole(FileReader &reader, const QString &path)
{
    if (!reader.open(path) || !reader.readState())
        return false;
    reader.expectSequentialReads();
    return true;
}

/// Removes a file whose copy is on the disk, unless it has been written to since. False when it is still there.
bool removeCopied(const QString &path, const PathState &before)
{
    if (pathState(path).isSameFileAs(before) && removeFile(path) == FileFault::None)
        return true;
    // Another program removed it, or a network drive removed it and still reported an error: then the copy is all there
    // is.
    return pathState(path).kind == PathState::Kind::Missing;
}

} // namespace

bool PathState::isSameFileAs(const PathState &other) const
{
    const bool areKnown = identity.isKnown && other.identity.isKnown;
    return kind == Kind::File && other.kind == Kind::File && sizeBytes == other.sizeBytes &&
           modifiedExact == other.modifiedExact &&
           (!areKnown || (identity.index == other.identity.index && identity.volume == other.identity.volume));
}

FileFault moveFile(const QString &from, const QString &to)
{
    const PathState before = pathState(from);
    if (before.kind != PathState::Kind::File)
        return before.kind == PathState::Kind::Missing ? FileFault::Missing : FileFault::Failed;
    const FileFault renamed = renameExclusively(from, to);
    if (renamed != FileFault::OtherVolume)
        return renamed;
    if (before.isUndeletable) // a copy would be made whose source cannot be removed
        return FileFault::Failed;
    const FileFault copied = copyFile(from, to);
    if (copied != FileFault::None || removeCopied(from, before))
        return copied;
    static_cast<void>(removeOwnCopy(to)); // the source is still there, perhaps with newer content
    return FileFault::Failed;
}

FileFault restoreFile(const QString &from, const QString &to, bool &isLeft)
{
    isLeft = false;
    const PathState before = pathState(from);
    if (before.kind != PathState::Kind::File)
        return before.kind == PathState::Kind::Missing ? FileFault::Missing : FileFault::Failed;
    const FileFault renamed = renameExclusively(from, to);
    // On a read-only volume the rename fails, but copying works.
    if (renamed != FileFault::OtherVolume && renamed != FileFault::Failed)
        return renamed;
    const FileFault copied = copyFile(from, to);
    isLeft = copied == FileFault::None && !removeCopied(from, before);
    return copied;
}

FileFault copyFile(const QString &from, const QString &to)
{
    // Under a temporary name, so that a crash leaves no half copy that looks like the file.
    const QString partPath = temporaryName(to, QStringLiteral(".part"));
    FileFault fault = copyToNewFile(from, partPath);
    if (fault != FileFault::None)
        return fault;
    fault = haveSameContent(from, partPath) ? renameExclusively(partPath, to) : FileFault::Failed;
    // The new name must be on the disk, too, before a caller removes the source.
    if (fault == FileFault::None && flushFolder(folderOf(to)))
        return FileFault::None;
    static_cast<void>(removeOwnCopy(fault == FileFault::None ? to : partPath));
    return fault == FileFault::None ? FileFault::Failed : fault;
}

bool makeFolders(const QString &path)
{
    const QString folder = QDir::fromNativeSeparators(path);
    if (folder.isEmpty())
        return false;
    if (MirrixCore::fileStatus(folder).kind == MirrixCore::FileStatus::Kind::Folder)
        return true;
    const QString parent = folderOf(folder);
    if (parent != folder && !parent.isEmpty() && !makeFolders(parent))
        return false;
    // Another program may have made it in between.
    return makeFolder(folder) == FileFault::None ||
           MirrixCore::fileStatus(folder).kind == MirrixCore::FileStatus::Kind::Folder;
}

bool haveSameContent(const QString &one, const QString &other)
{
    FileReader first;
    FileReader second;
    if (!openWhole(first, one) || !openWhole(second, other) || first.sizeBytes() != second.sizeBytes())
        return false;
    const qint64 size = first.sizeBytes();
    QByteArray firstPiece(std::min(size, pieceBytes), Qt::Uninitialized);
    QByteArray secondPiece = firstPiece;
    for (qint64 offset = 0; offset < size; offset += pieceBytes) {
        const qint64 length = std::min(pieceBytes, size - offset);
        if (first.readAt(offset, firstPiece.data(), length) != length ||
            second.readAt(offset, secondPiece.data(), length) != length ||
            std::memcmp(firstPiece.constData(), secondPiece.constData(), static_cast<size_t>(length)) != 0)
            return false;
    }
    return true;
}

QString fileNameOf(const QString &path)
{
    return MirrixCore::nameOf(QDir::fromNativeSeparators(path)).toString();
}

QString folderOf(const QString &path)
{
    return MirrixCore::folderOf(QDir::fromNativeSeparators(path)).toString();
}

QString shortenedName(const QString &name, qsizetype mostBytes)
{
    if (name.toUtf8().size() <= mostBytes)
        return name;
    constexpr qsizetype longestSuffix = 16;
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const QString suffix = dot > 0 && name.size() - dot <= longestSuffix ? name.mid(dot) : QString();
    QString stem = name.chopped(suffix.size());
    while (!stem.isEmpty() && (stem + suffix).toUtf8().size() > mostBytes)
        stem.chop(stem.size() > 1 && stem.back().isLowSurrogate() && stem[stem.size() - 2].isHighSurrogate() ? 2 : 1);
    return stem + suffix;
}

QString temporaryName(const QString &path, const QString &suffix)
{
    const QString name = QStringLiteral(".mirrix-%1%2")
                             .arg(QRandomGenerator::system()->generate64(), 16, 16, QLatin1Char('0'))
                             .arg(suffix);
    const QString folder = folderOf(path);
    return folder.isEmpty() ? name : joinedPath(folder, name);
}

} // namespace Mirrix
