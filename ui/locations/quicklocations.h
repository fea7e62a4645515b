#pragma once

#include "app/drives.h"

#include <QHash>
#include <QWidget>

class QLabel;
class QPushButton;

namespace Mirrix {

class FlowLayout;

/// Buttons for the user's own folders and for each local fixed drive.
class QuickLocations : public QWidget
{
    Q_OBJECT

public:
    explicit QuickLocations(QWidget *parent = nullptr);

    /// Replaces the buttons of drives by those of the fixed ones among `drives`.
    void setDrives(const QList<Drive> &drives);

signals:
    void folderChosen(const QString &folder);

protected:
    void changeEvent(QEvent *event) override;

private:
    QPushButton *addButton(const QString &objectName, const QString &folder);
    void retranslate();

    QLabel *m_title;
    FlowLayout *m_buttons;
    QList<QPushButton *> m_folderButtons;         ///< in the order of the table of folders
    QHash<QPushButton *, QString> m_driveButtons; ///< with the root of each
};

} // namespace Mirrix
