#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace MirrixTest {

/// A folder of real files for one test, gone afterwards. Paths are relative to the folder and use forward slashes.
/// Every function fails the running test (qFatal) when the file system refuses, so that a test never goes on half set
/// up.
class TempTree
{
public:
    TempTree();
    ~TempTree();
    TempTree(const TempTree &) = delete;
    TempTree &operator=(const TempTree &) = delete;

    /// Absolute path of the folder, or of something in it.
    [[nodiscard]] QString path(const QString &relative = {}) const;

    /// Writes a file, making folders as needed; returns its absolute path.
    QString write(const QString &relative, const QByteArray &content) const;

    /// Writes a file of this content under each of the names, which blanks separate.
    void writeAll(const QString &relatives, const QByteArray &content = "x") const;

    /// Writes a file under a name that the system's everyday calls would change, cut or refuse: trailing dots and
    /// blanks, paths of more than 260 characters.
    QString writeExactly(const QString &relative, const QByteArray &content) const;

    /// Writes a file whose name consists of these bytes (POSIX only: not every system has such names).
    QString writeNamedByBytes(const QByteArray &name, const QByteArray &content) const;

    QString makeFolder(const QString &relative) const;

    /// Sets a file's modification time, milliseconds since the Unix epoch.
    void setModified(const QString &relative, qint64 modifiedMs) const;

    /// Makes `relative` a further name of the file `target`. False where the file system has no hard links.
    [[nodiscard]] bool hardLink(const QString &target, const QString &relative) const;

    /// Makes `relative` a symbolic link to `target`. False where that is not possible.
    [[nodiscard]] bool symbolicLink(const QString &target, const QString &relative) const;

private:
    QTemporaryDir m_folder;
};

/// `length` bytes of a fixed pattern without short periods: byte i is the top byte of the 32-bit product of i + `seed`
/// and 2654435761. The scripts that compute expected digests use the same rule.
[[nodiscard]] QByteArray patternBytes(qint64 length, quint32 seed = 0);

/// The content of a file below tests/, such as "core/data/hash-vectors.json".
[[nodiscard]] QByteArray testData(const QString &relative);

} // namespace MirrixTest
