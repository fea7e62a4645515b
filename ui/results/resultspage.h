#pragma once

#include "ui/models/foldergroupsmodel.h"
#include "ui/models/remainingmodel.h"
#include "ui/models/resultsmodel.h"
#include "ui/state/batchstate.h"
#include "ui/state/picture.h"

#include <QPair>
#include <QWidget>

#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;
class QSplitter;
class QStackedWidget;
class QTabWidget;

namespace Mirrix {

class BatchPanel;
class PreviewPane;
class ResultMenu;
class ResultsTree;
class ScanFooter;
class ThumbnailView;

/// The third step: what the last scan found, with check boxes, a preview and the batch actions. Shows a ResultSet in
/// place and writes the user's ticks into its marks; the owner decides what is done with them.
class ResultsPage : public QWidget
{
    Q_OBJECT

public:
    /// `results` must outlive the page. After each change of its lists call showResults() or clearResults() at once.
    explicit ResultsPage(ResultSet &results, QWidget *parent = nullptr);
    ~ResultsPage() override;

    /// Shows new results: the first 20 groups and 10 folder groups expanded, in result order.
    void showResults();

    /// Shows that the lists are empty now; progress 0, nothing previewed. Summary and status text stay.
    void clearResults();

    void setScanning(bool isScanning);
    void setSummary(const QString &text);
    void setProgress(int percent);

    /// Shows the text elided in the middle, in full as its tool tip.
    void setStatusText(const QString &text);

    /// To call when marks of the ResultSet were changed by others. Quick, however many they are.
    void marksReplaced();

    /// The selected files of the duplicates tab as (group, file), without the selected group rows.
    [[nodiscard]] QList<QPair<qsizetype, qsizetype>> selectedFiles() const;

    [[nodiscard]] bool backupBeforeDelete() const;
    void setBackupBeforeDelete(bool on);

    /// Replaces the reading of pictures and of media facts, which run on pool threads.
    void setPictureReader(const PictureReader &reader);
    void setFactsReader(const FactsReader &reader);

signals:
    void autoSelectRequested();
    void selectAllRequested();
    void invertRequested();
    void clearRequested();
    void backupRequested();
    void removeRequested();
    void exportRequested();

    /// Two pictures of one group should be compared; selectedFiles() says which, and whether that is so.
    void compareRequested();

    /// The user ticked or unticked something.
    void markChanged();
    void backupBeforeDeleteChanged(bool on);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setUpTrees();
    void fitColumns();
    void layOut();
    void connectTree();
    void connectFilter();
    void connectThumbnails();
    void connectPanel();
    void connectMenus();
    void retranslate();
    void refreshPanel();
    void previewFile(const QModelIndex &index);
    void previewCurrent();
    void toggleSelected();
    void addExpandEntries(ResultMenu *menu, ResultsTree *tree);
    void showDuplicatesMenu(const QPoint &place, std::optional<qsizetype> group, const QString &path);
    [[nodiscard]] bool showsThumbnails() const;

    ResultSet &m_results;
    SuffixIcons m_icons;
    ResultsModel m_groups;
    FolderGroupsModel m_folders;
    RemainingModel m_remaining;

    QLabel *m_summary;
    QLabel *m_viewLabel;
    QComboBox *m_view;
    QLineEdit *m_filter;
    QTabWidget *m_tabs;
    QStackedWidget *m_duplicates;
    ResultsTree *m_tree;
    ThumbnailView *m_thumbnails;
    ResultsTree *m_folderTree;
    ResultsTree *m_remainingTree;
    QSplitter *m_splitter;
    PreviewPane *m_preview;
    BatchPanel *m_panel;
    ScanFooter *m_footer;

    std::optional<QString> m_summaryText; ///< none before the first scan
    std::optional<QString> m_statusText;  ///< none: "ready"
    bool m_isScanning = false;
};

} // namespace Mirrix
