#include "core/scan/locationkinds.h"

#include "core/walk/pathrules.h"

#include <algorithm>

namespace MirrixCore {

LocationKinds::LocationKinds(const ScanOptions &options)
{
    for (const ScanLocation &location : options.locations)
        m_places.append({cleanedPath(location.path), static_cast<FindKind>(location.findKind)});
    std::stable_sort(m_places.begin(), m_places.end(),
                     [](const Place &a, const Place &b) { return a.folder.size() > b.folder.size(); });
}

bool LocationKinds::isUniform() const
{
    return std::all_of(m_places.begin(), m_places.end(),
                       [this](const Place &place) { return place.kind == m_places.constFirst().kind; });
}

FindKind LocationKinds::uniformKind() const
{
    return m_places.isEmpty() ? FindKind::ContentDuplicates : m_places.constFirst().kind;
}

FindKind LocationKinds::kindOf(const QString &path) const
{
    for (const Place &place : m_places) {
        if (isUnderFolder(path, place.folder))
            return place.kind;
    }
    return FindKind::ContentDuplicates;
}

} // namespace MirrixCore
