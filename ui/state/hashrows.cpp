#include "ui/state/hashrows.h"

#include "app/text.h"
#include "core/hash/contenthash.h"
#include "core/platform/filestatus.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"
#include "core/walk/enumeration.h"

#include <QSet>

namespace Mirrix {

using MirrixCore::CancelQuery;
using MirrixCore::FileEntry;
using MirrixCore::FileStatus;

namespace {

QList<FileEntry> filesIn(const QString &path, bool isDeep, const CancelQuery &cancelled)
{
    const FileStatus status = MirrixCore::fileStatus(path);
    if (status.kind == FileStatus::Kind::Folder) {
        MirrixCore::ScanOptions options;
        options.roots = {path};
        options.locations = {{path, isDeep}};
        return MirrixCore::enumerateFiles(options, {}, cancelled);
    }
    if (status.kind != FileStatus::Kind::File)
        return {};
    FileEntry file;
    file.path = path;
    file.size = status.sizeBytes;
    return {file};
}

} // namespace

const QStringList &hashChoiceNames()
{
    static const QStringList names = {QStringLiteral("MD5"), QStringLiteral("SHA-1"), QStringLiteral("SHA-256"),
                                      QStringLiteral("BLAKE3")};
    return names;
}

QString hexHash(const QString &path, HashChoice choice, const CancelQuery &cancelled)
{
    constexpr QCryptographicHash::Algorithm algorithms[] = {QCryptographicHash::Md5, QCryptographicHash::Sha1,
                                                            QCryptographicHash::Sha256};
    const QByteArray digest = choice == HashChoice::Blake3
                                  ? MirrixCore::fullContentHashBlake3(path, cancelled)
                                  : MirrixCore::hashFileWith(path, algorithms[static_cast<int>(choice)], cancelled);
    return QString::fromLatin1(digest.toHex());
}

QList<FileEntry> filesAt(const QStringList &paths, bool isDeep, const CancelQuery &cancelled)
{
    QList<FileEntry> files;
    QSet<QString> seen;
    for (const QString &path : paths) {
        const QList<FileEntry> found =
            filesIn(MirrixCore::cleanedPath(MirrixCore::absolutePath(path)), isDeep, cancelled);
        for (const FileEntry &file : found) {
            const QString key = MirrixCore::pathCaseKey(file.path);
            if (!seen.contains(key)) {
                seen.insert(key);
                files.append(file);
            }
        }
    }
    return files;
}

QString hashSummary(qsizetype count)
{
    return Text::tr("共 %1 个文件").arg(count);
}

QString hashSummary(qsizetype count, qint64 elapsedMs)
{
    constexpr qint64 second = 1000;
    return Text::tr("共 %1 个文件 @ %2.%3 秒")
        .arg(count)
        .arg(elapsedMs / second)
        .arg(elapsedMs % second, 3, 10, QLatin1Char('0'));
}

} // namespace Mirrix
