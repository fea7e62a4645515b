#include "core/platform/pathtext.h"

#include <QDir>

#include <algorithm>

namespace MirrixCore {

QString cleanedPath(const QString &path)
{
    const QString clean = QDir::cleanPath(QDir::fromNativeSeparators(path));
    // "C:" alone means the current folder of that drive to the system, and the whole drive to users.
    const bool isBareDrive = clean.size() == 2 && clean[1] == QLatin1Char(':') && clean[0].isLetter();
    return isBareDrive ? clean + QLatin1Char('/') : clean;
}

QString comparablePath(const QString &path)
{
    return QDir::cleanPath(path).replace(QLatin1Char('\\'), QLatin1Char('/')).toLower();
}

bool isBelow(QStringView path, QStringView folder)
{
    if (!path.startsWith(folder))
        return false;
    return path.size() == folder.size() || folder.endsWith(QLatin1Char('/')) || path[folder.size()] == QLatin1Char('/');
}

bool isUnderFolder(const QString &path, const QString &folder)
{
    return isBelow(comparablePath(path), comparablePath(folder));
}

QStringView folderOf(QStringView path)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    const bool isRoot = slash == 0 || (slash == 2 && path[1] == QLatin1Char(':'));
    return path.left(isRoot ? slash + 1 : std::max<qsizetype>(slash, 0));
}

QStringView nameOf(QStringView path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

QString suffixOf(QStringView path)
{
    const QStringView name = nameOf(path);
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? QString() : name.mid(dot + 1).toString().toLower();
}

QString joinedPath(const QString &folder, const QString &name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

int compareCodePoints(QStringView a, QStringView b)
{
    // By units, characters beyond the basic plane, which are pairs of surrogates, would come before U+E000 to U+FFFF.
    const auto rank = [](char16_t unit) -> int {
        if (unit < 0xD800)
            return unit;
        return unit < 0xE000 ? unit + 0x2000 : unit - 0x800;
    };
    const auto [inA, inB] = std::mismatch(a.utf16(), a.utf16() + std::min(a.size(), b.size()), b.utf16());
    const qsizetype equal = inA - a.utf16();
    if (equal == std::min(a.size(), b.size()))
        return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
    return rank(*inA) - rank(*inB);
}

} // namespace MirrixCore
