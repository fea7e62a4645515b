#include "core/walk/folderreader.h"

#include "core/platform/epochtime.h"
#include "core/platform/nativepath.h"
#include "core/platform/openpath_posix.h"
#include "core/walk/kernelfilesystems_posix.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <deque>
#include <utility>

namespace MirrixCore {

struct FolderReader::State
{
    DIR *stream = nullptr;
    std::deque<FolderItem> rest; ///< what was read before the stream was closed
    QString error;

    ~State() { closeStream(); }

    void closeStream()
    {
        if (stream)
            closedir(stream);
        stream = nullptr;
    }

    void start(int descriptor);
    [[nodiscard]] bool read(FolderItem &item);
};

namespace {

qint64 epochMs(const statx_timestamp &time)
{
    return epochMsFrom(time.tv_sec, time.tv_nsec);
}

/// Fills `item` from the file `name` below the open folder. False when the entry has vanished since.
bool readItem(int folder, const char *name, FolderItem &item)
{
    // statx rather than fstatat: it alone returns when a file was created.
    struct statx info = {};
    constexpr unsigned fields = STATX_BASIC_STATS | STATX_BTIME;
    if (statx(folder, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, fields, &info) != 0) {
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

int openFlags(bool followsLink)
{
    return O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK | (followsLink ? 0 : O_NOFOLLOW);
}

} // namespace

/// Takes the descriptor over; below 0, errno says why there is none.
void FolderReader::State::start(int descriptor)
{
    struct statfs info = {};
    if (descriptor < 0) {
        error = systemErrorText(errno);
    } else if (fstatfs(descriptor, &info) == 0 && isKernelFileSystem(info)) {
        error = QStringLiteral("a file system of the kernel, not scanned");
        close(descriptor);
    } else {
        stream = fdopendir(descriptor);
        if (!stream) {
            error = systemErrorText(errno);
            close(descriptor);
        }
    }
}

FolderReader::FolderReader(const QString &folder, bool followsLink)
    : m_state(std::make_unique<State>())
{
    m_state->start(openPath(pathBytes(folder), openFlags(followsLink)));
}

FolderReader::FolderReader(const FolderReader &parent, const QString &folder, bool followsLink)
    : m_state(std::make_unique<State>())
{
    if (DIR *above = parent.m_state->stream) {
        const QByteArray name = pathBytes(folder.mid(folder.lastIndexOf(QLatin1Char('/')) + 1));
        m_state->start(openat(dirfd(above), name.constData(), openFlags(followsLink)));
    } else {
        m_state->start(openPath(pathBytes(folder), openFlags(followsLink)));
    }
}

FolderReader::~FolderReader() = default;
FolderReader::FolderReader(FolderReader &&) noexcept = default;
FolderReader &FolderReader::operator=(FolderReader &&) noexcept = default;

bool FolderReader::next(FolderItem &item)
{
    if (m_state->rest.empty())
        return m_state->read(item);
    item = std::move(m_state->rest.front());
    m_state->rest.pop_front();
    return true;
}

void FolderReader::release()
{
    FolderItem item;
    while (m_state->read(item))
        m_state->rest.push_back(item);
    m_state->closeStream();
}

bool FolderReader::State::read(FolderItem &item)
{
    while (stream) {
        errno = 0; // readdir returns null at the end as well as on an error
        const dirent *entry = readdir(stream);
        if (!entry) {
            if (errno != 0)
                error = systemErrorText(errno);
            return false;
        }
        if (isDots(entry->d_name))
            continue;
        item = FolderItem();
        // Only files need their sizes and times; some file systems leave the kind of an entry unknown.
        const bool needsRead = entry->d_type == DT_REG || entry->d_type == DT_UNKNOWN;
        if (entry->d_type == DT_DIR)
            item.kind = FolderItem::Kind::Folder;
        if (needsRead && !readItem(dirfd(stream), entry->d_name, item))
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
