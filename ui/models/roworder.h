#pragma once

#include <QFutureWatcher>
#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

namespace Mirrix {

/// Item numbers in the order of their rows.
using Permutation = std::vector<quint32>;

/// An order of all items and which of them are shown.
struct Arrangement
{
    Permutation order; ///< of all items; empty = their own
    Permutation shown; ///< item of each row, where a filter is set
    bool isFiltered = false;
};

/// Which item is in which row of a model: a permutation, or a part of one, sorted and filtered off the interface
/// thread. Interface thread only.
class RowOrder : public QObject
{
    Q_OBJECT

public:
    using Sort = std::function<Permutation()>;
    using Filter = std::function<bool(qsizetype item)>;

    explicit RowOrder(QObject *parent = nullptr);

    ~RowOrder() override;

    /// `count` items in their own order, all shown. Work in progress is dropped. O(1).
    void reset(qsizetype count);

    /// Rows, not items.
    [[nodiscard]] int count() const { return static_cast<int>(isOwn() ? m_count : qsizetype(rows().size())); }
    [[nodiscard]] bool isFiltered() const { return m_now.isFiltered; }
    [[nodiscard]] qsizetype itemAt(int row) const { return isOwn() ? row : rows()[static_cast<size_t>(row)]; }

    /// -1 for an item that is not shown.
    [[nodiscard]] int rowOf(qsizetype item) const
    {
        return static_cast<int>(isOwn() ? item : m_rowOf[static_cast<size_t>(item)]);
    }

    /// Runs `sort` on a pool thread, so it must own what it reads. An empty permutation is the items' own order. The
    /// latest call wins; `arranged` follows.
    void start(Sort sort);

    /// Shows only the items that `filter` admits, in the order there is; all without one. It runs on a pool thread like
    /// a sort; the latest call wins, and `arranged` follows.
    void setFilter(Filter filter);

    /// Takes the arrangement over. O(n).
    void apply(Arrangement arrangement);

signals:
    /// Sort and filter are done. The receiver announces the change to its views and calls `apply` with it.
    void arranged(const Mirrix::Arrangement &arrangement);

private:
    [[nodiscard]] bool isOwn() const { return !m_now.isFiltered && m_now.order.empty(); }
    [[nodiscard]] const Permutation &rows() const { return m_now.isFiltered ? m_now.shown : m_now.order; }
    void run();
    void stop();

    QFutureWatcher<Arrangement> m_watcher;
    std::shared_ptr<std::atomic<bool>> m_isStopped;
    qsizetype m_count = 0;
    Sort m_sort; ///< while it runs
    Filter m_filter;
    Arrangement m_now;
    Permutation m_rowOf; ///< of each item, unless the items are in their own order
};

/// The numbers 0..keys.size()-1 sorted by `less` on the keys; equals keep their order, downwards too.
template <typename Key, typename Less>
[[nodiscard]] Permutation sortedByKey(const std::vector<Key> &keys, bool descending, Less less)
{
    Permutation items(keys.size());
    for (size_t i = 0; i < items.size(); ++i)
        items[i] = static_cast<quint32>(i);
    std::stable_sort(items.begin(), items.end(), [&](quint32 a, quint32 b) {
        return descending ? less(keys[b], keys[a]) : less(keys[a], keys[b]);
    });
    return items;
}

/// One way to sort a list: `number` of its items, or their `text` without regard to case; one of the two is set.
template <typename Item>
struct SortKey
{
    qint64 (*number)(const Item &) = nullptr;
    QString (*text)(const Item &) = nullptr;
};

/// A sort of `list`, of which it keeps a shared copy.
template <typename Item>
[[nodiscard]] RowOrder::Sort sortOf(const QList<Item> &list, SortKey<Item> key, bool descending)
{
    return [list, key, descending] {
        const auto keysBy = [&list](auto function) {
            std::vector<decltype(function(list.first()))> keys;
            keys.reserve(static_cast<size_t>(list.size()));
            for (const Item &item : list)
                keys.push_back(function(item));
            return keys;
        };
        if (key.number)
            return sortedByKey(keysBy(key.number), descending, std::less<qint64>());
        return sortedByKey(keysBy(key.text), descending,
                           [](const QString &a, const QString &b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
    };
}

} // namespace Mirrix
