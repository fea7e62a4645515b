#include "ui/texts/bytetext.h"

namespace Mirrix {

QString formatSize(qint64 bytes)
{
    constexpr qint64 kilo = 1024;
    constexpr qint64 mega = kilo * 1024;
    constexpr qint64 giga = mega * 1024;
    const auto in = [bytes](qint64 unit, int decimals) {
        return QString::number(static_cast<double>(bytes) / static_cast<double>(unit), 'f', decimals);
    };
    if (bytes >= giga)
        return QStringLiteral("%1 GB").arg(in(giga, 2));
    if (bytes >= mega)
        return QStringLiteral("%1 MB").arg(in(mega, 2));
    if (bytes >= kilo)
        return QStringLiteral("%1 KB").arg(in(kilo, 1));
    return QStringLiteral("%1 B").arg(bytes);
}

} // namespace Mirrix
