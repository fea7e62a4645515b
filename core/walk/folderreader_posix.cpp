#include "core/walk/folderreader.h"

#include "core/platform/epochtime.h"
#include "core/platform/nativepath.h"
#include "core/walk/kernelfilesystems_posix.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace MirrixCore {

struct FolderReader::State
{
    DIR *stream = nullptr;
    QString error;

    ~State()
    {
        if (stream)
            closedir(stream);
    }
};

namespace {

qint64 epochMs(const statx_timestamp &time)
{
    return epochMsFrom(time.tv_sec, time.tv_nsec);
}

/// Fills `item` from the file `name` below the open folder. False when the entry has vanished meanwhile.
bool readItem(int folder, const char *name, FolderItem &item)
{
    // statx rather than fstatat: it alone tells when a file was created.
    struct statx info = {};
    constexpr unsigned wanted = STATX_BASIC_STATS | STATX_BTIME;
    if (statx(folder, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, wanted, &info) != 0) {
        if (errno == ENOENT)
            return false;
        item.reason = systemErrorText(errno);
        return true;
    }
    item.kind = S_ISREG(info.stx_mode)   ? FolderItem::Kind::File
                : S_ISDIR(info.stx_mode) ? FolderItem::Kind::Folder
                                         : FolderItem::Kind::Other;
    item.sizeBytes = static_cast<qint64>(info.stx_size);
    item.allocatedBytes = static_cast<qint64>(info.stx_blocks) * 512; // the unit of statx, whatever the volume's is
    item.modifiedMs = epochMs(info.stx_mtime);
    item.createdMs = info.stx_mask & STATX_BTIME ? epochMs(info.stx_btime) : 0;
    const auto device = static_cast<quint32>(makedev(info.stx_dev_major, info.stx_dev_minor));
    item.identity = {device, info.stx_ino, info.stx_nlink, true};
    return true;
}

bool isDots(const char *name)
{
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

} // namespace

FolderReader::FolderReader(const QString &folder, bool isLinkWanted)
    : m_state(std::make_unique<State>())
{
    const int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK | (isLinkWanted ? 0 : O_NOFOLLOW);
    struct statfs info = {};
    const int descriptor = open(pathBytes(folder).constData(), flags);
    if (descriptor < 0) {
        m_state->error = systemErrorText(errno);
    } else if (fstatfs(descriptor, &info) == 0 && isKernelFileSystem(info)) {
        m_state->error = QStringLiteral("a file system of the kernel, not scanned");
        close(descriptor);
    } else {
        m_state->stream = fdopendir(descriptor);
        if (!m_state->stream) {
            m_state->error = systemErrorText(errno);
            close(descriptor);
        }
    }
}

FolderReader::~FolderReader() = default;
FolderReader::FolderReader(FolderReader &&) noexcept = default;
FolderReader &FolderReader::operator=(FolderReader &&) noexcept = default;

bool FolderReader::next(FolderItem &item)
{
    while (m_state->stream) {
        errno = 0;
        const dirent *entry = readdir(m_state->stream);
        if (!entry) {
            if (errno != 0)
                m_state->error = systemErrorText(errno);
            return false;
        }
        if (isDots(entry->d_name))
            continue;
        item = FolderItem();
        const bool needsRead = entry->d_type == DT_REG || entry->d_type == DT_UNKNOWN;
        if (entry->d_type == DT_DIR)
            item.kind = FolderItem::Kind::Folder;
        if (needsRead && !readItem(dirfd(m_state->stream), entry->d_name, item))
            continue;
        item.name = pathFromBytes(entry->d_name);
        item.isHidden = entry->d_name[0] == '.';
        return true;
    }
    return false;
}

const QString &FolderReader::errorText() const
{
    return m_state->error;
}

} // namespace MirrixCore
