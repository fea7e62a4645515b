#include "actions/files/recyclebin.h"

#include "actions/files/movefile.h"
#include "core/platform/nativepath.h"
#include "core/platform/win32.h"

#include <QDir>
#include <QFileInfo>

#include <objbase.h>
#include <shellapi.h>

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <thread>

namespace Mirrix {

namespace {

constexpr qsizetype filesPerCall = 400;
const QString explorerKey = QStringLiteral("Software\\Microsoft\\Windows\\CurrentVersion\\");

std::optional<DWORD> registryNumber(const QString &key, const wchar_t *name)
{
    DWORD value = 0;
    DWORD size = sizeof value;
    const LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, (explorerKey + key).toStdWString().c_str(), name,
                                        RRF_RT_REG_DWORD, nullptr, &value, &size);
    return status == ERROR_SUCCESS ? std::optional(value) : std::nullopt;
}

/// Whether the bin of the volume with this root ("C:\") is switched on and large enough. What is not in the registry is
/// the system's default, which is on.
bool isBinLargeEnough(const std::wstring &root, qint64 sizeBytes)
{
    if (registryNumber(QStringLiteral("Policies\\Explorer"), L"NoRecycleFiles").value_or(0) != 0)
        return false;
    wchar_t volume[MAX_PATH] = {};
    if (!GetVolumeNameForVolumeMountPointW(root.c_str(), volume, MAX_PATH))
        return true;
    const QString name = QString::fromWCharArray(volume); // \\?\Volume{...}\ ;
    const qsizetype brace = name.indexOf(QLatin1Char('{'));
    const QString key = QLatin1String("Explorer\\BitBucket\\Volume\\") + name.mid(brace, name.size() - brace - 1);
    if (registryNumber(key, L"NukeOnDelete").value_or(0) != 0)
        return false;
    const std::optional<DWORD> capacityMib = registryNumber(key, L"MaxCapacity");
    return !capacityMib || sizeBytes <= qint64(*capacityMib) * 1024 * 1024;
}

/// The volumes of one batch that were found to have a bin, or none, by their root. To answer, the shell reads
/// everything in the bin.
class Volumes
{
public:
    [[nodiscard]] bool haveBinFor(const std::wstring &native, qint64 sizeBytes)
    {
        wchar_t root[MAX_PATH] = {};
        if (!GetVolumePathNameW(native.c_str(), root, MAX_PATH))
            return false;
        const auto known = m_hasBin.find(root);
        const bool hasBin = known != m_hasBin.end() ? known->second : (m_hasBin[root] = ask(root));
        return hasBin && isBinLargeEnough(root, sizeBytes);
    }

private:
    [[nodiscard]] static bool ask(const wchar_t *root)
    {
        SHQUERYRBINFO info = {};
        info.cbSize = sizeof info;
        // On other drives the shell deletes for good, without asking.
        return GetDriveTypeW(root) == DRIVE_FIXED && SHQueryRecycleBinW(root, &info) == S_OK;
    }

    std::map<std::wstring, bool> m_hasBin;
};

/// The shell drops dots and blanks at the end of a name and takes the wrong file.
bool hasPlainNames(const QString &native)
{
    const QStringList names = native.split(QLatin1Char('\\'));
    return std::none_of(names.begin(), names.end(), [](const QString &name) {
        return name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' '));
    });
}

/// With "page.htm" the shell takes a folder "page_files" (or "page-Dateien", ...) along.
bool hasCompanionFolder(const QString &path)
{
    const QFileInfo file(path);
    if (!file.suffix().startsWith(QLatin1String("htm"), Qt::CaseInsensitive))
        return false;
    const QStringList folders = QDir(folderOf(path)).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    const QString base = file.completeBaseName();
    return std::any_of(folders.begin(), folders.end(), [&base](const QString &folder) {
        return folder.size() > base.size() && folder.startsWith(base, Qt::CaseInsensitive) &&
               !folder[base.size()].isLetterOrNumber();
    });
}

/// The form of a path that the shell takes.
QString shellPath(const QString &path)
{
    return QDir::toNativeSeparators(MirrixCore::absolutePath(path));
}

bool canTake(const QString &path, Volumes &volumes)
{
    const QString native = shellPath(path);
    // The shell takes no "\\?\" paths and so nothing longer.
    return native.size() < MAX_PATH && hasPlainNames(native) && !hasCompanionFolder(path) &&
           volumes.haveBinFor(native.toStdWString(), pathState(path).sizeBytes);
}

RecycleBin::Answer callShell(const QStringList &paths)
{
    std::wstring list; // each path ends with a zero, the list with a second one
    for (const QString &path : paths)
        list += shellPath(path).toStdWString() + L'\0';
    list += L'\0';
    SHFILEOPSTRUCTW operation = {};
    operation.wFunc = FO_DELETE;
    operation.pFrom = list.c_str();
    operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
    const int code = SHFileOperationW(&operation);
    return {code, operation.fAnyOperationsAborted != FALSE};
}

/// The shell needs a thread with a single-threaded apartment; the caller's thread may have another kind.
RecycleBin::Answer send(const QStringList &paths)
{
    RecycleBin::Answer answer;
    std::thread shell([&] {
        const HRESULT apartment = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
        answer = callShell(paths);
        if (SUCCEEDED(apartment))
            CoUninitialize();
    });
    shell.join();
    return answer;
}

} // namespace

RecycleBin systemRecycleBin()
{
    const auto volumes = std::make_shared<Volumes>();
    return {filesPerCall, [volumes](const QString &path) { return canTake(path, *volumes); }, send, putBackRecycled};
}

} // namespace Mirrix
