#pragma once

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QString>
#include <QTest>

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

/// Makes `name` in a folder lead to another folder, as only Windows follows it: a junction, under Wine a link made by
/// the machine's own ln. False where neither is to be had.
[[nodiscard]] inline bool makeJunction(const QString &folder, const QString &name, const QString &target)
{
    const QString link = folder + QLatin1Char('/') + name;
    const auto leadsSomewhere = [&link] { return QFileInfo(link).isDir(); };
    QProcess::execute(QStringLiteral("cmd"), {QStringLiteral("/c"), QStringLiteral("mklink"), QStringLiteral("/J"),
                                              QDir::toNativeSeparators(link), QDir::toNativeSeparators(target)});
    if (leadsSomewhere())
        return true;
    const QStringList relative = {QStringLiteral("-s"), QDir(folder).relativeFilePath(target), name};
    return QProcess::startDetached(QStringLiteral("Z:/usr/bin/ln"), relative, folder) &&
           QTest::qWaitFor(leadsSomewhere);
}

/// Removes such a link and not what it leads to; removing the tree would follow it.
inline void removeJunction(const QString &link)
{
    if (!QDir().rmdir(link) &&
        QProcess::startDetached(QStringLiteral("Z:/usr/bin/rm"), {QFileInfo(link).fileName()}, QFileInfo(link).path()))
        static_cast<void>(QTest::qWaitFor([&link] { return !QFileInfo::exists(link); }));
}

} // namespace MirrixTest
