#include "ui/dialogs/logviewer.h"

#include "app/text.h"
#include "ui/models/logmodel.h"
#include "ui/state/backgroundthreads.h"
#include "ui/window/emptyhint.h"

#include <QAction>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QtConcurrent>

#include <algorithm>

namespace Mirrix {

LogViewer::LogViewer(const QString &logPath, QWidget *parent)
    : QDialog(parent)
    , m_logPath(logPath)
    , m_model(new LogModel(this))
    , m_rows(new QSortFilterProxyModel(this))
    , m_filter(new QLineEdit)
    , m_table(new QTableView)
    , m_note(new QLabel)
    , m_copy(new QPushButton)
    , m_reload(new QPushButton)
    , m_close(new QPushButton)
{
    setObjectName(QStringLiteral("LogViewer"));
    buildTable();
    buildLayout();
    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString &words) {
        m_rows->setFilterFixedString(words);
        updateNote();
    });
    connect(m_copy, &QPushButton::clicked, this, &LogViewer::copyRows);
    connect(m_reload, &QPushButton::clicked, this, &LogViewer::reload);
    connect(m_close, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_copy->setEnabled(m_table->selectionModel()->hasSelection()); });
    connect(&m_reading, &QFutureWatcherBase::finished, this, [this] { showRecords(m_reading.result()); });
    retranslate();
    reload();
}

void LogViewer::buildTable()
{
    m_rows->setSourceModel(m_model);
    m_rows->setSortRole(LogModel::sortRole);
    m_rows->setFilterKeyColumn(-1);
    m_rows->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_table->setObjectName(QStringLiteral("LogTable"));
    m_table->setModel(m_rows);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(LogModel::Time, Qt::DescendingOrder);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 10);
    new EmptyHint(m_table, [this] { return m_filter->text().isEmpty() ? QString() : Text::tr("没有匹配的记录。"); });
    QHeaderView *header = m_table->horizontalHeader();
    header->setStretchLastSection(true);
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->resizeSection(LogModel::Time, fontMetrics().horizontalAdvance(QStringLiteral("0000-00-00 00:00:00")) + 40);
    header->resizeSection(LogModel::Event, fontMetrics().averageCharWidth() * 30);

    auto *copy = new QAction(m_table);
    copy->setObjectName(QStringLiteral("CopyLogRows"));
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &LogViewer::copyRows);
    m_table->addAction(copy);
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void LogViewer::buildLayout()
{
    m_filter->setObjectName(QStringLiteral("LogFilter"));
    m_filter->setClearButtonEnabled(true);
    m_note->setObjectName(QStringLiteral("LogNote"));
    m_copy->setObjectName(QStringLiteral("LogCopyButton"));
    m_copy->setEnabled(false);
    m_reload->setObjectName(QStringLiteral("LogReloadButton"));
    m_close->setObjectName(QStringLiteral("LogCloseButton"));
    auto *foot = new QHBoxLayout;
    foot->setSpacing(8);
    foot->addWidget(m_note, 1);
    for (QPushButton *button : {m_copy, m_reload, m_close}) {
        button->setAutoDefault(false);
        foot->addWidget(button);
    }
    auto *column = new QVBoxLayout(this);
    column->setSpacing(8);
    column->addWidget(m_filter);
    column->addWidget(m_table, 1);
    column->addLayout(foot);
    resize(860, 520);
}

void LogViewer::reload()
{
    m_reload->setEnabled(false);
    m_note->setText(Text::tr("正在读取…"));
    m_reading.setFuture(
        QtConcurrent::run(backgroundThreads(), [path = m_logPath] { return OperationsLog(path).readAll(); }));
}

void LogViewer::showRecords(const QList<LogEntry> &records)
{
    m_model->setRecords(records);
    m_reload->setEnabled(true);
    updateNote();
    emit loaded();
}

void LogViewer::copyRows()
{
    QModelIndexList rows = m_table->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex &row : std::as_const(rows))
        lines.append(m_model->line(m_rows->mapToSource(row).row()));
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void LogViewer::updateNote()
{
    if (m_reading.isRunning())
        return;
    const int all = m_model->rowCount();
    m_note->setText(all == 0 ? Text::tr("日志为空。")
                             : Text::tr("显示 %1 条，共 %2 条").arg(m_rows->rowCount()).arg(all));
}

void LogViewer::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void LogViewer::retranslate()
{
    setWindowTitle(Text::tr("操作日志"));
    m_filter->setPlaceholderText(Text::tr("筛选日志"));
    m_filter->setAccessibleName(Text::tr("筛选日志"));
    m_table->setAccessibleName(Text::tr("操作日志"));
    m_copy->setText(Text::tr("复制所选"));
    m_table->actions().constFirst()->setText(m_copy->text());
    m_reload->setText(Text::tr("刷新"));
    m_close->setText(Text::tr("关闭"));
    m_model->retranslate();
    updateNote();
}

} // namespace Mirrix
