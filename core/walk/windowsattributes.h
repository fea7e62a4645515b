#pragma once

#include "core/walk/folderreader.h"

namespace MirrixCore {

// What the file attributes of Windows mean, by the numbers of its interface; here and not among its calls, so that it
// is tested everywhere.

inline constexpr quint32 hiddenAttribute = 0x2;
inline constexpr quint32 folderAttribute = 0x10;
inline constexpr quint32 reparseAttribute = 0x400;

/// Whether the content of a file with these attributes is not on this machine: offline, or recalled at the first access
/// to its data or at opening.
[[nodiscard]] constexpr bool isPlaceholder(quint32 attributes)
{
    return (attributes & (0x1000 | 0x400000 | 0x40000)) != 0;
}

/// Sets what kind of entry has these attributes. A placeholder may carry the mark of a link; a folder with that mark
/// may lead elsewhere.
inline void setKind(FolderItem &item, quint32 attributes)
{
    const bool isLink = attributes & reparseAttribute;
    item.isHidden = attributes & hiddenAttribute;
    item.isPlaceholder = isPlaceholder(attributes);
    item.isFolderLink = isLink && attributes & folderAttribute;
    if (attributes & folderAttribute)
        item.kind = FolderItem::Kind::Folder;
    else
        item.kind = isLink && !item.isPlaceholder ? FolderItem::Kind::Other : FolderItem::Kind::File;
}

} // namespace MirrixCore
