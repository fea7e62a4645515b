#include "ui/texts/timetext.h"

#include <QDateTime>

namespace Mirrix {

QString secondText(qint64 ms)
{
    return ms < 1 ? QString() : QDateTime::fromMSecsSinceEpoch(ms).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

} // namespace Mirrix
