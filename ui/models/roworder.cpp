#include "ui/models/roworder.h"

#include "ui/state/backgroundthreads.h"

#include <QtConcurrent>

#include <limits>

namespace Mirrix {

namespace {

Permutation admitted(const Permutation &order, qsizetype count, const RowOrder::Filter &filter,
                     const std::atomic<bool> &isStopped)
{
    Permutation shown;
    for (qsizetype row = 0; row < count && !isStopped; ++row) {
        const quint32 item = order.empty() ? static_cast<quint32>(row) : order[static_cast<size_t>(row)];
        if (filter(item))
            shown.push_back(item);
    }
    return shown;
}

} // namespace

RowOrder::RowOrder(QObject *parent)
    : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcherBase::finished, this, [this] {
        if (m_watcher.future().resultCount() == 1)
            emit arranged(m_watcher.result());
    });
}

RowOrder::~RowOrder()
{
    stop();
}

void RowOrder::reset(qsizetype count)
{
    stop();
    m_watcher.setFuture({});
    m_count = count;
    m_sort = {};
    m_filter = {};
    m_now = {};
    m_rowOf.clear();
}

void RowOrder::start(Sort sort)
{
    m_sort = std::move(sort);
    run();
}

void RowOrder::setFilter(Filter filter)
{
    m_filter = std::move(filter);
    run();
}

void RowOrder::stop()
{
    if (m_isStopped)
        *m_isStopped = true;
}

void RowOrder::run()
{
    stop();
    m_isStopped = std::make_shared<std::atomic<bool>>(false);
    const auto work = [sort = m_sort, order = m_now.order, filter = m_filter, count = m_count,
                       isStopped = m_isStopped] {
        Arrangement made;
        made.order = sort ? sort() : order;
        made.isFiltered = bool(filter);
        if (filter)
            made.shown = admitted(made.order, count, filter, *isStopped);
        return made;
    };
    m_watcher.setFuture(QtConcurrent::run(backgroundThreads(), work));
}

void RowOrder::apply(Arrangement arrangement)
{
    constexpr quint32 hidden = std::numeric_limits<quint32>::max(); // -1 as a row
    m_now = std::move(arrangement);
    m_sort = {};
    m_rowOf.clear();
    if (isOwn())
        return;
    m_rowOf.assign(static_cast<size_t>(m_count), hidden);
    for (size_t row = 0; row < rows().size(); ++row)
        m_rowOf[rows()[row]] = static_cast<quint32>(row);
}

} // namespace Mirrix
