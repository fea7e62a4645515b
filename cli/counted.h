#pragma once

#include <QString>

namespace MirrixCli {

/// "1 file", "2 files".
[[nodiscard]] inline QString counted(qint64 count, const QString &noun)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(noun, count == 1 ? QString() : QStringLiteral("s"));
}

} // namespace MirrixCli
