#include "ui/locations/locationspage.h"

#include "app/text.h"
#include "ui/locations/advancedbox.h"
#include "ui/locations/drivepicker.h"
#include "ui/locations/excludedfolders.h"
#include "ui/locations/folderbrowser.h"
#include "ui/locations/locationtable.h"
#include "ui/locations/quicklocations.h"
#include "ui/state/runinbackground.h"
#include "ui/window/prompts.h"
#include "ui/window/verticalscrollarea.h"

#include <QDir>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>

namespace Mirrix {

namespace {

QSet<QString> missingAmong(const QStringList &paths)
{
    QSet<QString> missing;
    for (const QString &path : paths) {
        if (!QDir(path).exists())
            missing.insert(path);
    }
    return missing;
}

} // namespace

LocationsPage::LocationsPage(Prompts &prompts, QWidget *parent, DriveLister driveLister)
    : QWidget(parent)
    , m_prompts(prompts)
    , m_driveLister(std::move(driveLister))
    , m_browser(new FolderBrowser)
    , m_table(new LocationTable)
    , m_tableHint(new QLabel)
    , m_addFolder(new QPushButton)
    , m_addDrives(new QPushButton)
    , m_remove(new QPushButton)
    , m_clear(new QPushButton)
    , m_quick(new QuickLocations)
    , m_excluded(new ExcludedFolders(prompts))
    , m_advanced(new AdvancedBox(prompts))
{
    setObjectName(QStringLiteral("LocationsPage"));
    m_tableSide = buildTableSide();
    auto *splitter = new QSplitter;
    splitter->setObjectName(QStringLiteral("LocationsSplitter"));
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_browser);
    splitter->addWidget(m_tableSide);
    splitter->setHandleWidth(12);
    splitter->setSizes({260, 740});
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter);
    connectParts();
    retranslate();
}

QWidget *LocationsPage::buildTableSide()
{
    m_tableHint->setObjectName(QStringLiteral("LocationTableHint"));
    m_tableHint->setWordWrap(true);
    auto *side = new QWidget;
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_table, 3);
    layout->addWidget(m_tableHint);
    layout->addWidget(buildTableButtons());
    layout->addWidget(m_quick);
    layout->addSpacing(4);
    layout->addWidget(buildLowerSide(), 2);
    return side;
}

QWidget *LocationsPage::buildTableButtons()
{
    m_addFolder->setObjectName(QStringLiteral("AddFolderButton"));
    m_addDrives->setObjectName(QStringLiteral("AddDriveButton"));
    m_remove->setObjectName(QStringLiteral("RemoveLocationsButton"));
    m_clear->setObjectName(QStringLiteral("ClearLocationsButton"));
    auto *bar = new QWidget;
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_addFolder);
    layout->addWidget(m_addDrives);
    layout->addStretch();
    layout->addWidget(m_remove);
    layout->addWidget(m_clear);
    return bar;
}

QWidget *LocationsPage::buildLowerSide()
{
    auto *options = new VerticalScrollArea(m_advanced);
    options->setObjectName(QStringLiteral("OptionsScroll"));
    auto *lower = new QWidget;
    auto *layout = new QHBoxLayout(lower);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(m_excluded, 2);
    layout->addWidget(options, 3);
    return lower;
}

void LocationsPage::connectParts()
{
    connect(m_browser, &FolderBrowser::foldersChosen, m_table, &LocationTable::addFolders);
    connect(m_quick, &QuickLocations::folderChosen, this, &LocationsPage::addLocation);
    connect(m_advanced, &AdvancedBox::historyRequested, this, &LocationsPage::historyRequested);
    connect(m_addFolder, &QPushButton::clicked, this, &LocationsPage::chooseFolder);
    connect(m_addDrives, &QPushButton::clicked, this, &LocationsPage::chooseDrives);
    connect(m_remove, &QPushButton::clicked, m_table, &LocationTable::removeSelected);
    connect(m_clear, &QPushButton::clicked, m_table, &LocationTable::clearRows);
    connect(m_table, &LocationTable::rowsChanged, this, &LocationsPage::changed);
    connect(m_excluded, &ExcludedFolders::changed, this, &LocationsPage::changed);
    connect(m_advanced, &AdvancedBox::changed, this, &LocationsPage::changed);
}

LocationsState LocationsPage::state() const
{
    return {m_table->rows(), m_excluded->folders(), m_advanced->options()};
}

void LocationsPage::setState(const LocationsState &state)
{
    m_table->setRows(state.rows);
    m_excluded->setFolders(state.excludeFolders);
    m_advanced->setOptions(state.advanced);
    if (isVisible())
        findMissing();
}

void LocationsPage::addLocation(const QString &path)
{
    m_table->addFolders({path});
}

void LocationsPage::setLocked(bool locked)
{
    m_isLocked = locked;
    m_tableSide->setEnabled(!locked);
    m_browser->setLocked(locked);
}

void LocationsPage::refreshHeldBackups()
{
    m_advanced->refreshHeld();
}

void LocationsPage::chooseFolder()
{
    addLocation(m_prompts.chooseFolder(this, Text::tr("选择要扫描的文件夹"), QDir::homePath()));
}

void LocationsPage::chooseDrives()
{
    m_addDrives->setEnabled(false);
    runInBackground(this, m_driveLister, [this](const QList<Drive> &drives) {
        m_addDrives->setEnabled(true);
        if (!m_isLocked)
            m_table->addFolders(pickDrives(m_prompts, drives, this));
    });
}

void LocationsPage::readDrives()
{
    runInBackground(this, m_driveLister, [this](const QList<Drive> &drives) {
        m_quick->setDrives(drives);
        m_table->setVolumeLabels(volumeLabelsOf(drives));
    });
}

void LocationsPage::findMissing()
{
    const QStringList paths = m_table->paths();
    if (paths.isEmpty())
        return;
    runInBackground(
        this, [paths] { return missingAmong(paths); },
        [this](const QSet<QString> &missing) { m_table->setMissing(missing); });
}

void LocationsPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    readDrives();
    findMissing();
    refreshHeldBackups();
}

void LocationsPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void LocationsPage::retranslate()
{
    m_tableHint->setText(Text::tr("每行一个扫描位置，状态列=启用/停用，已保护=不扫描。"));
    m_addFolder->setText(Text::tr("+文件夹"));
    m_addDrives->setText(Text::tr("+磁盘"));
    m_remove->setText(Text::tr("移除所选"));
    m_clear->setText(Text::tr("清空列表"));
    m_addFolder->setToolTip(Text::tr("选择一个文件夹加入扫描位置"));
    m_addDrives->setToolTip(Text::tr("选择要扫描的磁盘 / 分区"));
}

} // namespace Mirrix
