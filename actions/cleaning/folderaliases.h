#pragma once

#include "actions/cleaning/cleaningplan.h"

#include <QHash>
#include <QString>

#include <utility>

namespace Mirrix {

/// Finds out whether two folders are one by different paths, where the system's numbers do not show it: one file system
/// on top of another has numbers of its own. One thread at a time.
class FolderAliases
{
public:
    /// Whether the surplus and the kept file of an item are surely one file by two paths. Where names and numbers leave
    /// that open, makes an empty file in the one folder for a moment and looks for it in the other, once for each pair
    /// of folders.
    [[nodiscard]] bool isSameFile(const CleaningItem &item);

private:
    [[nodiscard]] static bool areOne(const QString &folder, const QString &other);

    QHash<std::pair<QString, QString>, bool> m_known;
};

/// Whether the two files have names that a file system may take for one, in folders of different paths.
[[nodiscard]] bool haveSameNameElsewhere(const QString &path, const QString &other);

} // namespace Mirrix
