#pragma once

#include <QDialog>
#include <QList>
#include <QStringList>

class QLabel;
class QLineEdit;
class QListView;
class QPushButton;

namespace Mirrix {

class LinesModel;

/// Lets the user choose among the files in the backup folder; the first is chosen at the start. Accepted with one or
/// more chosen.
class RestoreDialog : public QDialog
{
    Q_OBJECT

public:
    /// `lines`: what is shown of each file.
    explicit RestoreDialog(const QStringList &lines, QWidget *parent = nullptr);

    /// The indices of the chosen lines, ascending.
    [[nodiscard]] QList<qsizetype> chosen() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildLayout();
    void chooseFirst();
    void retranslate();

    QLabel *m_label;
    QLineEdit *m_filter;
    QListView *m_list;
    LinesModel *m_rows;
    QPushButton *m_restore = nullptr;
};

} // namespace Mirrix
