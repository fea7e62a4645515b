#include "actions/records/cleaningmethod.h"

#include <algorithm>
#include <array>

namespace Mirrix {

namespace {

const std::array<QString, 8> &methodNames()
{
    static const std::array<QString, 8> names = {
        QStringLiteral("recycle"),        QStringLiteral("delete"),          QStringLiteral("move"),
        QStringLiteral("symlink"),        QStringLiteral("hardlink"),        QStringLiteral("backup"),
        QStringLiteral("backup+symlink"), QStringLiteral("backup+hardlink"),
    };
    return names;
}

} // namespace

QString methodName(CleaningMethod method)
{
    return methodNames()[static_cast<size_t>(method)];
}

std::optional<CleaningMethod> methodNamed(const QString &name)
{
    const auto found = std::find(methodNames().begin(), methodNames().end(), name);
    return found == methodNames().end() ? std::nullopt
                                        : std::optional(static_cast<CleaningMethod>(found - methodNames().begin()));
}

bool isDestroying(CleaningMethod method)
{
    return method == CleaningMethod::Delete || method == CleaningMethod::SymbolicLink ||
           method == CleaningMethod::HardLink;
}

bool isLinking(CleaningMethod method)
{
    return method == CleaningMethod::SymbolicLink || method == CleaningMethod::HardLink ||
           method == CleaningMethod::BackupAndSymbolicLink || method == CleaningMethod::BackupAndHardLink;
}

bool isBackingUp(CleaningMethod method)
{
    return method == CleaningMethod::Backup || method == CleaningMethod::BackupAndSymbolicLink ||
           method == CleaningMethod::BackupAndHardLink;
}

} // namespace Mirrix
