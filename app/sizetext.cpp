#include "app/sizetext.h"

namespace Mirrix {

QString sizeText(qint64 bytes)
{
    struct Unit
    {
        int shift;
        int decimals;
        const char *name;
    };
    static constexpr Unit units[] = {{40, 2, "TB"}, {30, 2, "GB"}, {20, 1, "MB"}, {10, 0, "KB"}};
    for (const Unit &unit : units) {
        if (bytes >= qint64(1) << unit.shift) {
            const double count = static_cast<double>(bytes) / static_cast<double>(qint64(1) << unit.shift);
            return QString::number(count, 'f', unit.decimals) + QLatin1Char(' ') + QLatin1String(unit.name);
        }
    }
    return QString::number(bytes) + QLatin1String(" B");
}

} // namespace Mirrix
