#include "actions/cleaning/folderaliases.h"

#include "actions/movefile.h"
#include "actions/nativefile.h"

namespace Mirrix {

bool FolderAliases::isSameFile(const CleaningItem &item)
{
    if (!item.hasKept() || !haveSameNameElsewhere(item.file.path, item.kept.path))
        return false;
    const bool isOneVolume = pathState(item.file.path).identity.volume == pathState(item.kept.path).identity.volume;
    if (isOneVolume && !mayNumberAnew(item.file.path))
        return false;
    return areOne(folderOf(item.file.path), folderOf(item.kept.path));
}

bool FolderAliases::areOne(const QString &folder, const QString &other)
{
    const auto known = m_known.constFind({folder, other});
    if (known != m_known.cend())
        return *known;
    const QString probe = passingName(joinedPath(folder, {}), QStringLiteral(".part"));
    const bool isMade = makeEmptyFile(probe) == FileFault::None;
    const bool areOne = isMade && pathState(joinedPath(other, fileNameOf(probe))).kind != PathState::Kind::Missing;
    if (isMade)
        static_cast<void>(removeFile(probe));
    m_known.insert({folder, other}, areOne);
    return areOne;
}

bool haveSameNameElsewhere(const QString &path, const QString &other)
{
    return fileNameOf(path).compare(fileNameOf(other), Qt::CaseInsensitive) == 0 && folderOf(path) != folderOf(other);
}

} // namespace Mirrix
