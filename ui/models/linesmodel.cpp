#include "ui/models/linesmodel.h"

namespace Mirrix {

LinesModel::LinesModel(QStringList lines, QObject *parent)
    : QAbstractListModel(parent)
    , m_lines(std::move(lines))
{
    m_order.reset(m_lines.size());
    connect(&m_order, &RowOrder::arranged, this, [this](const Arrangement &arrangement) {
        beginResetModel();
        m_order.apply(arrangement);
        endResetModel();
        emit filtered();
    });
}

void LinesModel::setFilter(const QString &words)
{
    if (words.isEmpty()) {
        m_order.setFilter({});
        return;
    }
    m_order.setFilter(
        [lines = m_lines, words](qsizetype line) { return lines[line].contains(words, Qt::CaseInsensitive); });
}

int LinesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_order.count();
}

QVariant LinesModel::data(const QModelIndex &index, int role) const
{
    return index.isValid() && role == Qt::DisplayRole ? QVariant(m_lines[lineOf(index.row())]) : QVariant();
}

} // namespace Mirrix
