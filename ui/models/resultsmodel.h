#pragma once

#include "ui/models/groupedmodel.h"
#include "ui/state/resultset.h"
#include "ui/texts/suffixicons.h"

namespace Mirrix {

/// The duplicate groups, read in place from a ResultSet: a row per group, below it a row per file with a check box that
/// is the file's mark. Marks changed by others need no signal, which a view would answer row by row: repaint the view.
/// A group keeps its number whatever the order of rows. data() is O(1) and never touches the disk. Sorts by number of
/// files (SelectColumn), path of the first file, reclaimable size or latest time.
class ResultsModel : public GroupedModel
{
    Q_OBJECT

public:
    enum Column
    {
        SelectColumn,
        FileColumn,
        SizeColumn,
        ModifiedColumn,
        ColumnCount
    };
    enum Role
    {
        PathRole = Qt::UserRole, ///< QString, the path as the scan recorded it; empty for a group
        FileCountRole,           ///< int, files of the row's group
        MarkedCountRole,         ///< int, ticked files of a group; 0 or 1 for a file
    };

    /// Both must outlive the model.
    ResultsModel(ResultSet &results, const SuffixIcons &icons, QObject *parent = nullptr);

    /// Ticks all files of a group but the first.
    void markDuplicatesOf(qsizetype group);

    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

signals:
    /// The user ticked or unticked something here.
    void markChanged();

protected:
    qsizetype itemCount() const override;
    int childCount(qsizetype item) const override;
    QString title(int column) const override;
    Qt::Alignment alignment(int column) const override;
    QVariant itemData(qsizetype item, int column, int role) const override;
    QVariant childData(qsizetype item, int child, int column, int role) const override;
    RowOrder::Sort sortBy(int column, bool descending) const override;
    RowOrder::Filter filterBy(const QString &words) const override;

private:
    QString groupText(qsizetype group, int column) const;

    ResultSet &m_results;
    const SuffixIcons &m_icons;
};

} // namespace Mirrix
