#pragma once

#include "core/platform/filestatus.h"

#include <QString>
#include <QStringList>

namespace MirrixCore {

/// What the program keeps for itself in one folder, its data directory. Files of the user's may lie beside it.
struct OwnFiles
{
    QString folder;         ///< absolute; empty = nothing is known
    QStringList names;      ///< of files and folders in it
    QStringList beginnings; ///< what the names of further ones begin with

    bool operator==(const OwnFiles &) const = default;
};

/// Sets what all walks leave out, whatever path leads to it. Call once at start-up, before the first scan. Thread-safe.
void setOwnFiles(const OwnFiles &files);

/// What was set last. Thread-safe.
[[nodiscard]] OwnFiles ownFiles();

/// Recognises the own files during a walk.
class OwnFileRules
{
public:
    /// Asks the file system for the own folder's identity.
    explicit OwnFileRules(const OwnFiles &files);

    /// Whether the entry `name` of `folder` is an own file or folder. Asks the file system only for names that fit.
    [[nodiscard]] bool isOwn(const QString &folder, const QString &name) const;

    /// Whether `path` is an own file or folder, or lies below one.
    [[nodiscard]] bool isOwnOrBelow(const QString &path) const;

private:
    [[nodiscard]] bool hasOwnName(const QString &name) const;

    OwnFiles m_files;
    FileIdentity m_identity;
};

} // namespace MirrixCore
