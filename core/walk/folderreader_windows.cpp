#include "core/walk/folderreader.h"

#include "core/platform/nativepath.h"
#include "core/platform/win32.h"
#include "core/walk/windowsattributes.h"

namespace MirrixCore {

struct FolderReader::State
{
    HANDLE search = INVALID_HANDLE_VALUE;
    WIN32_FIND_DATAW data = {};
    bool hasData = false; ///< data holds an entry not yet handed out
    QString error;

    ~State()
    {
        if (search != INVALID_HANDLE_VALUE)
            FindClose(search);
    }

    void advance()
    {
        hasData = FindNextFileW(search, &data);
        if (!hasData && GetLastError() != ERROR_NO_MORE_FILES)
            error = lastErrorText();
    }
};

namespace {

constexpr size_t mostUnits = 32767; // with the prefix of long paths

bool isDots(const wchar_t *name)
{
    return name[0] == L'.' && (name[1] == L'\0' || (name[1] == L'.' && name[2] == L'\0'));
}

void fillItem(const WIN32_FIND_DATAW &data, FolderItem &item)
{
    item = FolderItem();
    setKind(item, data.dwFileAttributes);
    item.name = textFromWide(data.cFileName);
    item.sizeBytes = static_cast<qint64>(joined(data.nFileSizeHigh, data.nFileSizeLow));
    item.modifiedMs = epochMsFrom(data.ftLastWriteTime);
    item.createdMs = epochMsFrom(data.ftCreationTime);
}

} // namespace

FolderReader::FolderReader(const QString &folder, bool)
    : m_state(std::make_unique<State>())
{
    std::wstring pattern = longPath(folder);
    if (!pattern.ends_with(L'\\'))
        pattern += L'\\';
    pattern += L'*';
    if (pattern.size() > mostUnits) {
        m_state->error = QStringLiteral("the path is longer than the 32,767 characters that Windows allows");
        return;
    }
    m_state->search = FindFirstFileW(pattern.c_str(), &m_state->data);
    m_state->hasData = m_state->search != INVALID_HANDLE_VALUE;
    // An empty drive root has no entry at all, not even ".".
    if (!m_state->hasData && GetLastError() != ERROR_FILE_NOT_FOUND)
        m_state->error = lastErrorText();
}

FolderReader::FolderReader(const FolderReader &, const QString &folder, bool followsLink)
    : FolderReader(folder, followsLink)
{}

FolderReader::~FolderReader() = default;
FolderReader::FolderReader(FolderReader &&) noexcept = default;
FolderReader &FolderReader::operator=(FolderReader &&) noexcept = default;

bool FolderReader::next(FolderItem &item)
{
    while (m_state->hasData && isDots(m_state->data.cFileName))
        m_state->advance();
    if (!m_state->hasData)
        return false;
    fillItem(m_state->data, item);
    m_state->advance();
    return true;
}

void FolderReader::release() {}

const QString &FolderReader::errorText() const
{
    return m_state->error;
}

} // namespace MirrixCore
