#include "actions/cleaning/folderaliases.h"

#include "actions/files/movefile.h"
#include "actions/files/nativefile.h"

namespace Mirrix {

bool FolderAliases::isSameFile(const CleaningItem &item)
{
    if (!item.hasKept() || !haveSameNameElsewhere(item.file.path, item.kept.path))
        return false;
    const std::pair folders(folderOf(item.file.path), folderOf(item.kept.path));
    const auto known = m_known.constFind(folders);
    if (known != m_known.cend())
        return *known;
    const bool isOneVolume = pathState(item.file.path).identity.volume == pathState(item.kept.path).identity.volume;
    const bool isSure = isOneVolume && !mayReassignFileIds(item.file.path);
    const bool isOne = !isSure && areOne(folders.first, folders.second);
    m_known.insert(folders, isOne);
    return isOne;
}

bool FolderAliases::areOne(const QString &folder, const QString &other)
{
    // A new file in one folder that appears in the other proves that they are one.
    const QString probe = temporaryName(joinedPath(folder, {}), QStringLiteral(".part"));
    const bool isMade = makeEmptyFile(probe) == FileFault::None;
    const bool areOne = isMade && pathState(joinedPath(other, fileNameOf(probe))).kind != PathState::Kind::Missing;
    if (isMade)
        static_cast<void>(removeFile(probe));
    return areOne;
}

bool haveSameNameElsewhere(const QString &path, const QString &other)
{
    return fileNameOf(path).compare(fileNameOf(other), Qt::CaseInsensitive) == 0 && folderOf(path) != folderOf(other);
}

} // namespace Mirrix
