#include "core/scan/locationkinds.h"

#include "core/walk/pathrules.h"

#include <algorithm>

namespace MirrixCore {

LocationKinds::LocationKinds(const ScanOptions &options)
    : m_showRemaining(options.showRemaining)
{
    for (const ScanLocation &location : options.locations)
        m_places.append({cleanedPath(location.path), static_cast<FindKind>(location.findKind), location.showRemaining});
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

const LocationKinds::Place *LocationKinds::placeOf(const QString &path) const
{
    const auto found = std::find_if(m_places.begin(), m_places.end(),
                                    [&](const Place &place) { return isUnderFolder(path, place.folder); });
    return found == m_places.end() ? nullptr : &*found;
}

FindKind LocationKinds::kindOf(const QString &path) const
{
    const Place *place = placeOf(path);
    return place ? place->kind : FindKind::ContentDuplicates;
}

bool LocationKinds::showRemaining() const
{
    const auto shows = [](const Place &place) { return place.showRemaining; };
    return m_places.isEmpty() ? m_showRemaining : std::any_of(m_places.begin(), m_places.end(), shows);
}

bool LocationKinds::showRemainingOf(const QString &path) const
{
    const Place *place = placeOf(path);
    return place ? place->showRemaining : m_places.isEmpty() && m_showRemaining;
}

} // namespace MirrixCore
