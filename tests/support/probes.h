#pragma once

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QString>

#include <filesystem>
#include <type_traits>

namespace MirrixTest {

// What the system under the tests can do, found by asking it and not the code under test.

/// Whether file names are bytes here (POSIX) rather than 16-bit units.
inline constexpr bool namesAreBytes = std::is_same_v<std::filesystem::path::value_type, char>;

/// Hides an existing file or folder whose name begins with a dot: where the dot does not do it, the attribute does.
/// False where nothing hides it.
[[nodiscard]] inline bool hide(const QString &dotPath)
{
    QProcess::execute(QStringLiteral("attrib"), {QStringLiteral("+h"), QDir::toNativeSeparators(dotPath)});
    return QFileInfo(dotPath).isHidden();
}

/// Makes a named pipe. False where there are none.
[[nodiscard]] inline bool makePipe(const QString &path)
{
    return QProcess::execute(QStringLiteral("mkfifo"), {path}) == 0;
}

} // namespace MirrixTest
