#include "ui/dialogs/fileprogressdialog.h"

#include "app/text.h"

#include <QCloseEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>

#include <atomic>
#include <memory>

namespace Mirrix {

FileProgressDialog::FileProgressDialog(const QString &label, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint)
    , m_pattern(label)
    , m_label(new QLabel)
    , m_bar(new QProgressBar)
    , m_cancel(new QPushButton)
{
    m_label->setObjectName(QStringLiteral("FileProgressLabel"));
    m_bar->setObjectName(QStringLiteral("FileProgressBar"));
    m_bar->setTextVisible(false);
    m_cancel->setObjectName(QStringLiteral("FileProgressCancel"));
    m_cancel->setAutoDefault(false);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(20, 16, 20, 16);
    column->setSpacing(12);
    column->addWidget(m_label);
    column->addWidget(m_bar);
    column->addWidget(m_cancel, 0, Qt::AlignRight);
    setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    connect(m_cancel, &QPushButton::clicked, this, &FileProgressDialog::stop);
    setProgress(0, 0);
    retranslate();
}

void FileProgressDialog::setProgress(qsizetype done, qsizetype total)
{
    // The bar counts with 32 bits, which is enough for as many files as fit into memory.
    m_bar->setRange(0, static_cast<int>(total));
    m_bar->setValue(static_cast<int>(done));
    const bool isCounting = m_pattern.contains(QLatin1String("%1"));
    m_label->setText(isCounting ? m_pattern.arg(QString::number(done), QString::number(total)) : m_pattern);
}

void FileProgressDialog::stop()
{
    if (m_isStopped)
        return;
    m_isStopped = true;
    m_cancel->setEnabled(false);
    retranslate();
    emit stopRequested();
}

void FileProgressDialog::reject()
{
    stop();
}

void FileProgressDialog::closeEvent(QCloseEvent *event)
{
    stop();
    event->ignore();
}

void FileProgressDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void FileProgressDialog::retranslate()
{
    setWindowTitle(m_isStopped ? Text::tr("正在停止…") : Text::tr("正在处理"));
    m_cancel->setText(Text::tr("取消"));
    m_cancel->setToolTip(Text::tr("完成当前文件后停止"));
    m_bar->setAccessibleName(Text::tr("进度"));
}

BatchProgress bindFileProgressDialog(FileProgressDialog &dialog)
{
    struct Figures
    {
        std::atomic<qsizetype> done = 0;
        std::atomic<qsizetype> total = 0;
        std::atomic<bool> isStopped = false;
    };
    constexpr int refreshMs = 50;
    const auto figures = std::make_shared<Figures>();
    figures->isStopped = dialog.isStopped();
    QObject::connect(&dialog, &FileProgressDialog::stopRequested, &dialog, [figures] { figures->isStopped = true; });
    auto *timer = new QTimer(&dialog);
    QObject::connect(timer, &QTimer::timeout, &dialog,
                     [&dialog, figures] { dialog.setProgress(figures->done, figures->total); });
    timer->start(refreshMs);
    return [figures](qsizetype done, qsizetype total) {
        figures->total = total;
        figures->done = done;
        return !figures->isStopped;
    };
}

void runUnderProgress(FileProgressDialog &dialog, const std::function<void(const BatchProgress &)> &work)
{
    constexpr int momentMs = 20; // a dialog that only flashes up cannot be read
    const BatchProgress progress = bindFileProgressDialog(dialog);
    const std::unique_ptr<QThread> thread(QThread::create([&work, &progress] { work(progress); }));
    QObject::connect(thread.get(), &QThread::finished, &dialog, &QDialog::accept);
    thread->start();
    if (!thread->wait(momentMs))
        dialog.exec();
    if (thread->isRunning()) // the application is ending, which closes dialogs
        dialog.stop();
    thread->wait();
}

} // namespace Mirrix
