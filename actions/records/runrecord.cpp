#include "actions/records/runrecord.h"

#include "actions/records/jsontext.h"

#include <QJsonValue>

#include <algorithm>
#include <array>

namespace Mirrix {

namespace {

const std::array<QString, 4> &stateNames()
{
    static const std::array<QString, 4> names = {QStringLiteral("planned"), QStringLiteral("done"),
                                                 QStringLiteral("failed"), QStringLiteral("undone")};
    return names;
}

ItemState stateNamed(const QString &name)
{
    const auto found = std::find(stateNames().begin(), stateNames().end(), name);
    return found == stateNames().end() ? ItemState::Planned : static_cast<ItemState>(found - stateNames().begin());
}

/// Wraps round: no sum of what a journal says may be undefined.
void addTo(qint64 &sum, qint64 bytes, int sign)
{
    sum = static_cast<qint64>(static_cast<quint64>(sum) + static_cast<quint64>(bytes) * static_cast<quint64>(sign));
}

} // namespace

QString stateName(ItemState state)
{
    return stateNames()[static_cast<size_t>(state)];
}

void RunTally::add(const ItemOutcome &outcome)
{
    if (outcome.item < 0 || outcome.item >= m_limit)
        return;
    const auto index = static_cast<size_t>(outcome.item);
    if (index >= m_shares.size())
        m_shares.resize(std::max(index + 1, std::min(m_shares.size() * 2, static_cast<size_t>(m_limit))));
    Share &share = m_shares[index];
    count(share, -1);
    share = {outcome.state, outcome.freedBytes, outcome.heldBytes};
    count(share, 1);
}

void RunTally::count(const Share &share, int sign)
{
    m_totals.done += share.state == ItemState::Done ? sign : 0;
    m_totals.failed += share.state == ItemState::Failed ? sign : 0;
    m_totals.undone += share.state == ItemState::Undone ? sign : 0;
    if (share.state == ItemState::Done) {
        addTo(m_totals.freedBytes, share.freedBytes, sign);
        addTo(m_totals.heldBytes, share.heldBytes, sign);
    }
}

QByteArray headerText(const RunHeader &header)
{
    const QByteArray members = JsonPieces()
                                   .add("id", header.id)
                                   .add("startedMs", header.startedMs)
                                   .add("command", header.command)
                                   .add("method", header.method)
                                   .add("target", header.target)
                                   .add("rule", header.rule)
                                   .add("planned", header.planned)
                                   .add("undoOf", header.undoOf)
                                   .object();
    return "{\"run\":" + members + '}';
}

QByteArray rowText(const RunItem &item)
{
    return JsonPieces()
        .add(item.original)
        .add(item.kept)
        .add(item.sizeBytes)
        .add(item.modifiedMs)
        .add(item.modifiedExact)
        .add(qint64(item.mode))
        .add(item.digest)
        .add(item.reason)
        .add(item.aside)
        .add(item.linkTarget)
        .row();
}

QByteArray rowText(const ItemOutcome &outcome)
{
    return JsonPieces()
        .add(qint64(outcome.item))
        .add(stateName(outcome.state))
        .add(outcome.now)
        .add(outcome.message)
        .add(outcome.digest)
        .add(outcome.freedBytes)
        .add(outcome.heldBytes)
        .row();
}

QByteArray endText(const RunTally::Totals &totals)
{
    const QByteArray members = JsonPieces()
                                   .add("done", totals.done)
                                   .add("failed", totals.failed)
                                   .add("freedBytes", totals.freedBytes)
                                   .add("heldBytes", totals.heldBytes)
                                   .object();
    return "{\"" + QByteArray(endMember) + "\":" + members + '}';
}

QByteArray rowsText(const char *member, const QByteArrayList &rows, qsizetype &begin)
{
    constexpr qsizetype mostRows = 256;
    constexpr qsizetype enoughBytes = 1024 * 1024;
    QByteArray text = "{\"" + QByteArray(member) + "\":[";
    const qsizetype end = std::min(rows.size(), begin + mostRows);
    while (begin < end && text.size() < enoughBytes)
        text.append(rows[begin++]).append(',');
    text.back() = ']';
    return text + '}';
}

bool readHeader(const QJsonObject &record, RunHeader &header)
{
    const QJsonValue run = record[QLatin1String("run")];
    header = {run[QLatin1String("id")].toString(),       run[QLatin1String("startedMs")].toInteger(),
              run[QLatin1String("command")].toString(),  run[QLatin1String("method")].toString(),
              run[QLatin1String("target")].toString(),   run[QLatin1String("rule")].toString(),
              run[QLatin1String("planned")].toInteger(), run[QLatin1String("undoOf")].toString()};
    return run.isObject();
}

RunItem itemOf(const QJsonArray &row)
{
    return {row[0].toString(),  row[1].toString(),  row[2].toInteger(),
            row[3].toInteger(), row[4].toInteger(), static_cast<quint32>(row[5].toInteger()),
            row[6].toString(),  row[7].toString(),  row[8].toString(),
            row[9].toString()};
}

ItemOutcome outcomeOf(const QJsonArray &row)
{
    return {static_cast<qsizetype>(row[0].toInteger(-1)),
            stateNamed(row[1].toString()),
            row[2].toString(),
            row[3].toString(),
            row[4].toString(),
            row[5].toInteger(),
            row[6].toInteger()};
}

} // namespace Mirrix
