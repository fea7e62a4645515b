#include "ui/texts/locationtext.h"

#include "app/sizetext.h"
#include "app/text.h"
#include "core/platform/nativepath.h"

#include <QDir>

namespace Mirrix {

namespace {

/// "/" and "C:/" keep their slash, without which they name something else.
bool isRoot(const QString &path)
{
    return path.size() == 1 || (path.size() == 3 && path[0] != u'/' && path[1] == u':');
}

QString capacityText(const Drive &drive)
{
    if (drive.totalBytes <= 0)
        return Text::tr("容量未知");
    return Text::tr("%1 / 可用 %2").arg(sizeText(drive.totalBytes), sizeText(drive.freeBytes));
}

} // namespace

QString locationPath(const QString &path)
{
    if (path.isEmpty())
        return {};
    QString clean = MirrixCore::absolutePath(path);
    while (clean.endsWith(u'/') && !isRoot(clean))
        clean.chop(1);
    return clean;
}

QStringList foldersAmong(const QStringList &arguments)
{
    QStringList folders;
    for (const QString &argument : arguments) {
        // To QDir an empty path is the current folder.
        if (!argument.isEmpty() && QDir(argument).exists())
            folders.append(MirrixCore::absolutePath(argument));
    }
    return folders;
}

bool isSameLocation(const QString &a, const QString &b)
{
    return MirrixCore::pathCaseKey(a) == MirrixCore::pathCaseKey(b);
}

VolumeLabels volumeLabelsOf(const QList<Drive> &drives)
{
    VolumeLabels labels;
    for (const Drive &drive : drives) {
        if (!drive.label.isEmpty() && drive.label != drive.root)
            labels.insert(locationPath(drive.root), drive.label);
    }
    return labels;
}

QString locationName(const QString &path, const VolumeLabels &labels)
{
    const QString label = labels.value(path);
    if (!label.isEmpty())
        return QStringLiteral("%1  (%2)").arg(label, path);
    const QString name = path.section(u'/', -1);
    return name.isEmpty() ? path : name;
}

QString driveLine(const Drive &drive)
{
    const QString label = drive.label.isEmpty() ? Text::tr("无标签") : drive.label;
    const QString fileSystem = drive.fileSystem.isEmpty() ? QStringLiteral("-") : drive.fileSystem;
    const QString type = QCoreApplication::translate("Mirrix", driveTypeName(drive.type));
    const QString mark = drive.isSystem ? Text::tr("  ·系统盘") : QString();
    return QStringLiteral("%1  %2  [%3]  %4  %5%6").arg(drive.root, label, fileSystem, type, capacityText(drive), mark);
}

} // namespace Mirrix
