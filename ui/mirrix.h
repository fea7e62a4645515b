#pragma once

#include "actions/records/operationslog.h"
#include "app/settings.h"
#include "core/model/scanoptions.h"
#include "ui/dialogs/optionsdialog.h"
#include "ui/state/resultset.h"

#include <QMainWindow>

class QLabel;
class QStackedWidget;

namespace Mirrix {
class LocationsPage;
class MainMenu;
class Prompts;
class ResultActions;
class ResultsPage;
class RulesPage;
class ScanDisplay;
class ScanThread;
class TrayIcon;
class WizardPage;
class WizardSidebar;
} // namespace Mirrix

namespace MirrixUi {

/// The main window: the frame around the three pages of the wizard and the flow of one scan. It has a namespace of its
/// own because the class has the same name as the others' namespace.
class Mirrix : public QMainWindow
{
    Q_OBJECT

public:
    /// Keeps references to `settings`, which it reads and stores, and to `prompts`, through which it asks.
    Mirrix(::Mirrix::Settings &settings, ::Mirrix::Prompts &prompts, QWidget *parent = nullptr);
    ~Mirrix() override;

    /// Adds a folder to the scan locations, as if chosen by the user.
    void addLocation(const QString &path);

    void goToStep(int index);
    void startScan();
    void cancelScan();
    void quitCompletely();

    [[nodiscard]] bool isScanning() const { return m_scanning; }

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildLayout();
    void buildTray();
    void connectPages();
    void connectMenu(::Mirrix::MainMenu *menu);
    void retranslate();

    void buildScanOptions(MirrixCore::ScanOptions &options) const;
    [[nodiscard]] bool confirmScanStart(const MirrixCore::ScanOptions &options);
    void storeScanSettings(const MirrixCore::ScanOptions &options);
    void clearResults();
    void onClearRequested();
    void setScanning(bool on);
    void showLocked();

    void onScanFinished(MirrixCore::ScanResult result);
    void onScanFailed(const QString &message);

    void showMainWindow();
    void setLanguage(const QString &code);
    void openHistory(const QString &runId = {});
    void openOptions(::Mirrix::OptionsDialog::Page page);
    [[nodiscard]] QString modeText() const;
    [[nodiscard]] QString idleText() const;

    ::Mirrix::Settings &m_settings;
    ::Mirrix::Prompts &m_prompts;
    ::Mirrix::OperationsLog m_log;
    ::Mirrix::ResultSet m_results;
    qint32 m_scannedMode = 0; ///< of the scan that the results are of
    bool m_scanning = false;
    bool m_quitting = false;
    bool m_quitRequested = false; ///< quit when the running batch has ended

    ::Mirrix::WizardSidebar *m_sidebar = nullptr;
    QLabel *m_trail = nullptr;
    QStackedWidget *m_pages = nullptr;
    QList<::Mirrix::WizardPage *> m_wrappers;
    ::Mirrix::LocationsPage *m_locations = nullptr;
    ::Mirrix::RulesPage *m_rules = nullptr;
    ::Mirrix::ResultsPage *m_resultsPage = nullptr;
    ::Mirrix::ResultActions *m_actions = nullptr;
    ::Mirrix::MainMenu *m_menu = nullptr;
    ::Mirrix::TrayIcon *m_tray = nullptr;
    ::Mirrix::ScanDisplay *m_display = nullptr;
    ::Mirrix::ScanThread *m_scanThread = nullptr;
};

} // namespace MirrixUi
