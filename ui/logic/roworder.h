#pragma once

#include <QFutureWatcher>
#include <QObject>

#include <functional>
#include <vector>

namespace Mirrix {

/// Item numbers in the order of their rows.
using Permutation = std::vector<quint32>;

/// Which item stands in which row of a model: a permutation, sorted off the interface thread. Interface thread only.
class RowOrder : public QObject
{
    Q_OBJECT

public:
    using Sort = std::function<Permutation()>;

    explicit RowOrder(QObject *parent = nullptr);

    /// `count` items in their own order. A sort under way is forgotten. O(1).
    void reset(qsizetype count);

    [[nodiscard]] int count() const { return static_cast<int>(m_count); }
    [[nodiscard]] qsizetype itemAt(int row) const { return m_items.empty() ? row : m_items[static_cast<size_t>(row)]; }
    [[nodiscard]] int rowOf(qsizetype item) const
    {
        return static_cast<int>(m_rows.empty() ? item : m_rows[static_cast<size_t>(item)]);
    }

    /// Runs `sort` on a pool thread, so it must own what it reads. The latest call wins; `sorted` follows.
    void start(Sort sort);

    /// Takes the order over: empty for the items' own order, else as many numbers as there are items. O(n).
    void apply(Permutation items);

signals:
    /// A sort is done. The receiver announces the change to its views and calls `apply` with it.
    void sorted(const Mirrix::Permutation &items);

private:
    QFutureWatcher<Permutation> m_watcher;
    qsizetype m_count = 0;
    Permutation m_items; ///< item of each row; empty = identity
    Permutation m_rows;  ///< row of each item; empty = identity
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
