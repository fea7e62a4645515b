#include "ui/results/previewpane.h"

#include "app/text.h"
#include "ui/texts/resulttexts.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>

namespace Mirrix {

PreviewCanvas::PreviewCanvas(QWidget *parent)
    : QFrame(parent)
{
    setFrameShape(StyledPanel);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PreviewCanvas::showPicture(const QImage &image)
{
    m_picture = QPixmap::fromImage(image);
    m_text.clear();
    update();
}

void PreviewCanvas::showText(const QString &text)
{
    m_picture = {};
    m_text = text;
    update();
}

void PreviewCanvas::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    constexpr int margin = 6;
    const QRect area = contentsRect().adjusted(margin, margin, -margin, -margin);
    if (m_picture.isNull()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(area, Qt::AlignCenter | Qt::TextWrapAnywhere, m_text);
        return;
    }
    const QSizeF own = QSizeF(m_picture.size()) / devicePixelRatioF();
    const bool isLarger = own.width() > area.width() || own.height() > area.height();
    const QSize shown = (isLarger ? own.scaled(area.size(), Qt::KeepAspectRatio) : own).toSize();
    QRect target({}, shown);
    target.moveCenter(area.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(target, m_picture);
}

PreviewPane::PreviewPane(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel)
    , m_canvas(new PreviewCanvas)
    , m_facts(new QScrollArea)
    , m_text(new QLabel)
{
    setObjectName(QStringLiteral("PreviewPane"));
    m_title->setObjectName(QStringLiteral("PreviewTitle"));
    m_canvas->setObjectName(QStringLiteral("PreviewCanvas"));
    m_text->setObjectName(QStringLiteral("PreviewText"));
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->setMinimumWidth(1);
    m_facts->setObjectName(QStringLiteral("PreviewTextScroll"));
    m_facts->setWidget(m_text);
    m_facts->setWidgetResizable(true);
    m_facts->setFrameShape(QFrame::NoFrame);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_title);
    constexpr int leastLines = 7; // of facts; more than the most are scrolled
    constexpr int mostLines = 8;
    m_facts->setMinimumHeight(fontMetrics().lineSpacing() * leastLines);
    m_facts->setMaximumHeight(fontMetrics().lineSpacing() * mostLines);
    layout->addWidget(m_canvas, 1);
    layout->addWidget(m_facts);
    connect(&m_loader, &PictureLoader::loaded, this, &PreviewPane::showLoaded);
    retranslate();
}

void PreviewPane::showFile(const MirrixCore::FileEntry &file)
{
    m_file = file;
    m_folder.clear();
    m_picture = {};
    m_isLoaded = false;
    m_loader.request({{file, m_canvas->size() * devicePixelRatioF()}});
    retranslate();
}

void PreviewPane::showFolder(const QString &path)
{
    clear();
    m_folder = path;
    retranslate();
}

void PreviewPane::clear()
{
    m_loader.request({});
    m_file.reset();
    m_folder.clear();
    retranslate();
}

void PreviewPane::showLoaded(const LoadedPicture &loaded)
{
    if (!m_file || m_file->path != loaded.file.path)
        return;
    m_file = loaded.file;
    m_picture = loaded.picture;
    m_isLoaded = true;
    retranslate();
}

void PreviewPane::retranslate()
{
    m_title->setText(Text::tr("文件预览"));
    m_canvas->setAccessibleName(m_title->text());
    m_facts->setAccessibleName(m_title->text());
    if (!m_file) {
        m_canvas->showText({});
        m_text->setText(m_folder.isEmpty() ? Text::tr("选择文件以预览")
                                           : Text::tr("文件夹: %1").arg(shownPath(m_folder)));
        return;
    }
    m_text->setText(previewText(*m_file));
    if (!isPicture(m_file->path))
        m_canvas->showText(Text::tr("无图像预览\n%1").arg(shownPath(m_file->path)));
    else if (!m_isLoaded)
        m_canvas->showText({});
    else if (m_picture.image.isNull())
        m_canvas->showText(problemText(m_picture.problem));
    else
        m_canvas->showPicture(m_picture.image);
}

void PreviewPane::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

} // namespace Mirrix
