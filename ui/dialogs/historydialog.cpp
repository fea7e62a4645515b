#include "ui/dialogs/historydialog.h"

#include "actions/cleaning/undo.h"
#include "actions/records/runjournal.h"
#include "app/settings.h"
#include "app/text.h"
#include "ui/models/historymodel.h"
#include "ui/results/resultmenu.h"
#include "ui/state/runinbackground.h"
#include "ui/texts/bytetext.h"
#include "ui/texts/historytexts.h"
#include "ui/texts/resulttexts.h"
#include "ui/window/emptyhint.h"

#include <QAction>
#include <QClipboard>
#include <QDateTime>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QTreeView>

#include <algorithm>
#include <utility>

namespace Mirrix {

namespace {

template <typename Widget>
Widget *make(const char *name)
{
    auto *widget = new Widget;
    widget->setObjectName(QLatin1String(name));
    return widget;
}

} // namespace

HistoryDialog::HistoryDialog(Settings &settings, Prompts &prompts, OperationsLog &log, QWidget *parent)
    : QDialog(parent)
    , m_settings(settings)
    , m_commands(settings, prompts, log, this)
    , m_model(new HistoryModel(this))
    , m_filter(make<QLineEdit>("HistoryFilter"))
    , m_tree(make<QTreeView>("HistoryTree"))
    , m_note(make<QLabel>("HistoryNote"))
    , m_undoRun(make<QPushButton>("UndoRunButton"))
    , m_undoSelected(make<QPushButton>("UndoSelectedButton"))
    , m_free(make<QPushButton>("FreeBackupsButton"))
    , m_remove(make<QPushButton>("RemoveRecordButton"))
    , m_keepLabel(make<QLabel>("KeepHistoryLabel"))
    , m_keepDays(make<QSpinBox>("KeepHistoryDays"))
    , m_removeOlder(make<QPushButton>("RemoveOlderButton"))
    , m_close(make<QPushButton>("HistoryCloseButton"))
    , m_searchDelay(new QTimer(this))
    , m_isSearchStopped(std::make_shared<std::atomic<bool>>(false))
{
    setObjectName(QStringLiteral("HistoryDialog"));
    buildTree();
    buildLayout();
    connectParts();
    retranslate();
    reload();
}

HistoryDialog::~HistoryDialog()
{
    *m_isSearchStopped = true;
}

void HistoryDialog::buildTree()
{
    m_tree->setModel(m_model);
    m_tree->setUniformRowHeights(true);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->setAlternatingRowColors(true);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->setTextElideMode(Qt::ElideMiddle);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    new EmptyHint(m_tree, [this] {
        if (m_isReading)
            return Text::tr("正在读取…");
        return m_filter->text().isEmpty() ? Text::tr("没有清理记录。") : Text::tr("没有匹配的记录。");
    });
    QHeaderView *header = m_tree->header();
    header->setStretchLastSection(false);
    header->setSectionsMovable(false);
    header->setSectionResizeMode(HistoryModel::NameColumn, QHeaderView::Stretch);

    auto *copy = new QAction(m_tree);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &HistoryDialog::copyPaths);
    m_tree->addAction(copy);
}

void HistoryDialog::buildLayout()
{
    constexpr int mostDays = 9999;
    m_filter->setClearButtonEnabled(true);
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_keepDays->setRange(0, mostDays);
    m_keepDays->setValue(m_settings.keepHistoryDays);
    m_keepLabel->setBuddy(m_keepDays);
    auto *actions = new QHBoxLayout;
    auto *foot = new QHBoxLayout;
    actions->setSpacing(8);
    foot->setSpacing(8);
    for (QPushButton *button : {m_undoRun, m_undoSelected, m_free, m_remove}) {
        button->setAutoDefault(false);
        actions->addWidget(button);
    }
    actions->addStretch();
    foot->addWidget(m_note, 1);
    foot->addWidget(m_keepLabel);
    foot->addWidget(m_keepDays);
    for (QPushButton *button : {m_removeOlder, m_close}) {
        button->setAutoDefault(false);
        foot->addWidget(button);
    }
    auto *column = new QVBoxLayout(this);
    column->setSpacing(8);
    column->addWidget(m_filter);
    column->addWidget(m_tree, 1);
    column->addLayout(actions);
    column->addLayout(foot);
    resize(1000, 600);
}

void HistoryDialog::connectParts()
{
    constexpr int typingMs = 250;
    m_searchDelay->setSingleShot(true);
    m_searchDelay->setInterval(typingMs);
    connect(m_filter, &QLineEdit::textChanged, this, [this] {
        *m_isSearchStopped = true;
        m_searchDelay->start();
    });
    connect(m_searchDelay, &QTimer::timeout, this, &HistoryDialog::search);
    connect(m_model, &HistoryModel::filesRequested, this, &HistoryDialog::readFiles);
    const QItemSelectionModel *selection = m_tree->selectionModel();
    connect(selection, &QItemSelectionModel::selectionChanged, this, &HistoryDialog::updateControls);
    connect(selection, &QItemSelectionModel::currentChanged, this, &HistoryDialog::updateControls);
    connect(m_model, &QAbstractItemModel::modelReset, this, &HistoryDialog::updateControls);
    connect(m_tree, &QWidget::customContextMenuRequested, this, &HistoryDialog::openMenu);
    connect(m_undoRun, &QPushButton::clicked, this, [this] {
        if (const RunSummary *run = currentRun())
            afterCommand(m_commands.undo(run->header));
    });
    connect(m_undoSelected, &QPushButton::clicked, this, &HistoryDialog::undoSelected);
    connect(m_free, &QPushButton::clicked, this, [this] {
        if (const RunSummary *run = currentRun())
            afterCommand(m_commands.freeBackups(*run));
    });
    connect(m_remove, &QPushButton::clicked, this, [this] {
        if (const RunSummary *run = currentRun())
            afterCommand(m_commands.removeRecords({run->header.id}));
    });
    connect(m_keepDays, &QSpinBox::valueChanged, this, [this](int days) {
        m_settings.keepHistoryDays = days;
        m_settings.save();
        updateControls();
    });
    connect(m_removeOlder, &QPushButton::clicked, this, &HistoryDialog::removeOlder);
    connect(m_close, &QPushButton::clicked, this, &QDialog::accept);
}

void HistoryDialog::showRun(const QString &runId)
{
    m_wantedRun = runId;
    if (!m_isReading)
        reload();
}

void HistoryDialog::reload()
{
    m_isReading = true;
    updateControls();
    runInBackground(
        this, [directory = m_settings.directory] { return listRuns(directory); },
        [this](const QList<RunSummary> &runs) { showRuns(runs); });
}

void HistoryDialog::showRuns(const QList<RunSummary> &runs)
{
    QStringList opened;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (const QModelIndex index = m_model->index(row, 0); m_tree->isExpanded(index))
            opened.append(m_model->run(index).header.id);
    }
    const RunSummary *current = currentRun();
    const QString chosen = !m_wantedRun.isEmpty() ? m_wantedRun : current ? current->header.id : QString();
    if (!m_wantedRun.isEmpty())
        opened.append(m_wantedRun);
    m_wantedRun.clear();
    m_isReading = false;
    m_model->setRuns(runs);
    QModelIndex index = m_model->runIndex(chosen);
    if (!index.isValid())
        index = m_model->index(0, 0);
    m_tree->setCurrentIndex(index);
    for (const QString &id : std::as_const(opened))
        m_tree->expand(m_model->runIndex(id));
    m_tree->scrollTo(index);
    emit loaded();
    if (!m_filter->text().isEmpty())
        search();
}

void HistoryDialog::readFiles(const QString &runId)
{
    runInBackground(
        this,
        [path = runJournalPath(m_settings.directory, runId)] {
            return std::make_shared<const StoredRun>(readRun(path));
        },
        [this, runId](const std::shared_ptr<const StoredRun> &run) {
            m_model->setFiles(runId, run);
            updateControls();
            emit filesLoaded();
        });
}

void HistoryDialog::search()
{
    *m_isSearchStopped = true;
    m_isSearchStopped = std::make_shared<std::atomic<bool>>(false);
    const auto show = [this](std::optional<RunMatches> matches) {
        constexpr int openedRuns = 3;
        m_model->setMatches(std::move(matches));
        m_tree->setCurrentIndex(m_model->index(0, 0));
        for (int row = 0; row < m_model->rowCount() && m_model->rowCount() <= openedRuns; ++row)
            m_tree->expand(m_model->index(row, 0));
        emit filtered();
    };
    const QString words = m_filter->text();
    if (words.isEmpty()) {
        show({});
        return;
    }
    m_note->setText(Text::tr("正在读取…"));
    runInBackground(
        this,
        [directory = m_settings.directory, runs = m_model->searched(), words, isStopped = m_isSearchStopped] {
            return searchRuns(directory, runs, words, *isStopped);
        },
        [show, isStopped = m_isSearchStopped](const RunMatches &matches) {
            if (!*isStopped)
                show(matches);
        });
}

const RunSummary *HistoryDialog::currentRun() const
{
    const QModelIndex index = m_tree->currentIndex();
    return index.isValid() ? &m_model->run(index) : nullptr;
}

/// None when files of more than one run are selected.
QList<qsizetype> HistoryDialog::selectedItems() const
{
    QList<qsizetype> items;
    QModelIndex run;
    const QItemSelection ranges = m_tree->selectionModel()->selection(); // far fewer than rows
    for (const QItemSelectionRange &range : ranges) {
        if (!range.parent().isValid())
            continue;
        if (run.isValid() && run != range.parent())
            return {};
        run = range.parent();
        items += m_model->itemsIn(run, range.top(), range.bottom());
    }
    return items;
}

void HistoryDialog::updateControls()
{
    const RunSummary *run = currentRun();
    const bool isUndoable = run && run->isReadable;
    const qint64 held = isUndoable ? heldInBackup(*run) : 0;
    const QItemSelection ranges = m_tree->selectionModel()->selection();
    const auto isOfFiles = [](const QItemSelectionRange &range) { return range.parent().isValid(); };
    m_undoRun->setEnabled(isUndoable);
    m_undoSelected->setEnabled(isUndoable && std::any_of(ranges.begin(), ranges.end(), isOfFiles));
    m_free->setEnabled(held > 0);
    m_free->setText(held > 0 ? Text::tr("释放 %1").arg(formatSize(held)) : Text::tr("释放备份"));
    m_remove->setEnabled(run);
    m_removeOlder->setEnabled(m_keepDays->value() > 0 && m_model->runCount() > 0);
    if (m_isReading)
        m_note->setText(Text::tr("正在读取…"));
    else if (run && !run->message.isEmpty())
        m_note->setText(run->message);
    else
        m_note->setText(Text::tr("显示 %1 条，共 %2 条").arg(m_model->rowCount()).arg(m_model->runCount()));
}

void HistoryDialog::openMenu(const QPoint &place)
{
    const QModelIndex index = m_tree->indexAt(place);
    auto *menu = new ResultMenu(m_tree);
    menu->addFileEntries(index.isValid() && HistoryModel::isFile(index) ? index.data(HistoryModel::pathRole).toString()
                                                                        : QString());
    menu->popup(m_tree->viewport()->mapToGlobal(place));
}

void HistoryDialog::copyPaths()
{
    runInBackground(this, m_model->namesOf(m_tree->selectionModel()->selection()), [](const QString &names) {
        if (!names.isEmpty())
            QGuiApplication::clipboard()->setText(names);
    });
}

void HistoryDialog::undoSelected()
{
    const RunSummary *run = currentRun();
    const QList<qsizetype> items = selectedItems();
    if (run && !items.isEmpty())
        afterCommand(m_commands.undo(run->header, items));
}

void HistoryDialog::removeOlder()
{
    const qint64 limitMs = QDateTime::currentDateTime().addDays(-m_keepDays->value()).toMSecsSinceEpoch();
    afterCommand(m_commands.removeRecords(m_model->runsBefore(limitMs)));
}

void HistoryDialog::afterCommand(bool hasChanged)
{
    if (hasChanged)
        reload();
}

void HistoryDialog::fitColumns()
{
    constexpr std::pair<HistoryModel::Column, int> letters[] = {{HistoryModel::KeptColumn, 20},
                                                                {HistoryModel::StateColumn, 26},
                                                                {HistoryModel::FreedColumn, 12},
                                                                {HistoryModel::HeldColumn, 12}};
    QHeaderView *header = m_tree->header();
    const int letter = fontMetrics().averageCharWidth();
    constexpr int fewestLetters = 10;
    header->setMinimumSectionSize(letter * fewestLetters);
    for (const auto &[column, count] : letters)
        header->resizeSection(column, std::max(letter * count, header->sectionSizeHint(column)));
    int widest = header->sectionSizeHint(HistoryModel::PlaceColumn);
    for (const auto method : {CleaningMethod::BackupAndSymbolicLink, CleaningMethod::BackupAndHardLink})
        widest = std::max(widest, fontMetrics().horizontalAdvance(methodText(method)) + 2 * letter);
    constexpr int mostLetters = 48; // leaves room for the times in every language
    header->resizeSection(HistoryModel::PlaceColumn, std::min(widest, letter * mostLetters));
}

void HistoryDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void HistoryDialog::retranslate()
{
    setWindowTitle(Text::tr("清理历史"));
    m_filter->setPlaceholderText(Text::tr("按路径筛选"));
    m_filter->setAccessibleName(Text::tr("按路径筛选"));
    m_tree->setAccessibleName(Text::tr("清理历史"));
    m_undoRun->setText(Text::tr("撤销此次清理"));
    m_undoSelected->setText(Text::tr("撤销所选文件"));
    m_remove->setText(Text::tr("删除记录"));
    m_keepLabel->setText(Text::tr("保留记录（天）："));
    m_keepDays->setSpecialValueText(Text::tr("永久"));
    m_removeOlder->setText(Text::tr("删除更早的记录"));
    m_close->setText(Text::tr("关闭"));
    m_tree->actions().constFirst()->setText(Text::tr("复制路径"));
    m_model->retranslate();
    fitColumns();
    updateControls();
}

} // namespace Mirrix
