#include "actions/files/fileaccess.h"

#include "core/platform/nativepath.h"
#include "core/platform/win32.h"

#include <QRegularExpression>

#include <aclapi.h>
#include <sddl.h>

namespace Mirrix {

namespace {

/// Owner and access list as text; null where they cannot be read.
QString accessTextOf(const QString &path)
{
    constexpr SECURITY_INFORMATION parts = OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;
    std::wstring native = MirrixCore::longPath(MirrixCore::absolutePath(path));
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetNamedSecurityInfoW(native.data(), SE_FILE_OBJECT, parts, nullptr, nullptr, nullptr, nullptr, &descriptor) !=
        ERROR_SUCCESS)
        return {};
    LPWSTR text = nullptr;
    QString result;
    if (ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor, SDDL_REVISION_1, parts, &text, nullptr)) {
        result = QString::fromWCharArray(text);
        LocalFree(text);
    }
    LocalFree(descriptor);
    // Whether a right was inherited from the folder or given to the file makes no difference to who has access.
    result.remove(QRegularExpression(QStringLiteral("D:[A-Z]*(?=\\()")));
    return result.replace(QRegularExpression(QStringLiteral("\\((\\w+);[A-Z]*;")), QStringLiteral("(\\1;;"));
}

} // namespace

bool haveSameAccess(const QString &one, const QString &other)
{
    const QString first = accessTextOf(one);
    return !first.isNull() && first == accessTextOf(other);
}

} // namespace Mirrix
