#pragma once

#include "actions/files/nativefile.h"

#include <QByteArrayView>
#include <QList>
#include <QMultiHash>
#include <QSet>
#include <QString>

#include <functional>
#include <optional>

namespace Mirrix {

// Finds what lies in the system's bins and puts it back.

/// A folder of recycled files.
struct BinFolder
{
    enum class Layout
    {
        Trash,     ///< freedesktop.org: "files", and a note on each file in "info"
        RecycleBin ///< Windows: a pair $I..., $R... for each file
    };

    Layout layout = Layout::Trash;
    QString folder;
    QString top; ///< to which relative paths in notes count; may be empty
};

/// One file in a bin.
struct BinEntry
{
    QString filePath;
    QString infoPath;                  ///< the note on it
    QString original;                  ///< where it came from; forward slashes
    qint64 deletedMs = 0;              ///< milliseconds since the Unix epoch; 0 = unknown
    bool isDeletedInLocalTime = false; ///< deletedMs is local time as if it were UTC
};

/// What a note in a trash says, given the text of a .trashinfo file: original and deletedMs (to the second, in local
/// time). A relative path counts from `top`. No value when it names no path.
[[nodiscard]] std::optional<BinEntry> readTrashNote(QByteArrayView text, const QString &top);

/// The same of a $I file of Windows Vista or later.
[[nodiscard]] std::optional<BinEntry> readRecycleNote(QByteArrayView bytes);

/// The entry of the file `filePath` that lies in a bin. No value when it or its note is not there.
[[nodiscard]] std::optional<BinEntry> binEntryAt(const QString &filePath);

/// This user's bins that may hold a file that lay at `path`. They need not exist.
[[nodiscard]] QList<BinFolder> binFoldersFor(const QString &path);

/// The contents of bins, each read once, when the first file is looked for in it. Not thread-safe.
class BinContents
{
public:
    using FoldersFor = std::function<QList<BinFolder>(const QString &path)>;

    explicit BinContents(FoldersFor foldersFor = binFoldersFor)
        : m_foldersFor(std::move(foldersFor))
    {}

    /// The latest entry that came from `original` (absolute), has this size and modification time (0 = any), was not
    /// recycled more than an hour before `recycledNotBeforeMs` (notes can be that wrong), and still is a plain file.
    [[nodiscard]] std::optional<BinEntry> find(const QString &original, qint64 sizeBytes, qint64 modifiedMs,
                                               qint64 recycledNotBeforeMs);

private:
    void read(const BinFolder &bin);

    FoldersFor m_foldersFor;
    QSet<QString> m_read;
    QMultiHash<QString, BinEntry> m_entries; ///< by the key of the original path
};

/// The same for a single file; reads all of its bins.
[[nodiscard]] std::optional<BinEntry> findInBin(const QString &original, qint64 sizeBytes, qint64 modifiedMs,
                                                qint64 recycledNotBeforeMs);

/// Moves a file back to its original path, which must be free, making folders as needed, and removes the note on it.
[[nodiscard]] FileFault putBackFromBin(const BinEntry &entry);

} // namespace Mirrix
