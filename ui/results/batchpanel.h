#pragma once

#include "ui/state/batchstate.h"

#include <QGroupBox>
#include <QList>

class QCheckBox;
class QLabel;
class QPushButton;

namespace Mirrix {

/// The buttons of the batch actions with a note that says why they rest.
class BatchPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit BatchPanel(QWidget *parent = nullptr);

    /// `hasResults`: there is anything that could be cleared.
    void setState(const BatchState &state, bool hasResults);

    [[nodiscard]] bool backupBeforeDelete() const;
    void setBackupBeforeDelete(bool on);

signals:
    void autoSelectRequested();
    void selectAllRequested();
    void invertRequested();
    void clearRequested();
    void backupRequested();
    void removeRequested();
    void exportRequested();
    void backupBeforeDeleteChanged(bool on);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QPushButton *m_autoSelect;
    QPushButton *m_selectAll;
    QPushButton *m_invert;
    QPushButton *m_moveToBackup;
    QPushButton *m_remove;
    QPushButton *m_export;
    QPushButton *m_clear;
    QCheckBox *m_backupFirst;
    QLabel *m_note;
    BatchState m_state;
};

} // namespace Mirrix
