#pragma once

#include "ui/models/groupedmodel.h"
#include "ui/state/resultset.h"

namespace Mirrix {

/// The groups of equal folders, read in place: a row per group, below it a row per folder. Sorts by number of folders
/// (GroupColumn), path of the first folder, file count or size.
class FolderGroupsModel : public GroupedModel
{
    Q_OBJECT

public:
    enum Column
    {
        GroupColumn,
        PathColumn,
        CountColumn,
        SizeColumn,
        ColumnCount
    };

    /// `results` must outlive the model.
    explicit FolderGroupsModel(const ResultSet &results, QObject *parent = nullptr);

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
    const ResultSet &m_results;
};

} // namespace Mirrix
