#pragma once

#include <QStringList>
#include <QWidget>

class QLabel;
class QListWidget;
class QPushButton;

namespace Mirrix {

class Prompts;

/// The list of folders that a scan never enters.
class ExcludedFolders : public QWidget
{
    Q_OBJECT

public:
    explicit ExcludedFolders(Prompts &prompts, QWidget *parent = nullptr);

    [[nodiscard]] QStringList folders() const;
    void setFolders(const QStringList &folders);

signals:
    void changed();

protected:
    void changeEvent(QEvent *event) override;

private:
    void chooseFolder();
    void removeSelected();
    bool append(const QString &folder);
    void retranslate();

    Prompts &m_prompts;
    QLabel *m_title;
    QListWidget *m_list;
    QPushButton *m_add;
    QPushButton *m_remove;
};

} // namespace Mirrix
