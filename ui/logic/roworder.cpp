#include "ui/logic/roworder.h"

#include "ui/logic/asidethreads.h"

#include <QtConcurrent>

namespace Mirrix {

RowOrder::RowOrder(QObject *parent)
    : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcherBase::finished, this, [this] {
        if (m_watcher.future().resultCount() == 1)
            emit sorted(m_watcher.result());
    });
}

void RowOrder::reset(qsizetype count)
{
    m_watcher.setFuture({});
    m_count = count;
    m_items.clear();
    m_rows.clear();
}

void RowOrder::start(Sort sort)
{
    m_watcher.setFuture(QtConcurrent::run(asideThreads(), std::move(sort)));
}

void RowOrder::apply(Permutation items)
{
    m_rows.resize(items.size());
    for (size_t row = 0; row < items.size(); ++row)
        m_rows[items[row]] = static_cast<quint32>(row);
    m_items = std::move(items);
}

} // namespace Mirrix
