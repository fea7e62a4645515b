#include "core/media/mediafacts.h"

#include <cmath>

namespace MirrixCore {

void setIfEmpty(QString &text, const QString &value)
{
    if (text.isEmpty())
        text = value.trimmed();
}

void addTag(FileEntry &entry, const QString &name, const QString &value)
{
    const QString text = value.trimmed();
    if (!text.isEmpty() && !entry.tags.contains(name))
        entry.tags.insert(name, text);
}

void setSize(FileEntry &entry, const QSize &size)
{
    if (size.isEmpty() || (entry.width >= 1 && entry.height >= 1))
        return;
    entry.width = size.width();
    entry.height = size.height();
}

void setShotTime(FileEntry &entry, const QDateTime &time)
{
    if (!time.isValid())
        return;
    if (entry.shotMs < 1)
        entry.shotMs = time.toMSecsSinceEpoch();
    setIfEmpty(entry.dateTaken, time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
}

void setPosition(FileEntry &entry, double latitude, double longitude)
{
    if (entry.hasGps || !(std::abs(latitude) <= 90) || !(std::abs(longitude) <= 180))
        return;
    entry.latitude = latitude;
    entry.longitude = longitude;
    entry.hasGps = true;
}

QString shortNumber(double number)
{
    return number > 0 ? QString::number(number, 'g', 6) : QString();
}

QString exposureText(double seconds)
{
    constexpr double longestFraction = 0.4; // longer times are written as decimals
    if (!(seconds > 0))
        return {};
    return seconds < longestFraction ? QStringLiteral("1/%1").arg(std::lround(1 / seconds)) : shortNumber(seconds);
}

} // namespace MirrixCore
