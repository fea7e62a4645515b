#pragma once

#include <QString>
#include <QStringView>

namespace MirrixCore {

// Paths as text: nothing here asks the file system. Thread-safe.

/// Clean form of a path with forward slashes; on Windows a drive without slash ("C:") becomes its root. Empty stays
/// empty.
[[nodiscard]] QString cleanedPath(const QString &path);

/// The form in which isUnderFolder compares paths: clean, lower case, with every backslash as a separator whatever the
/// system.
[[nodiscard]] QString comparablePath(const QString &path);

/// Whether `path` is `folder` or lies below it, by exact text; both are clean.
[[nodiscard]] bool isBelow(QStringView path, QStringView folder);

/// Whether `path` is `folder` or lies below it. Case is ignored and backslashes count as slashes; a sibling whose name
/// only begins with the same characters is not below.
[[nodiscard]] bool isUnderFolder(const QString &path, const QString &folder);

/// The folder part of a file's path, with its slash only at a root ("C:/", "/").
[[nodiscard]] QStringView folderOf(QStringView path);

/// The last piece of a path; empty for a root.
[[nodiscard]] QStringView nameOf(QStringView path);

/// The text after the last dot of a file's name, lower case; empty without a dot.
[[nodiscard]] QString suffixOf(QStringView path);

/// `name` inside `folder`.
[[nodiscard]] QString joinedPath(const QString &folder, const QString &name);

/// Orders paths by their code points, the same on every system. Negative, 0 or positive as `a` comes before, with or
/// after `b`.
[[nodiscard]] int compareCodePoints(QStringView a, QStringView b);

} // namespace MirrixCore
