#pragma once

#include <QString>

namespace MirrixCli {

// What people write as values of options. Each throws a UsageError that names `option`.

/// Bytes from "1048576", "512K", "1.5M", "2G", "1T": powers of 1024, letter case ignored, "B" and "iB" may follow.
[[nodiscard]] qint64 sizeFromText(const QString &option, const QString &text);

/// Milliseconds since 1970 from a span before `nowMs` ("12h", "30d", "4w", "1y" of 365 days) or from a date, with or
/// without a time, in local time ("2024-01-31", "2024-01-31T18:30").
[[nodiscard]] qint64 timeFromText(const QString &option, const QString &text, qint64 nowMs);

} // namespace MirrixCli
