#pragma once

#include <QPersistentModelIndex>
#include <QSet>
#include <QTreeView>

namespace Mirrix {

/// A tree over a GroupedModel that stays quick with 300,000 top rows. QTreeView lays every row out again at each change
/// and would freeze for seconds with all of them expanded; so here "all expanded" is a promise, kept for the rows on
/// screen and two pages around them. Clicks on the header sort the model, a third click restores the list's own order
/// back.
class ResultsTree : public QTreeView
{
    Q_OBJECT

public:
    explicit ResultsTree(QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;

    /// Gives `stretched` all width that is left and the others the width of a sample text each, or of their title. A
    /// second time, in another language, makes columns wider where that is needed.
    void fitColumns(int stretched, const QStringList &samples);

    /// To call after a reset: expands the first `count` top rows and resets the order by column.
    void resetView(int count);

    /// To call after another reset: expands the first `count` top rows, or all where that was chosen; the order stays.
    void expandAgain(int count);

    void expandEverything();
    void collapseEverything();

    /// The paths of the selected rows, in the order of selection; of rows with a PathRole.
    [[nodiscard]] QStringList selectedPaths() const;

public slots:
    void copySelectedPaths() const;

signals:
    /// Space: tick or untick the selected files.
    void toggleRequested();
    /// Enter.
    void previewRequested();
    /// Delete.
    void removeRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void verticalScrollbarValueChanged(int value) override;

private:
    void sortByHeader(int column, Qt::SortOrder order);
    void expandVisibleGroups();
    void expandOnly(int first, int last);

    bool m_isFitted = false;
    bool m_expandsAll = false;
    bool m_isExpanding = false;
    QList<QPersistentModelIndex> m_opened; ///< expanded for the promise
    QSet<QPersistentModelIndex> m_closed;  ///< collapsed by hand while everything else counts as expanded
};

} // namespace Mirrix
