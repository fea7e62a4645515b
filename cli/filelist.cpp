#include "cli/filelist.h"

#include "cli/commandline.h"
#include "core/platform/nativefileio.h"
#include "core/platform/nativepath.h"

#include <QFile>

#include <cstdio>

namespace MirrixCli {

QStringList readFileList(const QString &path, bool isNulSeparated)
{
    QFile file;
    QString reason;
    const bool isStandard = path == QLatin1String("-");
    if (!(isStandard ? file.open(stdin, QIODevice::ReadOnly)
                     : MirrixCore::openNatively(file, path, QIODevice::ReadOnly, &reason)))
        throw UsageError{QStringLiteral("cannot read %1: %2").arg(path, isStandard ? file.errorString() : reason)};
    const QByteArray text = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw UsageError{QStringLiteral("cannot read %1: %2").arg(path, file.errorString())};
    const bool hasNul = isNulSeparated || text.contains('\0');
    QStringList paths;
    const QList<QByteArray> entries = text.split(hasNul ? '\0' : '\n');
    for (const QByteArray &entry : entries) {
        const bool hasReturn = !hasNul && entry.endsWith('\r'); // lists that were written on Windows
        const QByteArray name = hasReturn ? entry.chopped(1) : entry;
        if (!name.isEmpty())
            paths.append(MirrixCore::pathFromBytes(name));
    }
    return paths;
}

} // namespace MirrixCli
