#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <vector>

namespace Mirrix {

// The record of one cleaning run: what it was, the files it was to act on, and what was done with each.

/// The method of a run that removed empty folders; its items are these.
inline const QString emptyFoldersMethod = QStringLiteral("empty-folders");

/// What a run was asked to do.
struct RunHeader
{
    QString id;           ///< see newRunId
    qint64 startedMs = 0; ///< milliseconds since the Unix epoch
    QString command;      ///< "window", or the console's command line
    QString method;       ///< a name as of methodName, emptyFoldersMethod, or "undo " and one of these
    QString target;       ///< folder of a move or backup; may be empty
    QString rule;         ///< what chose the files; may be empty
    qint64 planned = 0;   ///< number of files
    QString undoOf;       ///< id of the run that this one undoes; may be empty

    bool operator==(const RunHeader &) const = default;
};

/// One file that a run is to act on, as it was before.
struct RunItem
{
    QString original; ///< its path
    QString kept;     ///< path of the equal file that stays; may be empty
    qint64 sizeBytes = 0;
    qint64 modifiedMs = 0;    ///< milliseconds since the Unix epoch
    qint64 modifiedExact = 0; ///< the same time in the system's own finest unit
    quint32 mode = 0;         ///< permissions (POSIX) or attributes (Windows)
    QString digest;           ///< "md5:..." or "blake3:..."; may be empty
    QString reason;           ///< why this file and not the kept one; may be empty
    QString aside;            ///< path under which the file is set aside during the run; may be empty
    QString linkTarget = {};  ///< where a link in its place leads, other than to the kept file; usually empty

    bool operator==(const RunItem &) const = default;
};

enum class ItemState : quint8
{
    Planned, ///< nothing is recorded; after a crash the disk knows
    Done,
    Failed,
    Undone
};

/// What was done with one file of a run. Of several outcomes for one file the last one counts.
struct ItemOutcome
{
    qsizetype item = 0; ///< index in the run's list
    ItemState state = ItemState::Planned;
    QString now; ///< where the file is: path in the backup, of the move, in the trash, set aside; empty when nowhere
    QString message; ///< why it failed; may be empty
    QString digest;  ///< as that of the item, when it became known only then; may be empty
    qint64 freedBytes = 0;
    qint64 heldBytes = 0; ///< held in a backup or bin

    bool operator==(const ItemOutcome &) const = default;
};

/// "planned", "done", "failed" or "undone".
[[nodiscard]] QString stateName(ItemState state);

/// Counts the files of a run by their latest outcomes. 24 bytes a file.
class RunTally
{
public:
    struct Totals
    {
        qint64 done = 0;
        qint64 failed = 0;
        qint64 undone = 0;
        qint64 freedBytes = 0; ///< of what is done and not undone
        qint64 heldBytes = 0;

        bool operator==(const Totals &) const = default;
    };

    /// Outcomes of items from `items` on are ignored.
    explicit RunTally(qint64 items = 0)
        : m_limit(items)
    {}

    void add(const ItemOutcome &outcome);
    [[nodiscard]] const Totals &totals() const { return m_totals; }

private:
    struct Share
    {
        ItemState state = ItemState::Planned;
        qint64 freedBytes = 0;
        qint64 heldBytes = 0;
    };

    void count(const Share &share, int sign);

    qint64 m_limit = 0;
    std::vector<Share> m_shares;
    Totals m_totals;
};

// The texts of the records: compact JSON in UTF-8. One with the member "run", then some with "planned" (lists of rows,
// all files in their order), some with "outcomes" (lists of rows), and one with "end"; after it may follow more
// outcomes. Rows are arrays; reading takes what is missing as empty and ignores what it does not know.

inline constexpr char plannedMember[] = "planned";
inline constexpr char outcomesMember[] = "outcomes";
inline constexpr char endMember[] = "end";

[[nodiscard]] QByteArray headerText(const RunHeader &header);
[[nodiscard]] QByteArray rowText(const RunItem &item);
[[nodiscard]] QByteArray rowText(const ItemOutcome &outcome);
[[nodiscard]] QByteArray endText(const RunTally::Totals &totals);

/// The text of a record with as many of `rows` from `begin` on as one record takes; moves `begin` behind them.
[[nodiscard]] QByteArray rowsText(const char *member, const QByteArrayList &rows, qsizetype &begin);

/// False when the record is no "run".
[[nodiscard]] bool readHeader(const QJsonObject &record, RunHeader &header);
[[nodiscard]] RunItem itemOf(const QJsonArray &row);
[[nodiscard]] ItemOutcome outcomeOf(const QJsonArray &row);

} // namespace Mirrix
