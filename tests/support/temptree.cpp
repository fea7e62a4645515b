#include "tests/support/temptree.h"

#include "core/platform/nativepath.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <fstream>
#include <system_error>

namespace MirrixTest {

namespace {

std::filesystem::path nativeOf(const QString &path)
{
    return std::filesystem::path(path.toStdU16String());
}

/// The form of a path that the system takes to the letter.
QString exactPath(const QString &absolute)
{
    const bool hasDrive = absolute.size() > 1 && absolute[1] == QLatin1Char(':');
    return hasDrive ? QLatin1String("\\\\?\\") + QDir::toNativeSeparators(absolute) : absolute;
}

void writeWhole(QFile &file, const QByteArray &content)
{
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
}

} // namespace

TempTree::TempTree()
{
    if (!m_folder.isValid())
        qFatal("no temporary folder: %s", qPrintable(m_folder.errorString()));
}

TempTree::~TempTree()
{
    // QTemporaryDir leaves names behind that it cannot spell.
    std::error_code ignored;
    std::filesystem::remove_all(nativeOf(exactPath(path())), ignored);
}

QString TempTree::path(const QString &relative) const
{
    // The temporary folder may be reached through a link; the engine reports the path it was given.
    return relative.isEmpty() ? m_folder.path() : m_folder.path() + QLatin1Char('/') + relative;
}

QString TempTree::write(const QString &relative, const QByteArray &content) const
{
    const QString absolute = path(relative);
    QDir().mkpath(QFileInfo(absolute).path());
    QFile file(absolute);
    writeWhole(file, content);
    return absolute;
}

void TempTree::writeAll(const QString &relatives, const QByteArray &content) const
{
    for (const QString &relative : relatives.split(QLatin1Char(' ')))
        write(relative, content);
}

QString TempTree::writeExactly(const QString &relative, const QByteArray &content) const
{
    const QString absolute = path(relative);
    QDir().mkpath(QFileInfo(absolute).path());
    std::ofstream stream(nativeOf(exactPath(absolute)), std::ios::binary);
    stream.write(content.constData(), content.size());
    stream.close();
    if (!stream)
        qFatal("cannot write %s", qPrintable(absolute));
    return absolute;
}

QString TempTree::writeNamedByBytes(const QByteArray &name, const QByteArray &content) const
{
    const QByteArray absolute = QFile::encodeName(path()) + '/' + name;
    FILE *stream = std::fopen(absolute.constData(), "wb");
    QFile file;
    if (!stream || !file.open(stream, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle) ||
        file.write(content) != content.size()) {
        qFatal("cannot write %s", absolute.constData());
    }
    return MirrixCore::pathFromBytes(absolute);
}

QString TempTree::makeFolder(const QString &relative) const
{
    if (!QDir().mkpath(path(relative)))
        qFatal("cannot make %s", qPrintable(path(relative)));
    return path(relative);
}

void TempTree::setModified(const QString &relative, qint64 modifiedMs) const
{
    QFile file(path(relative));
    if (!file.open(QIODevice::ReadWrite) ||
        !file.setFileTime(QDateTime::fromMSecsSinceEpoch(modifiedMs), QFileDevice::FileModificationTime)) {
        qFatal("cannot set the time of %s", qPrintable(file.fileName()));
    }
}

bool TempTree::hardLink(const QString &target, const QString &relative) const
{
    std::error_code error;
    std::filesystem::create_hard_link(nativeOf(path(target)), nativeOf(path(relative)), error);
    return !error;
}

bool TempTree::symbolicLink(const QString &target, const QString &relative) const
{
    std::error_code error;
    std::filesystem::create_symlink(nativeOf(path(target)), nativeOf(path(relative)), error);
    return !error && std::filesystem::is_symlink(nativeOf(path(relative)), error);
}

QByteArray patternBytes(qint64 length, quint32 seed)
{
    QByteArray bytes(length, Qt::Uninitialized);
    for (qint64 i = 0; i < length; ++i)
        bytes[i] = static_cast<char>((static_cast<quint32>(i) + seed) * 2654435761U >> 24);
    return bytes;
}

QByteArray testData(const QString &relative)
{
    QFile file(QStringLiteral(MIRRIX_TEST_FOLDER "/") + relative);
    if (!file.exists()) // Wine shows the building machine's root as a drive
        file.setFileName(QLatin1String("Z:") + file.fileName());
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    return file.readAll();
}

} // namespace MirrixTest
