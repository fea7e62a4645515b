#include "ui/state/locationsjson.h"

#include "core/model/scanoptions.h"
#include "core/platform/nativepath.h"
#include "ui/texts/locationtext.h"

#include <QJsonObject>
#include <QSet>

namespace Mirrix {

namespace {

using namespace Qt::StringLiterals;

LocationRow rowFrom(const QJsonObject &json)
{
    LocationRow row;
    row.path = locationPath(json["path"_L1].toString());
    row.enabled = json["enabled"_L1].toBool(row.enabled);
    row.isProtected = json["protected"_L1].toBool(row.isProtected);
    row.includeSubfolders = json["subfolders"_L1].toBool(row.includeSubfolders);
    row.findKind = json["find"_L1].toInt(row.findKind);
    if (row.findKind < 0 || row.findKind > qint32(MirrixCore::FindKind::EmptyFiles))
        row.findKind = 0;
    row.showRemaining = json["showRemaining"_L1].toBool(row.showRemaining);
    return row;
}

/// The rows without those that lack a path or repeat one.
QList<LocationRow> distinct(const QList<LocationRow> &rows)
{
    QList<LocationRow> kept;
    QSet<QString> seen;
    for (const LocationRow &row : rows) {
        const QString key = MirrixCore::pathCaseKey(row.path);
        if (key.isEmpty() || seen.contains(key))
            continue;
        seen.insert(key);
        kept.append(row);
    }
    return kept;
}

QList<LocationRow> rowsFromPaths(const QStringList &paths)
{
    QList<LocationRow> rows;
    for (const QString &path : paths) {
        LocationRow row;
        row.path = locationPath(path);
        rows.append(row);
    }
    return distinct(rows);
}

} // namespace

QJsonArray jsonFromLocations(const QList<LocationRow> &rows)
{
    QJsonArray array;
    for (const LocationRow &row : rows) {
        array.append(QJsonObject{{u"path"_s, row.path},
                                 {u"enabled"_s, row.enabled},
                                 {u"protected"_s, row.isProtected},
                                 {u"subfolders"_s, row.includeSubfolders},
                                 {u"find"_s, row.findKind},
                                 {u"showRemaining"_s, row.showRemaining}});
    }
    return array;
}

QList<LocationRow> locationsFromJson(const QJsonArray &json)
{
    QList<LocationRow> rows;
    for (const QJsonValue &item : json)
        rows.append(rowFrom(item.toObject()));
    return distinct(rows);
}

LocationsState locationsStateFrom(const Settings &settings)
{
    LocationsState state;
    state.rows =
        settings.locations.isEmpty() ? rowsFromPaths(settings.lastRoots) : locationsFromJson(settings.locations);
    state.excludeFolders = settings.excludeDirs;
    state.advanced.keepRule = settings.keepRule;
    state.advanced.skipHidden = settings.skipHidden;
    state.advanced.skipSystemFolders = settings.skipSystemDirs;
    state.advanced.backupBeforeDelete = settings.autoBackupBeforeDelete;
    state.advanced.backupFolder = settings.backupRoot;
    return state;
}

void storeLocations(const LocationsState &state, Settings &settings)
{
    settings.locations = jsonFromLocations(state.rows);
    settings.lastRoots.clear();
    for (const LocationRow &row : state.rows) {
        if (row.enabled)
            settings.lastRoots.append(row.path);
    }
    settings.excludeDirs = state.excludeFolders;
    settings.keepRule = state.advanced.keepRule;
    settings.skipHidden = state.advanced.skipHidden;
    settings.skipSystemDirs = state.advanced.skipSystemFolders;
    settings.autoBackupBeforeDelete = state.advanced.backupBeforeDelete;
    settings.backupRoot = state.advanced.backupFolder;
}

} // namespace Mirrix
