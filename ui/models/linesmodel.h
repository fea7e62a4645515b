#pragma once

#include "ui/models/roworder.h"

#include <QAbstractListModel>
#include <QStringList>

namespace Mirrix {

/// Any number of lines, of which a filter, off the interface thread, shows some. Interface thread only.
class LinesModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit LinesModel(QStringList lines, QObject *parent = nullptr);

    /// Shows only the lines that hold `words` without regard to case; with empty words all. Happens later; `filtered`
    /// follows.
    void setFilter(const QString &words);

    /// The number of the line in this row.
    [[nodiscard]] qsizetype lineOf(int row) const { return m_order.itemAt(row); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

signals:
    void filtered();

private:
    QStringList m_lines;
    RowOrder m_order;
};

} // namespace Mirrix
