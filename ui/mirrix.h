#pragma once

#include "actions/operationslog.h"
#include "app/settings.h"
#include "core/scan/scanoptions.h"
#include "core/scan/scanprogress.h"
#include "ui/logic/resultset.h"
#include "ui/logic/scanstatus.h"

#include <QMainWindow>

class QLabel;
class QStackedWidget;

namespace Mirrix {

class LocationsPage;
class MainMenu;
class Prompts;
class ResultsPage;
class RulesPage;
class ScanThread;
class TrayIcon;
class WizardPage;
class WizardSidebar;

/// The main window: the frame around the three pages of the wizard and the flow of one scan.
class Mirrix : public QMainWindow
{
    Q_OBJECT

public:
    /// Keeps references to `settings`, which it reads and stores, and to `prompts`, through which it asks.
    Mirrix(Settings &settings, Prompts &prompts, QWidget *parent = nullptr);
    ~Mirrix() override;

    /// Adds a folder to the scan locations, as if chosen by the user.
    void addLocation(const QString &path);

    void goToStep(int index);
    void startScan();
    void cancelScan();
    void quitCompletely();

    [[nodiscard]] bool isScanning() const { return m_scanning; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildLayout();
    void buildTray();
    void connectPages();
    void connectMenu(MainMenu *menu);
    void retranslate();

    void buildScanOptions(MirrixCore::ScanOptions &options) const;
    [[nodiscard]] bool confirmScanStart(const MirrixCore::ScanOptions &options);
    [[nodiscard]] QString buildScanSummary(const MirrixCore::ScanOptions &options) const;
    void storeScanSettings(const MirrixCore::ScanOptions &options);
    void clearResults();
    void setScanning(bool on);
    void setStatusText(const QString &text);

    void onScanProgress(const MirrixCore::ScanProgress &progress);
    void onScanFinished(MirrixCore::ScanResult result);
    void onScanFailed(const QString &message);

    void showMainWindow();
    void setLanguage(const QString &code);
    [[nodiscard]] QString modeText() const;

    Settings &m_settings;
    Prompts &m_prompts;
    OperationsLog m_log;
    ResultSet m_results;
    ProgressThrottle m_throttle;
    bool m_scanning = false;
    bool m_quitting = false;

    WizardSidebar *m_sidebar = nullptr;
    QLabel *m_trail = nullptr;
    QStackedWidget *m_pages = nullptr;
    QList<WizardPage *> m_wrappers;
    LocationsPage *m_locations = nullptr;
    RulesPage *m_rules = nullptr;
    ResultsPage *m_resultsPage = nullptr;
    MainMenu *m_menu = nullptr;
    TrayIcon *m_tray = nullptr;
    ScanThread *m_scanThread = nullptr;
};

} // namespace Mirrix
