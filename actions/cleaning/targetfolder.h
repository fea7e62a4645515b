#pragma once

#include <QHash>
#include <QString>

namespace Mirrix {

/// The folder into which a run moves files. One thread at a time.
class TargetFolder
{
public:
    explicit TargetFolder(const QString &path)
        : m_path(path)
    {}

    /// Whether it is, by whatever name, the folder of the file `path` or one above it: moving the file there would not
    /// take it out of the way. Asks the disk once for each folder.
    [[nodiscard]] bool holds(const QString &path);

    /// Whether it is `folder` or one above it.
    [[nodiscard]] bool isAtOrAbove(const QString &folder);

private:
    QString m_path;
    QHash<QString, bool> m_known; ///< answers by folder
};

} // namespace Mirrix
