#include "core/match/locationkinds.h"

#include "core/platform/pathtext.h"

#include <algorithm>
#include <functional>

namespace MirrixCore {

LocationKinds::LocationKinds(const ScanOptions &options)
    : m_showRemaining(options.showRemaining)
{
    for (const ScanLocation &location : options.locations) {
        const QString folder = comparablePath(cleanedPath(location.path));
        if (m_places.contains(folder)) // the first one counts
            continue;
        m_places.insert(folder, {location.kind(), location.showRemaining});
        if (!m_lengths.contains(folder.size()))
            m_lengths.append(folder.size());
    }
    std::sort(m_lengths.begin(), m_lengths.end(), std::greater());
}

bool LocationKinds::isUniform() const
{
    return std::all_of(m_places.begin(), m_places.end(),
                       [this](const Place &place) { return place.kind == uniformKind(); });
}

FindKind LocationKinds::uniformKind() const
{
    return m_places.isEmpty() ? FindKind::ContentDuplicates : m_places.cbegin()->kind;
}

const LocationKinds::Place *LocationKinds::placeOf(const QString &path) const
{
    if (m_places.isEmpty())
        return nullptr;
    const QString comparable = comparablePath(path);
    for (const qsizetype length : m_lengths) {
        if (!isBelow(comparable, QStringView(comparable).left(length)))
            continue;
        const auto found = m_places.constFind(comparable.left(length));
        if (found != m_places.cend())
            return &*found;
    }
    return nullptr;
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
