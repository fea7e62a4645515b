#pragma once

#include "app/drives.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;

namespace Mirrix {

class Prompts;

/// The choice of whole drives. Accepting asks for confirmation, for the system drive twice; a No leaves the dialog
/// open.
class DrivePicker : public QDialog
{
    Q_OBJECT

public:
    DrivePicker(Prompts &prompts, const QList<Drive> &drives, QWidget *parent = nullptr);

    /// Roots of the ticked drives, in the order of the list.
    [[nodiscard]] QStringList checkedRoots() const;

    void accept() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] QList<Drive> checkedDrives() const;
    [[nodiscard]] bool isConfirmed(const QList<Drive> &chosen);
    void retranslate();

    Prompts &m_prompts;
    QList<Drive> m_drives;
    QLabel *m_hint;
    QListWidget *m_list;
    QPushButton *m_add;
    QPushButton *m_cancel;
};

/// Lets the user pick among the scannable ones of `drives`; empty when none was picked.
[[nodiscard]] QStringList pickDrives(Prompts &prompts, const QList<Drive> &drives, QWidget *parent);

} // namespace Mirrix
