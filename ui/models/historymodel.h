#pragma once

#include "ui/state/historysearch.h"

#include <QAbstractItemModel>
#include <QItemSelection>
#include <QList>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Mirrix {

/// The cleaning runs, in the order of their list, and below each its files. Files are asked for when a run is opened
/// and may be given later. No node objects: an index's internal id is the run's number, with the highest bit set for
/// files. Interface thread only; each call takes time for runs, not for files.
class HistoryModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// Of runs and of files.
    enum Column
    {
        NameColumn,  ///< time; old path
        PlaceColumn, ///< method; where the file is now
        KeptColumn,  ///< number of files; path of the kept copy
        StateColumn,
        FreedColumn,
        HeldColumn,
        ColumnCount
    };

    /// Of a file: where it can be found, now or again.
    static constexpr int pathRole = Qt::UserRole;

    using QAbstractItemModel::QAbstractItemModel;
    ~HistoryModel() override;

    /// Replaces everything; no files are known and no search is shown then.
    void setRuns(const QList<RunSummary> &runs);

    /// The files of one run, which is brought up to date. Ignored when the run is not listed.
    void setFiles(const QString &runId, std::shared_ptr<const StoredRun> files);

    /// Shows only what a search found; all without one.
    void setMatches(std::optional<RunMatches> matches);

    /// All runs, shown or not.
    [[nodiscard]] qsizetype runCount() const { return static_cast<qsizetype>(m_runs.size()); }

    /// The ids of those that started before that time, milliseconds since the Unix epoch.
    [[nodiscard]] QStringList runsBefore(qint64 ms) const;

    /// What there is to search.
    [[nodiscard]] QList<SearchedRun> searched() const;

    [[nodiscard]] static bool isFile(const QModelIndex &index) { return (index.internalId() & fileBit) != 0; }

    /// The run that the index shows or lies below.
    [[nodiscard]] const RunSummary &run(const QModelIndex &index) const { return m_runs[runOf(index)].summary; }

    /// Invalid when the run is not shown.
    [[nodiscard]] QModelIndex runIndex(const QString &runId) const;

    /// The indices in their run's list of the files in these rows below it.
    [[nodiscard]] QList<qsizetype> itemsIn(const QModelIndex &run, int top, int bottom) const;

    /// Makes the list of the names in these rows, a line each. To be called in any thread, with the model as it is now.
    [[nodiscard]] std::function<QString()> namesOf(const QItemSelection &rows) const;

    void retranslate();

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    /// The files of a run are to be shown and are not known.
    void filesRequested(const QString &runId);

private:
    static constexpr quintptr fileBit = quintptr(1) << (8 * sizeof(quintptr) - 1);

    struct Run
    {
        RunSummary summary;
        std::shared_ptr<const StoredRun> files;
        bool isRequested = false;
    };

    [[nodiscard]] size_t runOf(const QModelIndex &index) const { return index.internalId() & ~fileBit; }
    [[nodiscard]] qsizetype itemAt(size_t run, int row) const;
    [[nodiscard]] int fileCount(const Run &run) const;
    void showAll();
    [[nodiscard]] QString runText(const RunSummary &run, int column) const;
    [[nodiscard]] QString fileText(const StoredRun &run, qsizetype item, int column) const;

    std::vector<Run> m_runs;
    std::vector<size_t> m_shown; ///< run of each top row
    std::vector<int> m_rowOf;    ///< of each run; -1 when it is not shown
    std::optional<RunMatches> m_matches;
};

} // namespace Mirrix
