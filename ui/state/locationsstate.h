#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace Mirrix {

/// One row of the table of scan locations.
struct LocationRow
{
    QString path;
    bool enabled = true;      ///< taken into the next scan
    bool isProtected = false; ///< never scanned
    bool includeSubfolders = true;
    qint32 findKind = 0; ///< a MirrixCore::FindKind
    bool showRemaining = false;

    bool operator==(const LocationRow &) const = default;
};

/// The box of advanced options on the locations page.
struct AdvancedOptions
{
    qint32 keepRule = 0;
    bool skipHidden = true;
    bool skipSystemFolders = true;
    bool backupBeforeDelete = true;
    QString backupFolder;

    bool operator==(const AdvancedOptions &) const = default;
};

/// What the locations page shows, as a plain value.
struct LocationsState
{
    QList<LocationRow> rows;
    QStringList excludeFolders;
    AdvancedOptions advanced;

    bool operator==(const LocationsState &) const = default;
};

} // namespace Mirrix
