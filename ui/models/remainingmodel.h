#pragma once

#include "ui/models/groupedmodel.h"
#include "ui/state/resultset.h"
#include "ui/texts/suffixicons.h"

namespace Mirrix {

/// The files in no group, read in place: one row each, nothing below. Sorts by path, size or time.
class RemainingModel : public GroupedModel
{
    Q_OBJECT

public:
    enum Column
    {
        FileColumn,
        SizeColumn,
        ModifiedColumn,
        ColumnCount
    };

    /// Both must outlive the model.
    RemainingModel(const ResultSet &results, const SuffixIcons &icons, QObject *parent = nullptr);

    bool hasChildren(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

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
    const SuffixIcons &m_icons;
};

} // namespace Mirrix
