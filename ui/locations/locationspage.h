#pragma once

#include "app/drives.h"
#include "ui/state/locationsstate.h"

#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;

namespace Mirrix {

class AdvancedBox;
class ExcludedFolders;
class FolderBrowser;
class LocationTable;
class Prompts;
class QuickLocations;

/// The wizard's first page: what to scan. Drives are listed and locations looked for on pool threads, each time the
/// page is shown.
class LocationsPage : public QWidget
{
    Q_OBJECT

public:
    using DriveLister = std::function<QList<Drive>()>;

    /// `listDrives` is called on a pool thread.
    explicit LocationsPage(Prompts &prompts, QWidget *parent = nullptr, DriveLister driveLister = listDrives);

    [[nodiscard]] LocationsState state() const;

    /// Shows a state; emits nothing.
    void setState(const LocationsState &state);

    /// Adds a row with the default switches. An empty path and a folder already in the table are ignored.
    void addLocation(const QString &path);

    /// While a scan runs, nothing here can be changed; browsing stays possible.
    void setLocked(bool locked);

    /// Adds up again what the backup folder holds.
    void refreshHeldBackups();

signals:
    void changed();

    void historyRequested();

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *buildTableSide();
    QWidget *buildTableButtons();
    QWidget *buildLowerSide();
    void connectParts();
    void chooseFolder();
    void chooseDrives();
    void readDrives();
    void findMissing();
    void retranslate();

    Prompts &m_prompts;
    DriveLister m_driveLister;
    FolderBrowser *m_browser;
    LocationTable *m_table;
    QLabel *m_tableHint;
    QPushButton *m_addFolder;
    QPushButton *m_addDrives;
    QPushButton *m_remove;
    QPushButton *m_clear;
    QuickLocations *m_quick;
    ExcludedFolders *m_excluded;
    AdvancedBox *m_advanced;
    QWidget *m_tableSide; ///< everything but the browser
    bool m_isLocked = false;
};

} // namespace Mirrix
