#include "cli/valuetexts.h"

#include "cli/commandline.h"

#include <QDateTime>
#include <QRegularExpression>

#include <cmath>

namespace MirrixCli {

namespace {

/// Milliseconds in the unit of a span; 0 for none.
qint64 spanUnitMs(QChar unit)
{
    constexpr qint64 hourMs = 3600LL * 1000;
    switch (unit.unicode()) {
    case u'h':
        return hourMs;
    case u'd':
        return 24 * hourMs;
    case u'w':
        return 7 * 24 * hourMs;
    case u'y':
        return 365 * 24 * hourMs;
    default:
        return 0;
    }
}

} // namespace

qint64 sizeFromText(const QString &option, const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,19}(?:\\.[0-9]{1,9})?)([KMGT]?)(?:i?B)?$"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text);
    const QString unit = match.captured(2).toUpper();
    const int power = unit.isEmpty() ? 0 : static_cast<int>(QStringLiteral("KMGT").indexOf(unit)) + 1;
    bool isWhole = false;
    const qint64 whole = match.captured(1).toLongLong(&isWhole);
    constexpr double tooLarge = 9e18;
    const double bytes = std::ldexp(match.captured(1).toDouble(), 10 * power);
    if (!match.hasMatch() || bytes > tooLarge)
        throw UsageError{
            QStringLiteral("--%1 must be a size such as 4096, 512K or 1.5M, not \"%2\"").arg(option, text)};
    return isWhole ? whole << 10 * power : static_cast<qint64>(bytes);
}

qint64 timeFromText(const QString &option, const QString &text, qint64 nowMs)
{
    const qint64 unitMs = text.isEmpty() ? 0 : spanUnitMs(text.back());
    bool isNumber = false;
    const int count = text.chopped(text.isEmpty() ? 0 : 1).toInt(&isNumber);
    if (unitMs > 0 && isNumber && count >= 0)
        return nowMs - count * unitMs;
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    if (!time.isValid())
        throw UsageError{
            QStringLiteral("--%1 must be an age such as 12h, 30d or 4w, or a date such as 2024-01-31, not \"%2\"")
                .arg(option, text)};
    return time.toMSecsSinceEpoch();
}

} // namespace MirrixCli
