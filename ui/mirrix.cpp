#include "ui/mirrix.h"

#include "actions/records/logevents.h"
#include "app/text.h"
#include "app/translations.h"
#include "core/model/metatypes.h"
#include "ui/dialogs/hashtooldialog.h"
#include "ui/dialogs/historydialog.h"
#include "ui/dialogs/logviewer.h"
#include "ui/exportcommand.h"
#include "ui/locations/locationspage.h"
#include "ui/resultactions.h"
#include "ui/results/resultspage.h"
#include "ui/rules/rulespage.h"
#include "ui/scandisplay.h"
#include "ui/state/backgroundthreads.h"
#include "ui/state/locationsjson.h"
#include "ui/state/rulessettings.h"
#include "ui/state/scanoptionsfrom.h"
#include "ui/texts/resulttexts.h"
#include "ui/texts/rulenames.h"
#include "ui/texts/scansummary.h"
#include "ui/window/caption.h"
#include "ui/window/mainmenu.h"
#include "ui/window/prompts.h"
#include "ui/window/scanthread.h"
#include "ui/window/shell.h"
#include "ui/window/theme.h"
#include "ui/window/trayicon.h"
#include "ui/window/windowmemory.h"
#include "ui/window/wizardpage.h"
#include "ui/window/wizardsidebar.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QThreadPool>

namespace MirrixUi {

using namespace ::Mirrix;

namespace {

constexpr int resultsStep = 2;

/// How pictures are hashed, as the window names it.
QString imageHashName()
{
    return QStringLiteral("OpenCV-pHash");
}

/// A text that came from elsewhere in the source language.
QString translated(const QString &source)
{
    return source.isEmpty() ? QString() : Text::tr(source.toUtf8().constData());
}

} // namespace

Mirrix::Mirrix(Settings &settings, Prompts &prompts, QWidget *parent)
    : QMainWindow(parent)
    , m_settings(settings)
    , m_prompts(prompts)
    , m_log(operationsLogPath(settings.directory))
{
    MirrixCore::registerScanMetaTypes();
    buildLayout();
    buildTray();
    m_display = new ScanDisplay(*this, *m_resultsPage, m_tray);
    retranslate();
    m_locations->setState(locationsStateFrom(m_settings));
    m_rules->setState(rulesStateFrom(m_settings));
    connectPages();

    m_scanThread = new ScanThread(this);
    const MirrixCore::ScanWorker *worker = m_scanThread->worker();
    connect(worker, &MirrixCore::ScanWorker::progress, m_display, &ScanDisplay::showProgress);
    connect(worker, &MirrixCore::ScanWorker::finished, this, &Mirrix::onScanFinished);
    connect(worker, &MirrixCore::ScanWorker::failed, this, &Mirrix::onScanFailed);

    restoreWindow(*this, m_settings.window, QSize(1280, 860));
    goToStep(0);
    m_display->showInBar(
        [this] { return Text::tr("%1 · 本地运行 · 零广告 · 图片哈希: %2").arg(modeText(), imageHashName()); });
    m_log.append({programStartedEvent()});
}

Mirrix::~Mirrix()
{
    // Before the members that they refer to; the base class would delete them after those.
    delete m_scanThread;
    delete m_actions;
    delete takeCentralWidget();
}

void Mirrix::addLocation(const QString &path)
{
    m_locations->addLocation(path);
}

void Mirrix::buildLayout()
{
    m_menu = new MainMenu(menuBar(), m_settings.uiLanguage);
    connectMenu(m_menu);

    m_sidebar = new WizardSidebar;
    m_trail = new QLabel;
    m_trail->setObjectName(QStringLiteral("WizardTrail"));
    m_pages = new QStackedWidget;
    m_pages->setObjectName(QStringLiteral("WizardPages"));
    m_locations = new LocationsPage(m_prompts);
    m_rules = new RulesPage;
    m_resultsPage = new ResultsPage(m_results);
    for (QWidget *page : {static_cast<QWidget *>(m_locations), static_cast<QWidget *>(m_rules),
                          static_cast<QWidget *>(m_resultsPage)}) {
        m_wrappers.append(new WizardPage(page));
        m_pages->addWidget(m_wrappers.last());
    }

    auto *right = new QVBoxLayout;
    right->setContentsMargins(16, 12, 16, 4);
    right->setSpacing(8);
    right->addWidget(m_trail);
    right->addWidget(m_pages, 1);
    auto *centre = new QWidget;
    auto *row = new QHBoxLayout(centre);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_sidebar);
    row->addLayout(right, 1);
    setCentralWidget(centre);
}

void Mirrix::buildTray()
{
    // Without a tray, closing to it would make the program unreachable.
    if (!m_settings.trayEnabled || !TrayIcon::isAvailable())
        return;
    m_tray = new TrayIcon(this);
    connect(m_tray, &TrayIcon::showRequested, this, &Mirrix::showMainWindow);
    connect(m_tray, &TrayIcon::quitRequested, this, &Mirrix::quitCompletely);
}

void Mirrix::connectPages()
{
    connect(m_sidebar, &WizardSidebar::stepChosen, this, &Mirrix::goToStep);
    connect(m_sidebar, &WizardSidebar::startRequested, this, &Mirrix::startScan);
    connect(m_sidebar, &WizardSidebar::stopRequested, this, &Mirrix::cancelScan);
    m_resultsPage->setBackupBeforeDelete(m_locations->state().advanced.backupBeforeDelete);
    connect(m_locations, &LocationsPage::changed, this,
            [this] { m_resultsPage->setBackupBeforeDelete(m_locations->state().advanced.backupBeforeDelete); });
    connect(m_resultsPage, &ResultsPage::backupBeforeDeleteChanged, this, [this](bool on) {
        LocationsState state = m_locations->state();
        state.advanced.backupBeforeDelete = on;
        m_locations->setState(state);
        if (m_settings.autoBackupBeforeDelete != on) {
            m_settings.autoBackupBeforeDelete = on;
            m_settings.save();
        }
    });
    connect(m_locations, &LocationsPage::historyRequested, this, [this] { openHistory(); });
    m_actions = new ResultActions(m_results, *m_resultsPage, *m_locations, m_settings, m_prompts, m_log, this);
    m_actions->commands().setBackupFolder(m_settings.backupRoot);
    connect(m_actions, &ResultActions::clearRequested, this, &Mirrix::onClearRequested);
    connect(m_resultsPage, &ResultsPage::exportRequested, this,
            [this] { exportResults(this, m_results, modeName(m_scannedMode), m_prompts, m_log); });
    connect(&m_actions->commands(), &BatchCommands::statusText, this,
            [this](const QString &source) { m_display->showStatus([source] { return translated(source); }); });
    connect(&m_actions->commands(), &BatchCommands::historyRequested, this, &Mirrix::openHistory);
    connect(&m_actions->commands(), &BatchCommands::finished, this, [this] {
        if (m_quitRequested)
            quitCompletely();
    });
    connect(new QShortcut(QKeySequence(Qt::Key_F5), this), &QShortcut::activated, this, &Mirrix::startScan);
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, [this] {
        if (m_scanning)
            cancelScan();
    });
}

void Mirrix::connectMenu(MainMenu *menu)
{
    connect(menu, &MainMenu::logRequested, this, [this] {
        LogViewer viewer(m_log.filePath(), this);
        m_prompts.run(viewer);
    });
    connect(menu, &MainMenu::historyRequested, this, [this] { openHistory(); });
    connect(menu, &MainMenu::restoreRequested, this, [this] { m_actions->commands().restoreBackup(); });
    connect(menu, &MainMenu::dataFolderRequested, this, [this] { openWithSystem(m_settings.directory); });
    connect(menu, &MainMenu::hashToolRequested, this, [this] {
        HashToolDialog tool(m_prompts, this);
        m_prompts.run(tool);
    });
    connect(menu, &MainMenu::optionsRequested, this, [this] { openOptions(OptionsDialog::General); });
    connect(menu, &MainMenu::aboutRequested, this, [this] { openOptions(OptionsDialog::About); });
    connect(menu, &MainMenu::quitRequested, this, &Mirrix::quitCompletely);
    connect(menu, &MainMenu::languageChosen, this, &Mirrix::setLanguage);
}

void Mirrix::retranslate()
{
    m_trail->setText(Text::tr("① 选择位置 → ② 匹配规则 → ③ 预览并清理"));
    m_wrappers[0]->setTexts(Text::tr("选择一个路径开始查重"), Text::tr("选好后点击左侧「开始扫描」"));
    m_wrappers[1]->setTexts(Text::tr("配置匹配规则"));
    m_wrappers[2]->setTexts(Text::tr("预览重复项并清理"), Text::tr("勾选要移除的副本，建议先备份再删除"));
}

void Mirrix::goToStep(int index)
{
    index = std::clamp(index, 0, m_pages->count() - 1);
    m_pages->setCurrentIndex(index);
    m_sidebar->setActiveStep(index);
    m_display->showInBar([index] {
        const QString hints[] = {Text::tr("请选择要扫描的位置"), Text::tr("配置规则后点击「开始扫描」"),
                                 Text::tr("勾选重复项并进行清理")};
        return hints[index];
    });
}

void Mirrix::startScan()
{
    if (m_scanning)
        return;
    MirrixCore::ScanOptions options;
    buildScanOptions(options);
    if (options.roots.isEmpty()) {
        m_prompts.warn(this, Text::tr("提示"), Text::tr("请先勾选启用至少一个扫描位置。"));
        return;
    }
    if (!confirmScanStart(options))
        return;
    storeScanSettings(options);
    clearResults();
    m_display->showSummary([] { return QString(); });
    setScanning(true);
    goToStep(resultsStep);
    showLocked();
    m_log.append({scanStartedEvent(options)});
    m_scannedMode = options.searchMode;
    applyContentHashAlgorithm(m_settings); // it may have been changed during the scan before
    m_scanThread->start(options);
}

void Mirrix::buildScanOptions(MirrixCore::ScanOptions &options) const
{
    options = scanOptionsFrom(m_locations->state(), m_rules->state());
}

bool Mirrix::confirmScanStart(const MirrixCore::ScanOptions &options)
{
    if (m_settings.skipScanConfirm)
        return true;
    const Confirmation answer =
        m_prompts.confirm(this, {Text::tr("确认开始扫描"), scanSummary(options), Text::tr("开始扫描"), Text::tr("取消"),
                                 Text::tr("不再显示此确认")});
    if (answer.accepted && answer.checked) {
        m_settings.skipScanConfirm = true;
        m_settings.save();
    }
    return answer.accepted;
}

void Mirrix::storeScanSettings(const MirrixCore::ScanOptions &options)
{
    storeLocations(m_locations->state(), m_settings);
    storeRules(options, m_settings);
    m_settings.save();
    m_actions->commands().setBackupFolder(m_settings.backupRoot);
}

void Mirrix::onClearRequested()
{
    clearResults();
    m_display->showSummary([] { return Text::tr("结果已清空。切换Tab调整规则后可重新开始扫描。"); });
    m_display->showStatus([] { return Text::tr("就绪"); });
}

void Mirrix::clearResults()
{
    ResultSet old = std::exchange(m_results, {});
    m_resultsPage->clearResults();
    discardInBackground(std::move(old));
}

void Mirrix::setScanning(bool on)
{
    m_scanning = on;
    m_sidebar->setScanning(on);
    m_locations->setLocked(on);
    for (int step = 0; step < resultsStep; ++step)
        m_wrappers[step]->setEnabled(!on);
    m_resultsPage->setScanning(on);
    m_display->setScanning(on);
    if (on)
        showLocked();
    else
        m_display->showInBar([this] { return idleText(); });
}

void Mirrix::showLocked()
{
    m_display->showInBar([] { return Text::tr("扫描进行中：已锁定规则与位置页，请勿修改扫描参数。"); });
}

void Mirrix::cancelScan()
{
    if (!m_scanning)
        return;
    m_scanThread->cancel();
    m_display->showStatus([] { return Text::tr("正在取消..."); });
}

void Mirrix::onScanFinished(MirrixCore::ScanResult result)
{
    setScanning(false);
    m_results.groups = std::move(result.groups);
    m_results.folderGroups = std::move(result.folderGroups);
    m_results.remaining = std::move(result.folderSummaries);
    m_results.filesScanned = result.filesScanned;
    m_results.totalBytes = result.totalBytes;
    m_results.wastedBytes = result.wastedBytes;
    m_results.elapsedMs = result.elapsedMs;
    m_results.candidates = result.candidates;
    m_results.marks.reset(m_results.groups);
    m_resultsPage->showResults();
    m_display->setPercent(100);
    m_display->showSummary([this] { return resultSummary(m_results); });
    m_display->showStatus([unread = UnreadNote(result.unread)] {
        return Text::tr("扫描完成 · 图片哈希后端: %1").arg(imageHashName()) + unread.text();
    });
    constexpr int shownMs = 5000;
    m_display->showInBar([this] { return idleText(); }, shownMs);
    m_log.append({scanDoneEvent(m_results.groups.size(), m_results.wastedBytes, m_results.candidates)});
    if (m_settings.scanDoneBeep)
        QApplication::beep();
}

void Mirrix::onScanFailed(const QString &message)
{
    setScanning(false);
    m_display->showStatus([message] { return translated(message); });
    m_display->setPercent(0);
    if (message != QString::fromUtf8(MirrixCore::scanCancelledMessage))
        m_prompts.warn(this, Text::tr("扫描失败"), translated(message));
}

void Mirrix::showMainWindow()
{
    showNormal();
    activateWindow();
}

void Mirrix::setLanguage(const QString &code)
{
    m_settings.uiLanguage = loadLanguage(code);
    m_settings.save();
}

void Mirrix::openHistory(const QString &runId)
{
    if (m_quitting)
        return;
    HistoryDialog history(m_settings, m_prompts, m_log, this);
    if (!runId.isEmpty())
        history.showRun(runId);
    static_cast<void>(m_prompts.run(history));
    m_locations->refreshHeldBackups();
}

void Mirrix::openOptions(OptionsDialog::Page page)
{
    OptionsDialog options(m_settings, m_prompts, this);
    options.showPage(page);
    connect(&options, &OptionsDialog::themeChanged, this, [this] { applyTheme(m_settings.appTheme); });
    connect(&options, &OptionsDialog::contentHashAlgorithmChanged, this, [this] {
        if (!m_scanning) // else from the next scan on
            applyContentHashAlgorithm(m_settings);
    });
    m_prompts.run(options);
}

QString Mirrix::modeText() const
{
    return m_settings.portable ? Text::tr("便携模式") : Text::tr("标准模式");
}

QString Mirrix::idleText() const
{
    return Text::tr("%1 · 本地运行 · 图片哈希: %2").arg(modeText(), imageHashName());
}

bool Mirrix::event(QEvent *event)
{
    // Entries of the menus, which have no tips, would empty the bar as the mouse passes over them.
    return event->type() == QEvent::StatusTip || QMainWindow::event(event);
}

void Mirrix::closeEvent(QCloseEvent *event)
{
    if (!m_quitting && m_tray && m_tray->isVisible() && m_settings.closeToTray) {
        hide();
        m_tray->notifyStillRunning();
        event->ignore();
        return;
    }
    quitCompletely();
    event->setAccepted(m_quitting);
}

void Mirrix::quitCompletely()
{
    if (m_quitting)
        return; // quitting closes the window, which asks for it again
    if (m_actions->commands().isBusy()) {
        m_quitRequested = true; // once the current file is finished
        m_actions->commands().stop();
        return;
    }
    m_quitting = true;
    storeLocations(m_locations->state(), m_settings);
    m_settings.window = windowMemory(*this, m_settings.window);
    m_settings.save();
    m_log.append({programQuitEvent()});
    if (m_tray)
        m_tray->hide();
    QCoreApplication::quit();
}

void Mirrix::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (isDarkTheme(m_settings.appTheme))
        colourCaption(*this, true);
}

void Mirrix::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        m_display->retranslate();
        m_menu->retranslate();
        if (m_tray)
            m_tray->retranslate();
    }
    QMainWindow::changeEvent(event);
}

} // namespace MirrixUi
