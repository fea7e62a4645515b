#include "ui/dialogs/imagepane.h"

#include "app/text.h"
#include "ui/state/backgroundthreads.h"
#include "ui/state/imagefacts.h"

#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>
#include <QtConcurrent>

namespace Mirrix {

namespace {

constexpr QSize pictureBounds(400, 320);

} // namespace

ImagePane::ImagePane(const QString &path, QWidget *parent)
    : QWidget(parent)
    , m_path(path)
    , m_title(new QLabel)
    , m_canvas(new QLabel)
    , m_sheet(new QPlainTextEdit)
{
    m_title->setObjectName(QStringLiteral("ImagePaneTitle"));
    m_canvas->setObjectName(QStringLiteral("PreviewCanvas"));
    m_canvas->setMinimumSize(320, 280);
    m_canvas->setAlignment(Qt::AlignCenter);
    m_canvas->setTextFormat(Qt::PlainText);
    m_canvas->setWordWrap(true);
    m_sheet->setObjectName(QStringLiteral("FactSheet"));
    m_sheet->setReadOnly(true);
    m_sheet->setMaximumHeight(160);
    m_sheet->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_title);
    column->addWidget(m_canvas, 1);
    column->addWidget(m_sheet);
    connect(&m_reading, &QFutureWatcherBase::finished, this, [this] { showContent(m_reading.result()); });
    load();
}

void ImagePane::setTitle(const QString &title)
{
    m_title->setText(title);
    m_canvas->setAccessibleName(title);
    m_sheet->setAccessibleName(title);
}

void ImagePane::load()
{
    m_canvas->setText(Text::tr("正在读取…"));
    const qreal ratio = devicePixelRatioF();
    m_reading.setFuture(QtConcurrent::run(backgroundThreads(), [path = m_path, ratio] {
        const QSize bounds = pictureBounds * ratio;
        Content content = {readPicture(path, bounds), imageFacts(path)};
        QImage &image = content.picture.image;
        if (!image.isNull()) {
            image = image.scaled(bounds, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            image.setDevicePixelRatio(ratio);
        }
        return content;
    }));
}

void ImagePane::showContent(const Content &content)
{
    m_facts = content.facts;
    m_sheet->setPlainText(factSheet(m_facts));
    if (content.picture.image.isNull()) {
        m_canvas->setText(QFileInfo(m_path).fileName());
        m_canvas->setToolTip(problemText(content.picture.problem));
    } else {
        m_canvas->setPixmap(QPixmap::fromImage(content.picture.image));
    }
    emit loaded();
}

void ImagePane::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && m_reading.isFinished())
        m_sheet->setPlainText(factSheet(m_facts));
    QWidget::changeEvent(event);
}

} // namespace Mirrix
