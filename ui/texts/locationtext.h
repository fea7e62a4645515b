#pragma once

#include "app/drives.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace Mirrix {

/// The form in which a location or folder is kept: absolute, forward slashes, none at the end but that of a root.
/// Empty stays empty.
[[nodiscard]] QString locationPath(const QString &path);

/// The arguments of a command line that name existing folders, made absolute. An empty one names none.
[[nodiscard]] QStringList foldersAmong(const QStringList &arguments);

/// Whether two paths name one folder, by the system's rules on letter case.
[[nodiscard]] bool isSameLocation(const QString &a, const QString &b);

/// Labels of volumes by the `locationPath` of their roots; those without a label are left out.
using VolumeLabels = QHash<QString, QString>;
[[nodiscard]] VolumeLabels volumeLabelsOf(const QList<Drive> &drives);

/// What the table shows for a location: a labelled volume's label and root, else the folder's name.
[[nodiscard]] QString locationName(const QString &path, const VolumeLabels &labels);

/// A drive's line in the drive picker: root, label, file system, type, capacity, mark of the system drive.
[[nodiscard]] QString driveLine(const Drive &drive);

} // namespace Mirrix
