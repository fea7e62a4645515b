#include "ui/dialogs/hashtooldialog.h"

#include "app/sizetext.h"
#include "app/text.h"
#include "core/platform/nativepath.h"
#include "core/threads/parallel.h"
#include "ui/dialogs/fileprogressdialog.h"
#include "ui/state/backgroundthreads.h"
#include "ui/texts/resulttexts.h"
#include "ui/window/emptyhint.h"
#include "ui/window/prompts.h"
#include "ui/window/shell.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFutureWatcher>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QUrl>
#include <QtConcurrent>

#include <atomic>

namespace Mirrix {

namespace {

enum Column
{
    NameColumn,
    HashColumn,
    AlgorithmColumn,
    SizeColumn,
    ColumnCount
};

constexpr int valueRole = Qt::UserRole; ///< of the name: the path; of the size: bytes
constexpr QRgb equalBackground = qRgb(255, 246, 217);
constexpr QRgb equalText = qRgb(27, 36, 48); ///< readable on that background in every theme

class HashRow : public QTreeWidgetItem
{
public:
    using QTreeWidgetItem::QTreeWidgetItem;

    bool operator<(const QTreeWidgetItem &other) const override
    {
        const int column = treeWidget()->sortColumn();
        if (column != SizeColumn)
            return QTreeWidgetItem::operator<(other);
        return data(column, valueRole).toLongLong() < other.data(column, valueRole).toLongLong();
    }
};

/// Holds signals and repainting back while many rows change.
class TableFreeze
{
public:
    explicit TableFreeze(QTreeWidget &table)
        : m_table(table)
        , m_blocker(table.model())
    {
        // A sorted table would move its rows while they are filled.
        m_table.setSortingEnabled(false);
    }
    ~TableFreeze()
    {
        m_blocker.unblock();
        m_table.setSortingEnabled(true);
        m_table.viewport()->update();
    }
    TableFreeze(const TableFreeze &) = delete;
    TableFreeze &operator=(const TableFreeze &) = delete;

private:
    QTreeWidget &m_table;
    QSignalBlocker m_blocker;
};

QPushButton *namedButton(const char *name)
{
    auto *button = new QPushButton;
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

} // namespace

struct HashToolDialog::Task
{
    QTreeWidgetItem *row = nullptr; ///< not touched by the workers
    QString path;
    QString hash;
};

HashToolDialog::HashToolDialog(Prompts &prompts, QWidget *parent)
    : QDialog(parent)
    , m_prompts(prompts)
    , m_addFiles(namedButton("HashAddFilesButton"))
    , m_addFolder(namedButton("HashAddFolderButton"))
    , m_recalculate(namedButton("HashRecalculateButton"))
    , m_clear(namedButton("HashClearButton"))
    , m_algorithmLabel(new QLabel)
    , m_algorithm(new QComboBox)
    , m_subfolders(new QCheckBox)
    , m_table(new QTreeWidget)
    , m_summary(new QLabel)
    , m_dropHint(new QLabel)
{
    constexpr QSize initialSize(920, 620);
    setObjectName(QStringLiteral("HashToolDialog"));
    setAcceptDrops(true);
    buildTable();
    m_summary->setObjectName(QStringLiteral("SecondaryHintLabel"));
    m_dropHint->setObjectName(QStringLiteral("HashDropHint"));

    auto *foot = new QHBoxLayout;
    foot->addWidget(m_summary);
    foot->addStretch();
    foot->addWidget(m_dropHint);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 10);
    column->setSpacing(8);
    column->addLayout(buildControls());
    column->addWidget(m_table, 1);
    column->addLayout(foot);
    resize(initialSize);
    retranslate();
}

QHBoxLayout *HashToolDialog::buildControls()
{
    m_algorithm->setObjectName(QStringLiteral("HashAlgorithmCombo"));
    m_algorithm->addItems(hashChoiceNames());
    m_algorithmLabel->setBuddy(m_algorithm);
    m_subfolders->setObjectName(QStringLiteral("HashSubfoldersCheck"));
    m_subfolders->setChecked(true);
    connect(m_addFiles, &QPushButton::clicked, this, &HashToolDialog::chooseFiles);
    connect(m_addFolder, &QPushButton::clicked, this, &HashToolDialog::chooseFolder);
    connect(m_recalculate, &QPushButton::clicked, this, [this] { computeRows(false); });
    connect(m_clear, &QPushButton::clicked, this, &HashToolDialog::clearList);

    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(m_addFiles);
    row->addWidget(m_addFolder);
    row->addWidget(m_subfolders);
    row->addStretch();
    row->addWidget(m_algorithmLabel);
    row->addWidget(m_algorithm);
    row->addWidget(m_recalculate);
    row->addWidget(m_clear);
    return row;
}

void HashToolDialog::buildTable()
{
    constexpr int digits = 32; // an MD5 digest whole
    constexpr int padding = 24;
    const int hashWidth = fontMetrics().horizontalAdvance(QString(digits, QLatin1Char('0'))) + padding;
    m_table->setObjectName(QStringLiteral("HashTable"));
    m_table->setColumnCount(ColumnCount);
    new EmptyHint(m_table, [] { return Text::tr("可将文件或文件夹拖放到此窗口"); });
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setAlternatingRowColors(true);
    m_table->setAllColumnsShowFocus(true);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->setContextMenuPolicy(Qt::CustomContextMenu);
    m_table->header()->setStretchLastSection(false);
    m_table->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_table->header()->resizeSection(HashColumn, hashWidth);
    m_table->header()->setSortIndicator(-1, Qt::AscendingOrder); // as added, until the user sorts
    m_table->setSortingEnabled(true);
    connect(m_table, &QWidget::customContextMenuRequested, this, &HashToolDialog::showMenu);
    auto *copy = new QShortcut(QKeySequence::Copy, m_table, nullptr, nullptr, Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, [this] { copySelected(HashColumn); });
}

void HashToolDialog::retranslate()
{
    setWindowTitle(Text::tr("哈希值工具 - Mirrix"));
    m_addFiles->setText(Text::tr("+ 选择文件"));
    m_addFolder->setText(Text::tr("+ 选择文件夹"));
    m_recalculate->setText(Text::tr("重新计算"));
    m_clear->setText(Text::tr("清空列表"));
    m_algorithmLabel->setText(Text::tr("算法"));
    m_subfolders->setText(Text::tr("扫描子目录"));
    m_subfolders->setToolTip(Text::tr("添加文件夹时包含其所有下级文件夹中的文件"));
    m_table->setHeaderLabels({Text::tr("文件名"), Text::tr("哈希值"), Text::tr("算法"), Text::tr("大小")});
    m_table->setAccessibleName(Text::tr("哈希值"));
    m_dropHint->setText(Text::tr("可将文件或文件夹拖放到此窗口"));
    const qsizetype count = m_table->topLevelItemCount();
    m_summary->setText(m_elapsedMs < 0 ? hashSummary(count) : hashSummary(count, m_elapsedMs));
}

void HashToolDialog::chooseFiles()
{
    addPaths(m_prompts.chooseFiles(this, Text::tr("选择文件"), {}));
}

void HashToolDialog::chooseFolder()
{
    const QString folder = m_prompts.chooseFolder(this, Text::tr("选择文件夹"), {});
    if (!folder.isEmpty())
        addPaths({folder});
}

void HashToolDialog::clearList()
{
    if (m_isBusy)
        return;
    m_table->clear();
    m_paths.clear();
    m_elapsedMs = -1;
    retranslate();
}

void HashToolDialog::addPaths(const QStringList &paths)
{
    if (m_isBusy || paths.isEmpty())
        return;
    QList<MirrixCore::FileEntry> files;
    FileProgressDialog progress(Text::tr("正在查找文件…"), this);
    const bool isDeep = m_subfolders->isChecked();
    m_isBusy = true;
    runUnderProgress(progress, [&](const BatchProgress &report) {
        files = filesAt(paths, isDeep, [&report] { return !report(0, 0); });
    });
    m_isBusy = false;
    if (progress.isStopped())
        return;
    addRows(files);
    computeRows(true);
}

void HashToolDialog::addRows(const QList<MirrixCore::FileEntry> &files)
{
    const QString algorithm = m_algorithm->currentText();
    QList<QTreeWidgetItem *> rows;
    for (const MirrixCore::FileEntry &file : files) {
        const QString key = MirrixCore::pathCaseKey(file.path);
        if (m_paths.contains(key))
            continue;
        m_paths.insert(key);
        const QString shown = shownPath(file.path);
        auto *row = new HashRow({shown, QString(), algorithm, sizeText(file.size)});
        row->setToolTip(NameColumn, shown);
        row->setData(NameColumn, valueRole, file.path);
        row->setData(SizeColumn, valueRole, file.size);
        row->setTextAlignment(SizeColumn, Qt::AlignRight | Qt::AlignVCenter);
        rows.append(row);
    }
    m_table->setSortingEnabled(false); // else each is put into place one by one
    m_table->addTopLevelItems(rows);
    m_table->setSortingEnabled(true);
    if (!rows.isEmpty())
        m_elapsedMs = -1;
    retranslate();
}

QList<HashToolDialog::Task> HashToolDialog::pendingTasks(bool onlyMissing) const
{
    QList<Task> tasks;
    for (int i = 0; i < m_table->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = m_table->topLevelItem(i);
        if (!onlyMissing || row->text(HashColumn).isEmpty())
            tasks.append({row, row->data(NameColumn, valueRole).toString(), {}});
    }
    return tasks;
}

void HashToolDialog::computeRows(bool onlyMissing)
{
    if (m_isBusy)
        return;
    QList<Task> tasks = pendingTasks(onlyMissing);
    if (tasks.isEmpty())
        return;
    m_isBusy = true;
    const auto choice = static_cast<HashChoice>(m_algorithm->currentIndex());
    QElapsedTimer timer;
    timer.start();
    const bool isWhole = runTasks(tasks, choice);
    m_elapsedMs = isWhole ? timer.elapsed() : -1;
    {
        const TableFreeze freeze(*m_table);
        for (const Task &task : std::as_const(tasks)) {
            // The old values of a file that cannot be read are cleared; one that was not reached stays as it was.
            if (task.hash.isEmpty() && !isWhole)
                continue;
            task.row->setText(HashColumn, task.hash);
            task.row->setText(AlgorithmColumn, hashChoiceNames()[static_cast<int>(choice)]);
            task.row->setToolTip(HashColumn, task.hash);
        }
        markEqualRows();
    }
    m_isBusy = false;
    retranslate();
}

bool HashToolDialog::runTasks(QList<Task> &tasks, HashChoice choice)
{
    constexpr int shownAfterMs = 300;
    std::atomic<bool> isStopped = false;
    std::atomic<int> count = 0;
    std::atomic<bool> isStepPosted = false;
    QProgressDialog progress(Text::tr("正在计算哈希…"), Text::tr("取消"), 0, static_cast<int>(tasks.size()), this);
    progress.setObjectName(QStringLiteral("HashProgress"));
    progress.setWindowTitle(windowTitle());
    progress.setWindowModality(Qt::WindowModal);
    progress.setAutoClose(false);
    progress.setAutoReset(false);
    progress.setMinimumDuration(shownAfterMs);
    progress.setValue(0);

    // A step waits for the one before: the dialog handles events while it paints, and would recurse without end.
    const auto step = [&] {
        progress.setValue(count);
        isStepPosted = false;
    };
    QFutureWatcher<void> watcher;
    QEventLoop loop;
    const auto stop = [&] { isStopped = true; };
    connect(&progress, &QProgressDialog::canceled, &watcher, stop);
    connect(this, &HashToolDialog::stopRequested, &watcher, stop);
    connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    const auto isStoppedNow = [&isStopped] { return isStopped.load(); };
    watcher.setFuture(QtConcurrent::run(backgroundThreads(), [&] {
        MirrixCore::forEachParallel(tasks.size(), [&](qsizetype i) {
            if (isStopped)
                return;
            tasks[i].hash = hexHash(tasks[i].path, choice, isStoppedNow);
            ++count;
            if (!isStepPosted.exchange(true))
                QMetaObject::invokeMethod(&progress, step, Qt::QueuedConnection);
        });
    }));
    loop.exec();
    if (!watcher.isFinished()) // the program is ending
        stop();
    watcher.waitForFinished();
    return !isStopped;
}

void HashToolDialog::markEqualRows()
{
    QHash<QString, int> counts;
    for (int i = 0; i < m_table->topLevelItemCount(); ++i)
        ++counts[m_table->topLevelItem(i)->text(HashColumn)];
    counts.remove(QString());
    for (int i = 0; i < m_table->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = m_table->topLevelItem(i);
        const bool isEqual = counts.value(row->text(HashColumn)) > 1;
        const QVariant background = isEqual ? QVariant(QBrush(QColor(equalBackground))) : QVariant();
        const QVariant text = isEqual ? QVariant(QBrush(QColor(equalText))) : QVariant();
        for (int column = 0; column < ColumnCount; ++column) {
            row->setData(column, Qt::BackgroundRole, background);
            row->setData(column, Qt::ForegroundRole, text);
        }
    }
}

void HashToolDialog::showMenu(const QPoint &position)
{
    auto *menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("HashMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(Text::tr("复制：哈希值"), this, [this] { copySelected(HashColumn); });
    menu->addAction(Text::tr("复制：文件名"), this, [this] { copySelected(NameColumn); });
    menu->addSeparator();
    QAction *reveal = menu->addAction(Text::tr("在资源管理器中打开"), this, [this] {
        if (const QTreeWidgetItem *row = m_table->currentItem())
            revealInFileManager(row->data(NameColumn, valueRole).toString());
    });
    const bool hasRows = !m_table->selectedItems().isEmpty();
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions)
        action->setEnabled(hasRows);
    reveal->setEnabled(hasRows && m_table->currentItem());
    menu->popup(m_table->viewport()->mapToGlobal(position));
}

void HashToolDialog::copySelected(int column) const
{
    QStringList lines;
    for (int i = 0; i < m_table->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *row = m_table->topLevelItem(i);
        if (row->isSelected() && !row->text(column).isEmpty())
            lines.append(row->text(column));
    }
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void HashToolDialog::done(int result)
{
    emit stopRequested();
    QDialog::done(result);
}

void HashToolDialog::dragEnterEvent(QDragEnterEvent *event)
{
    if (m_isBusy || !event->mimeData()->hasUrls())
        return;
    event->setDropAction(Qt::CopyAction); // after a move the source would delete the files
    event->accept();
}

void HashToolDialog::dropEvent(QDropEvent *event)
{
    QStringList paths;
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The program that the files are dragged from waits until this returns.
    QMetaObject::invokeMethod(
        this, [this, paths] { addPaths(paths); }, Qt::QueuedConnection);
}

void HashToolDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

} // namespace Mirrix
