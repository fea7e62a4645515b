#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>

class QFileSystemModel;
class QLabel;
class QToolButton;
class QTreeView;

namespace Mirrix {

/// The tree of the machine's folders with the arrow that adds the selected ones to the scan locations. Folders are
/// listed in a thread of the model's when they are opened, so that a dead network drive does not block the window.
class FolderBrowser : public QWidget
{
    Q_OBJECT

public:
    explicit FolderBrowser(QWidget *parent = nullptr);
    ~FolderBrowser() override;

    [[nodiscard]] QStringList selectedFolders() const;
    void setLocked(bool isLocked);

signals:
    void foldersChosen(const QStringList &folders);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    class Icons;

    void buildTree();
    void updateArrow();
    void retranslate();

    std::unique_ptr<Icons> m_icons;
    QFileSystemModel *m_model;
    QTreeView *m_tree;
    QLabel *m_title;
    QLabel *m_hint;
    QToolButton *m_arrow;
    bool m_isLocked = false;
    bool m_wasShown = false;
};

} // namespace Mirrix
