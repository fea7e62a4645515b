#include "ui/state/windowplace.h"

#include <algorithm>

namespace Mirrix {

namespace {

constexpr QMargins frame(8, 36, 8, 8); ///< generous: borders and caption differ from system to system

qint64 areaOf(const QRect &rect)
{
    return rect.isEmpty() ? 0 : qint64(rect.width()) * rect.height();
}

} // namespace

QRect firstPlace(const QSize &ideal, const QRect &screen)
{
    const QRect room = screen.marginsRemoved(frame);
    QRect place({}, ideal.boundedTo(room.size()));
    place.moveCenter(room.center());
    return place;
}

QRect restoredGeometry(const QRect &earlier, const QList<QRect> &screens)
{
    QRect best;
    for (const QRect &screen : screens) {
        if (areaOf(screen & earlier) > areaOf(best & earlier))
            best = screen;
    }
    if (best.isEmpty())
        return {};
    const QRect room = best.marginsRemoved(frame);
    QRect place(earlier.topLeft(), earlier.size().boundedTo(room.size()));
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() + 1 - place.height()));
    return place;
}

} // namespace Mirrix
