#pragma once

#include "ui/state/locationsstate.h"

#include <QGroupBox>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;
class QToolButton;

namespace Mirrix {

class Prompts;

/// Keep rule, what a scan skips, and the backup folder.
class AdvancedBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit AdvancedBox(Prompts &prompts, QWidget *parent = nullptr);

    [[nodiscard]] AdvancedOptions options() const;
    void setOptions(const AdvancedOptions &options);

    /// Adds up in the background what the backup folder holds, and shows it.
    void refreshHeld();

signals:
    void changed();

    void historyRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void chooseBackupFolder();
    void retranslate();

    Prompts &m_prompts;
    QLabel *m_keepRuleLabel;
    QComboBox *m_keepRule;
    QCheckBox *m_skipHidden;
    QCheckBox *m_skipSystemFolders;
    QCheckBox *m_backupBeforeDelete;
    QLabel *m_backupLabel;
    QLineEdit *m_backupFolder;
    QToolButton *m_chooseBackup;
    QLabel *m_heldLabel;
    QPushButton *m_history;
    QTimer *m_typing;
    qint64 m_heldBytes = 0;
};

} // namespace Mirrix
