#pragma once

#include "ui/results/pictureloader.h"
#include "ui/results/thumbnaillayout.h"
#include "ui/state/resultset.h"
#include "ui/texts/suffixicons.h"

#include <QAbstractScrollArea>
#include <QCache>
#include <QPixmap>

#include <set>

namespace Mirrix {

/// The duplicate groups as pictures under headings, each with a check box that is the file's mark. Only what is on
/// screen is drawn and read, so the number of files does not matter. Space ticks, arrows move, Ctrl adds to the
/// selection. Always in result order.
class ThumbnailView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    /// Both must outlive the view.
    ThumbnailView(ResultSet &results, const SuffixIcons &icons, QWidget *parent = nullptr);

    /// To call when the groups have been replaced.
    void reload();

    /// The selected files in result order.
    [[nodiscard]] std::vector<FilePlace> selected() const { return {m_selected.begin(), m_selected.end()}; }

    /// Where a file is drawn, in viewport coordinates; and its check box.
    [[nodiscard]] QRect cellRect(FilePlace place) const;
    [[nodiscard]] QRect checkRect(FilePlace place) const;

    [[nodiscard]] PictureLoader &loader() { return m_loader; }

signals:
    void markChanged();
    void currentChanged(qsizetype group, qsizetype file);
    void removeRequested();
    void copyRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void arrange();
    void requestVisible();
    void store(const LoadedPicture &loaded);
    void select(FilePlace place, bool adds);
    void toggle(FilePlace place);
    void moveBy(int columns, int rows);
    void paintHeading(QPainter *painter, qsizetype group);
    void paintFile(QPainter *painter, FilePlace place);
    void paintPicture(QPainter *painter, const QRect &area, const MirrixCore::FileEntry &file);
    [[nodiscard]] int offset() const;
    [[nodiscard]] const MirrixCore::FileEntry &fileAt(FilePlace place) const;

    ResultSet &m_results;
    const SuffixIcons &m_icons;
    ThumbnailLayout m_layout;
    FilePlace m_current{-1, -1};
    std::set<FilePlace> m_selected;
    QCache<QString, QPixmap> m_pictures; ///< by path, cost in KiB; a null picture could not be read
    PictureLoader m_loader;
};

} // namespace Mirrix
