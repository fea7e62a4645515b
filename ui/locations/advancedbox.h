#pragma once

#include "ui/logic/locationsstate.h"

#include <QGroupBox>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace Mirrix {

class Prompts;

/// Keep rule, what a scan passes over, and the backup folder.
class AdvancedBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit AdvancedBox(Prompts &prompts, QWidget *parent = nullptr);

    [[nodiscard]] AdvancedOptions options() const;
    void setOptions(const AdvancedOptions &options);

signals:
    void changed();

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
};

} // namespace Mirrix
