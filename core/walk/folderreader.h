#pragma once

#include "core/platform/filestatus.h"

#include <QString>

#include <memory>

namespace MirrixCore {

/// One entry of a folder, as the folder itself lists it.
struct FolderItem
{
    enum class Kind
    {
        File,
        Folder,
        Other
    }; ///< Other: symbolic links, devices, pipes, sockets

    QString name;
    Kind kind = Kind::Other;
    bool isHidden = false;
    bool isFolderLink = false;  ///< a folder that may lead elsewhere (Windows: junction, directory link)
    bool isPlaceholder = false; ///< a file whose content is not on this machine: reading would download it
    qint64 sizeBytes = 0;
    qint64 allocatedBytes = -1; ///< on the volume; known where it comes for free (POSIX), else below 0
    qint64 modifiedMs = 0;      ///< milliseconds since the Unix epoch; below 1 = unknown
    qint64 createdMs = 0;       ///< milliseconds since the Unix epoch; below 1 = unknown
    FileIdentity identity;      ///< known where it comes for free (POSIX), else see fileStatus
    QString reason;             ///< why the entry could not be read; empty otherwise
};

/// Reads one folder, entry by entry, without opening any file. "." and ".." are left out. Not thread-safe.
class FolderReader
{
public:
    /// Opens `folder`, an absolute clean path. A link is followed only with `followsLink`; where the system cannot
    /// distinguish one when opening (Windows), it always is.
    explicit FolderReader(const QString &folder, bool followsLink = true);

    /// The same for a folder that lies in the one that `parent` reads, found from there while it is open.
    FolderReader(const FolderReader &parent, const QString &folder, bool followsLink);

    ~FolderReader();
    FolderReader(FolderReader &&) noexcept;
    FolderReader &operator=(FolderReader &&) noexcept;

    /// Moves to the next entry. False at the end, and on an error: errorText is then not empty and entries may be
    /// missing.
    [[nodiscard]] bool next(FolderItem &item);

    /// Reads the rest of the folder into memory and closes it, where the number of open folders is limited (POSIX).
    void release();

    /// Why the folder could not be opened or read to its end; empty otherwise.
    [[nodiscard]] const QString &errorText() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace MirrixCore
