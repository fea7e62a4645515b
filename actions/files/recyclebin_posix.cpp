#include "actions/files/recyclebin.h"

#include "actions/files/movefile.h"
#include "actions/files/trashfolders.h"
#include "core/platform/nativepath.h"

#include <QDateTime>
#include <QDir>
#include <QRandomGenerator>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Mirrix {

namespace {

using MirrixCore::pathBytes;

// The freedesktop.org trash: "files" holds what was recycled, "info" a note on each. QFile::moveToTrash never ends
// where a note cannot be written: on a full disk, or for a name near the longest.

bool isPrivateFolder(const QByteArray &path)
{
    struct stat info = {};
    return lstat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == geteuid();
}

/// Others may write into a volume's topmost folder, so what exists there already must be ours. Looked for first: making
/// a folder that is there costs several times as much.
bool makePrivateFolder(const QString &path)
{
    const QByteArray bytes = pathBytes(path);
    return isPrivateFolder(bytes) || mkdir(bytes.constData(), 0700) == 0 || isPrivateFolder(bytes);
}

QByteArray noteOn(const QString &path, const BinFolder &trash)
{
    const QByteArray whole = pathBytes(path);
    const qsizetype skipped = trash.top.isEmpty() ? 0 : pathBytes(joinedPath(trash.top, {})).size();
    return "[Trash Info]\nPath=" + whole.mid(skipped).toPercentEncoding("/") +
           "\nDeletionDate=" + QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-ddThh:mm:ss")).toLatin1() +
           '\n';
}

FileFault writeNote(const QString &notePath, const QByteArray &note)
{
    const QByteArray path = pathBytes(notePath);
    const int file = open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file < 0)
        return errno == EEXIST ? FileFault::Occupied : FileFault::Failed;
    const bool isWritten = write(file, note.constData(), static_cast<size_t>(note.size())) == note.size();
    if (close(file) == 0 && isWritten)
        return FileFault::None;
    unlink(path.constData());
    return FileFault::Failed;
}

/// A name for the trash, another at each further try, that leaves room for what is put behind it.
QString nameInTrash(const QString &path, int attempt)
{
    constexpr qsizetype mostBytes = 220; // of 255
    const QString name = shortenedName(fileNameOf(path), mostBytes);
    return attempt > 0 ? name + QLatin1Char('.') + QString::number(QRandomGenerator::system()->generate(), 16) : name;
}

/// Renames into the trash or leaves the file where it is; nothing is copied or deleted. `placed`: where it is then.
FileFault moveInto(const BinFolder &trash, const QString &path, QString &placed)
{
    const QString files = trash.folder + QLatin1String("/files/");
    const QString notes = trash.folder + QLatin1String("/info/");
    const bool isReady = (trash.top.isEmpty() || makePrivateFolder(trash.folder)) && makePrivateFolder(files) &&
                         makePrivateFolder(notes);
    FileFault fault = isReady ? FileFault::Occupied : FileFault::Failed;
    const QByteArray note = noteOn(path, trash);
    constexpr int mostAttempts = 100;
    for (int attempt = 0; fault == FileFault::Occupied && attempt < mostAttempts; ++attempt) {
        const QString name = nameInTrash(path, attempt);
        const QString notePath = notes + name + QLatin1String(".trashinfo");
        // First the note: it reserves the name, and a file without one could not be restored.
        fault = writeNote(notePath, note);
        if (fault != FileFault::None)
            continue;
        fault = renameExclusively(path, files + name);
        if (fault == FileFault::None)
            placed = files + name;
        else
            static_cast<void>(removeFile(notePath));
    }
    return fault;
}

/// A home without a usable trash belongs to no desktop session, so no user would look for the file elsewhere either.
bool canTake(const QString &)
{
    const QString trash = homeTrash().folder;
    const auto isWritableFolder = [&trash] {
        return access(pathBytes(trash + QLatin1String("/.")).constData(), W_OK) == 0;
    };
    return isWritableFolder() || (QDir().mkpath(trash) && isWritableFolder());
}

RecycleBin::Answer moveToTrash(const QStringList &paths)
{
    RecycleBin::Answer answer;
    for (const QString &path : paths) {
        const QString absolute = MirrixCore::absolutePath(path);
        QString placed;
        FileFault fault = moveInto(homeTrash(), absolute, placed);
        if (fault == FileFault::OtherVolume)
            fault = moveInto(volumeTrash(absolute), absolute, placed);
        answer.placed.append(placed);
        if (fault != FileFault::None)
            answer.code = static_cast<int>(fault);
    }
    return answer;
}

} // namespace

RecycleBin systemRecycleBin()
{
    return {1, canTake, moveToTrash, putBackRecycled};
}

} // namespace Mirrix
