#pragma once

#include "core/platform/nativepath.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

namespace MirrixTest {

// What really is on the disk, read by other means than the code under test.

/// Files below a folder by their path in it, with content, modification time and permissions; links with what they lead
/// to.
using DiskTree = QMap<QString, QByteArray>;

[[nodiscard]] inline std::filesystem::path exactNative(const QString &path)
{
    const bool hasDrive = path.size() > 1 && path[1] == QLatin1Char(':');
    return (hasDrive ? QLatin1String("\\\\?\\") + QDir::toNativeSeparators(path) : path).toStdU16String();
}

[[nodiscard]] inline QByteArray contentAt(const std::filesystem::path &path)
{
    std::ifstream stream(path, std::ios::binary);
    return QByteArray::fromStdString(std::string(std::istreambuf_iterator<char>(stream), {}));
}

[[nodiscard]] inline QByteArray contentOf(const QString &path)
{
    return contentAt(exactNative(path));
}

[[nodiscard]] inline DiskTree treeBelow(const QString &folder)
{
    DiskTree tree;
    // Only names from here: Qt reports on another file where the name ends with a dot.
    QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const std::filesystem::path native = exactNative(path);
        std::error_code error;
        const auto time = std::filesystem::last_write_time(native, error).time_since_epoch().count();
        const auto permissions = std::filesystem::status(native, error).permissions();
        tree.insert(path.mid(folder.size() + 1), (std::filesystem::is_symlink(native) ? "link to " : "") +
                                                     contentAt(native) + " @" + QByteArray::number(qint64(time)) + ' ' +
                                                     QByteArray::number(static_cast<int>(permissions), 8));
    }
    return tree;
}

/// A temporary folder on another volume than `folder`; null where none is found.
[[nodiscard]] inline std::unique_ptr<QTemporaryDir> folderOnOtherVolume(const QString &folder)
{
    for (const QString &place : {QStringLiteral("/dev/shm"), QStringLiteral("Z:/dev/shm"), QDir::homePath()}) {
        auto other = std::make_unique<QTemporaryDir>(place + QStringLiteral("/mirrix-XXXXXX"));
        QFile probe(folder + QStringLiteral("/probe"));
        if (!other->isValid() || !probe.open(QIODevice::WriteOnly))
            continue;
        probe.close();
        std::error_code error; // hard links end at the volume
        const std::filesystem::path link = exactNative(other->filePath(QStringLiteral("probe")));
        std::filesystem::create_hard_link(exactNative(probe.fileName()), link, error);
        std::error_code ignored;
        std::filesystem::remove(link, ignored);
        probe.remove();
        if (error)
            return other;
    }
    return nullptr;
}

/// The folder of 20 KiB on which the running test function is to work when it runs for the second time; empty in the
/// first run.
[[nodiscard]] inline QString smallDisk()
{
    return qEnvironmentVariable("MIRRIX_SMALL_DISK");
}

/// Runs the current row again by a shell script that sets the scene in the folder "$0" and then executes the test,
/// "$@". False, with the reason in `problem`, when that run failed; "no scene" where the scene cannot be set.
[[nodiscard]] inline bool passesInScene(const QString &script, QByteArray &problem)
{
    const QTemporaryDir folder;
    const char *tag = QTest::currentDataTag();
    const QString row =
        QLatin1String(QTest::currentTestFunction()) + (tag ? QLatin1Char(':') + QString::fromUtf8(tag) : QString());
    QProcess process;
    process.start(QStringLiteral("unshare"), {QStringLiteral("-m"), QStringLiteral("sh"), QStringLiteral("-c"), script,
                                              folder.path(), QCoreApplication::applicationFilePath(), row});
    process.waitForFinished();
    const QByteArray output = process.readAll();
    const bool hasRun = process.error() != QProcess::FailedToStart && output.contains("PASS");
    problem = hasRun || output.contains("FAIL!") ? output : QByteArray("no scene");
    return hasRun && process.exitCode() == 0;
}

} // namespace MirrixTest

/// Goes on in a second run of the row, which the environment variable `sign` marks and `script` sets up as for
/// passesInScene, and ends the first.
#define MIRRIX_IN_SCENE(sign, script)                                                                                  \
    if (!qEnvironmentVariableIsSet(sign)) {                                                                            \
        QByteArray problem;                                                                                            \
        const bool isPassed = MirrixTest::passesInScene(QStringLiteral(script), problem);                              \
        if (problem == "no scene")                                                                                     \
            QSKIP("the system does not allow setting up " sign);                                                       \
        QVERIFY2(isPassed, problem.constData());                                                                       \
        return;                                                                                                        \
    }

/// Goes on on a disk of 20 KiB.
#define MIRRIX_ON_SMALL_DISK()                                                                                         \
    MIRRIX_IN_SCENE("MIRRIX_SMALL_DISK", "mount -t tmpfs -o size=20k none \"$0\" || exit 77; "                         \
                                         "MIRRIX_SMALL_DISK=\"$0\" exec \"$@\"")
