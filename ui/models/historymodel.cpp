#include "ui/models/historymodel.h"

#include "actions/cleaning/undo.h"
#include "app/text.h"
#include "ui/models/logmodel.h"
#include "ui/state/backgroundthreads.h"
#include "ui/texts/bytetext.h"
#include "ui/texts/historytexts.h"
#include "ui/texts/resulttexts.h"
#include "ui/texts/timetext.h"

#include <QTextDocument>

#include <utility>

namespace Mirrix {

namespace {

QString sizeOrNone(qint64 bytes)
{
    return bytes > 0 ? formatSize(bytes) : QString();
}

/// Names of files may look like markup.
QString tip(const QString &text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<qt>") + text.toHtmlEscaped() : text;
}

} // namespace

HistoryModel::~HistoryModel()
{
    for (Run &run : m_runs)
        discardInBackground(std::move(run.files));
}

void HistoryModel::setRuns(const QList<RunSummary> &runs)
{
    beginResetModel();
    for (Run &run : m_runs)
        discardInBackground(std::move(run.files));
    m_runs.clear();
    for (const RunSummary &run : runs)
        m_runs.push_back({run, {}, false});
    m_matches.reset();
    showAll();
    endResetModel();
}

void HistoryModel::setMatches(std::optional<RunMatches> matches)
{
    beginResetModel();
    m_matches = std::move(matches);
    showAll();
    endResetModel();
}

void HistoryModel::showAll()
{
    m_shown.clear();
    m_rowOf.assign(m_runs.size(), -1);
    for (size_t run = 0; run < m_runs.size(); ++run) {
        m_runs[run].isRequested = false;
        if (m_matches && !m_matches->contains(m_runs[run].summary.header.id))
            continue;
        m_rowOf[run] = static_cast<int>(m_shown.size());
        m_shown.push_back(run);
    }
}

void HistoryModel::setFiles(const QString &runId, std::shared_ptr<const StoredRun> files)
{
    const QModelIndex index = runIndex(runId);
    if (!index.isValid())
        return;
    Run &run = m_runs[runOf(index)];
    if (const int before = fileCount(run); before > 0) {
        beginRemoveRows(index, 0, before - 1);
        discardInBackground(std::exchange(run.files, {}));
        endRemoveRows();
    }
    Run shown = {files->summary, std::move(files), false};
    if (const int count = fileCount(shown); count > 0) {
        beginInsertRows(index, 0, count - 1);
        run = std::move(shown);
        endInsertRows();
    } else {
        run = std::move(shown);
    }
    emit dataChanged(index, index.siblingAtColumn(ColumnCount - 1));
}

QStringList HistoryModel::runsBefore(qint64 ms) const
{
    QStringList ids;
    for (const Run &run : m_runs) {
        if (run.summary.header.startedMs > 0 && run.summary.header.startedMs < ms)
            ids.append(run.summary.header.id);
    }
    return ids;
}

QList<SearchedRun> HistoryModel::searched() const
{
    QList<SearchedRun> runs;
    for (const Run &run : m_runs)
        runs.append({run.summary.header.id, run.files});
    return runs;
}

QModelIndex HistoryModel::runIndex(const QString &runId) const
{
    for (size_t row = 0; row < m_shown.size(); ++row) {
        if (m_runs[m_shown[row]].summary.header.id == runId)
            return createIndex(static_cast<int>(row), 0, quintptr(m_shown[row]));
    }
    return {};
}

qsizetype HistoryModel::itemAt(size_t run, int row) const
{
    return m_matches ? m_matches->constFind(m_runs[run].summary.header.id).value()[static_cast<size_t>(row)] : row;
}

QList<qsizetype> HistoryModel::itemsIn(const QModelIndex &run, int top, int bottom) const
{
    QList<qsizetype> items;
    items.reserve(bottom - top + 1);
    for (int row = top; row <= bottom; ++row)
        items.append(itemAt(runOf(run), row));
    return items;
}

std::function<QString()> HistoryModel::namesOf(const QItemSelection &rows) const
{
    struct Piece
    {
        std::shared_ptr<const StoredRun> files; ///< none: the names are known
        QList<qsizetype> items;
        QStringList names;
    };
    QList<Piece> pieces;
    for (const QItemSelectionRange &range : rows) {
        const QModelIndex run = range.parent();
        if (run.isValid())
            pieces.append({m_runs[runOf(run)].files, itemsIn(run, range.top(), range.bottom()), {}});
        for (int row = range.top(); row <= range.bottom() && !run.isValid(); ++row)
            pieces.append({{}, {}, {runText(m_runs[m_shown[size_t(row)]].summary, NameColumn)}});
    }
    return [pieces] {
        QStringList names;
        for (const Piece &piece : pieces) {
            names += piece.names;
            for (const qsizetype item : piece.items)
                names.append(shownPath(piece.files->items[item].original));
        }
        return names.join(QLatin1Char('\n'));
    };
}

int HistoryModel::fileCount(const Run &run) const
{
    if (!run.files)
        return 0;
    if (!m_matches)
        return static_cast<int>(run.files->items.size());
    const auto found = m_matches->constFind(run.summary.header.id);
    return found == m_matches->constEnd() ? 0 : static_cast<int>(found->size());
}

void HistoryModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

QModelIndex HistoryModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column < 0 || column >= ColumnCount || row >= rowCount(parent))
        return {};
    return createIndex(row, column, parent.isValid() ? parent.internalId() | fileBit : quintptr(m_shown[size_t(row)]));
}

QModelIndex HistoryModel::parent(const QModelIndex &child) const
{
    if (!child.isValid() || !isFile(child))
        return {};
    return createIndex(m_rowOf[runOf(child)], 0, quintptr(runOf(child)));
}

int HistoryModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_shown.size());
    return isFile(parent) || parent.column() != 0 ? 0 : fileCount(m_runs[runOf(parent)]);
}

int HistoryModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

bool HistoryModel::hasChildren(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return !m_shown.empty();
    if (isFile(parent) || parent.column() != 0)
        return false;
    const Run &run = m_runs[runOf(parent)];
    return run.files ? fileCount(run) > 0 : run.summary.isReadable && run.summary.header.planned > 0;
}

bool HistoryModel::canFetchMore(const QModelIndex &parent) const
{
    if (!parent.isValid() || !hasChildren(parent))
        return false;
    const Run &run = m_runs[runOf(parent)];
    return !run.files && !run.isRequested;
}

void HistoryModel::fetchMore(const QModelIndex &parent)
{
    if (!canFetchMore(parent))
        return;
    Run &run = m_runs[runOf(parent)];
    run.isRequested = true;
    emit filesRequested(run.summary.header.id);
}

Qt::ItemFlags HistoryModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags common = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return isFile(index) ? common | Qt::ItemNeverHasChildren : common;
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Run &run = m_runs[runOf(index)];
    if (role == Qt::TextAlignmentRole && index.column() >= FreedColumn)
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    const bool isTip = role == Qt::ToolTipRole;
    if (!isFile(index)) {
        if (role != Qt::DisplayRole && !isTip)
            return {};
        const bool isProblem = isTip && !run.summary.message.isEmpty();
        const QString text = isProblem ? run.summary.message : runText(run.summary, index.column());
        return isTip ? tip(text) : text;
    }
    const qsizetype item = itemAt(runOf(index), index.row());
    if (role == pathRole) {
        const ItemOutcome &outcome = run.files->outcomes[item];
        const bool isElsewhere = outcome.state != ItemState::Undone && !outcome.now.isEmpty();
        return isElsewhere ? outcome.now : run.files->items[item].original;
    }
    if (role != Qt::DisplayRole && !isTip)
        return {};
    const QString text = fileText(*run.files, item, index.column());
    return isTip ? tip(text) : text;
}

QString HistoryModel::runText(const RunSummary &run, int column) const
{
    const bool isOwnRun = !isUndoing(run.header);
    switch (column) {
    case NameColumn:
        return secondText(run.header.startedMs);
    case PlaceColumn:
        return runMethodText(run.header);
    case KeptColumn:
        return QStringLiteral("%1 / %2").arg(run.totals.done + run.totals.undone).arg(run.header.planned);
    case StateColumn:
        return runStateText(run);
    case FreedColumn:
        return isOwnRun ? sizeOrNone(run.totals.freedBytes) : QString();
    case HeldColumn:
        return isOwnRun ? sizeOrNone(run.totals.heldBytes) : QString();
    default:
        return {};
    }
}

QString HistoryModel::fileText(const StoredRun &run, qsizetype item, int column) const
{
    const ItemOutcome &outcome = run.outcomes[item];
    switch (column) {
    case NameColumn:
        return shownPath(run.items[item].original);
    case PlaceColumn:
        return shownPath(outcome.now);
    case KeptColumn:
        return shownPath(run.items[item].kept);
    case StateColumn:
        return fileStateText(run.summary.header, outcome);
    case FreedColumn:
        return outcome.state == ItemState::Done ? sizeOrNone(outcome.freedBytes) : QString();
    case HeldColumn:
        return outcome.state == ItemState::Done ? sizeOrNone(outcome.heldBytes) : QString();
    default:
        return {};
    }
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue((section >= FreedColumn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return Text::tr("时间 / 文件");
    case PlaceColumn:
        return Text::tr("方式 / 现在位置");
    case KeptColumn:
        return Text::tr("文件数 / 保留的副本");
    case StateColumn:
        return Text::tr("状态");
    case FreedColumn:
        return Text::tr("已释放");
    case HeldColumn:
        return Text::tr("仍占用");
    default:
        return {};
    }
}

} // namespace Mirrix
