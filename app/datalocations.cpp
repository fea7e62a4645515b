#include "app/datalocations.h"

#include "core/cache/cacheroot.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

#include <optional>

namespace Mirrix {

namespace {

std::optional<bool> chosenPortable; ///< by decidePortable

bool hasMarkerFile(const QString &name)
{
    return QFileInfo(QCoreApplication::applicationDirPath() + QLatin1Char('/') + name).isFile();
}

} // namespace

void decidePortable(bool portable)
{
    chosenPortable = portable;
}

void undecidePortable()
{
    chosenPortable.reset();
}

bool hasPortableSwitch(const QStringList &arguments)
{
    return arguments.contains(QLatin1String("--portable")) || arguments.contains(QLatin1String("-portable"));
}

bool isPortable()
{
    if (chosenPortable)
        return *chosenPortable;
    return hasPortableSwitch(QCoreApplication::arguments()) || hasMarkerFile(QStringLiteral("Mirrix.portable")) ||
           hasMarkerFile(QStringLiteral("portable.txt"));
}

QString dataDirectory()
{
    if (isPortable())
        return QCoreApplication::applicationDirPath() + QLatin1String("/Data");
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QLatin1String("/Mirrix");
}

QString settingsFilePath()
{
    return settingsFilePath(dataDirectory());
}

QString settingsFilePath(const QString &directory)
{
    return directory + QLatin1String("/settings.json");
}

MirrixCore::OwnFiles ownFilesIn(const QString &directory)
{
    return {directory,
            {MirrixCore::fingerprintCacheName, MirrixCore::imageFeatureCacheName, QStringLiteral("runs")},
            {QStringLiteral("ops.log.enc"), QStringLiteral("settings.json"), QStringLiteral("settings.damaged")}};
}

QString defaultBackupRoot(const QString &directory)
{
    return directory + QLatin1String("/Backup");
}

} // namespace Mirrix
