#include "cli/logtexts.h"

#include "actions/cleaning/cleaningplan.h"
#include "app/sizetext.h"
#include "cli/counted.h"

#include <QHash>
#include <QRegularExpression>

namespace MirrixCli {

namespace {

/// By the method's number in the record.
QString removalText(int method)
{
    const QStringList texts = {QStringLiteral("moved to the recycle bin"), QStringLiteral("deleted"),
                               QStringLiteral("moved"), QStringLiteral("replaced with symbolic links"),
                               QStringLiteral("replaced with hard links")};
    return texts.value(method, QStringLiteral("removed"));
}

QString actionText(const QString &action)
{
    static const QHash<QString, QString> texts = {
        {QStringLiteral("app_start"), QStringLiteral("program started")},
        {QStringLiteral("app_quit"), QStringLiteral("program closed")},
        {QStringLiteral("scan_start"), QStringLiteral("scan started")},
        {QStringLiteral("scan_done"), QStringLiteral("scan finished")},
        {QStringLiteral("auto_keep"), QStringLiteral("surplus files chosen")},
        {QStringLiteral("backup_batch"), QStringLiteral("moved to the backup folder")},
        {QStringLiteral("auto_backup_delete_batch"), QStringLiteral("backed up and removed")},
        {QStringLiteral("empty_folders"), QStringLiteral("empty folders to remove")},
        {QStringLiteral("empty_folders_removed"), QStringLiteral("empty folders removed")},
        {QStringLiteral("restore"), QStringLiteral("restored")},
        {QStringLiteral("export"), QStringLiteral("exported")},
        {QStringLiteral("export_copy"), QStringLiteral("copies exported")},
    };
    return texts.value(action, action);
}

/// The numbers of a detail such as "method=1 count=2", by name; empty when it is anything else.
QHash<QString, QString> numbersIn(const QString &detail)
{
    static const QRegularExpression number(QStringLiteral("^([a-z]+)=(\\d+)$"));
    QHash<QString, QString> numbers;
    for (const QString &piece : detail.split(QLatin1Char(' '))) {
        const QRegularExpressionMatch match = number.match(piece);
        if (!match.hasMatch())
            return {};
        numbers.insert(match.captured(1), match.captured(2));
    }
    return numbers;
}

QString detailText(const Mirrix::LogEntry &entry)
{
    const QHash<QString, QString> numbers = numbersIn(entry.detail);
    const QString count = numbers.value(QStringLiteral("count"));
    if (entry.action == QLatin1String("app_start") || entry.action == QLatin1String("app_quit"))
        return {};
    if (numbers.contains(QStringLiteral("groups")))
        return QStringLiteral("%1, %2 reclaimable")
            .arg(counted(numbers[QStringLiteral("groups")].toLongLong(), QStringLiteral("group")),
                 Mirrix::sizeText(numbers.value(QStringLiteral("wasted")).toLongLong()));
    if (count.isEmpty())
        return entry.detail;
    if (const int rule = numbers.value(QStringLiteral("rule"), QStringLiteral("-1")).toInt(); rule >= 0 && rule <= 3)
        return QStringLiteral("%1, keeping the %2")
            .arg(counted(count.toLongLong(), QStringLiteral("file")),
                 Mirrix::ruleName(static_cast<Mirrix::KeepRule>(rule)));
    if (numbers.contains(QStringLiteral("of")))
        return QStringLiteral("%1 of %2").arg(count, numbers[QStringLiteral("of")]);
    return counted(count.toLongLong(), QStringLiteral("file"));
}

} // namespace

QString logText(const Mirrix::LogEntry &entry)
{
    const QHash<QString, QString> numbers = numbersIn(entry.detail);
    const QString action = entry.action == QLatin1String("remove_batch")
                               ? removalText(numbers.value(QStringLiteral("method"), QStringLiteral("-1")).toInt())
                               : actionText(entry.action);
    const QString detail = detailText(entry);
    return detail.isEmpty() ? action : action + QLatin1String(": ") + detail;
}

} // namespace MirrixCli
