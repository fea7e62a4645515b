#include "actions/files/binlookup.h"

#include "core/platform/nativepath.h"
#include "core/platform/win32.h"

#include <QDir>

#include <sddl.h>

#include <vector>

namespace Mirrix {

namespace {

/// The security identifier of the user, by which the bins are named; empty on failure.
QString userSid()
{
    HANDLE raw = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &raw))
        return {};
    const MirrixCore::UniqueHandle token(raw);
    DWORD size = 0;
    GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    std::vector<unsigned char> buffer(size);
    wchar_t *text = nullptr;
    if (size == 0 || !GetTokenInformation(token.get(), TokenUser, buffer.data(), size, &size) ||
        !ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER *>(buffer.data())->User.Sid, &text))
        return {};
    const QString sid = MirrixCore::textFromWide(text);
    LocalFree(text);
    return sid;
}

} // namespace

QList<BinFolder> binFoldersFor(const QString &path)
{
    static const QString sid = userSid();
    const std::wstring native = QDir::toNativeSeparators(path).toStdWString();
    std::vector<wchar_t> root(native.size() + MAX_PATH);
    if (sid.isEmpty() || !GetVolumePathNameW(native.c_str(), root.data(), static_cast<DWORD>(root.size())))
        return {};
    const QString top = QDir::fromNativeSeparators(MirrixCore::textFromWide(root.data()));
    return {{BinFolder::Layout::RecycleBin, top + QLatin1String("$Recycle.Bin/") + sid, {}}};
}

} // namespace Mirrix
