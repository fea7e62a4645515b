#include "ui/dialogs/imagecomparedialog.h"

#include "app/text.h"
#include "ui/dialogs/imagepane.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QSplitter>
#include <QVBoxLayout>

namespace Mirrix {

ImageCompareDialog::ImageCompareDialog(const QString &pathA, const QString &pathB, QWidget *parent)
    : QDialog(parent)
    , m_panes({new ImagePane(pathA), new ImagePane(pathB)})
{
    setObjectName(QStringLiteral("ImageCompareDialog"));
    auto *splitter = new QSplitter(Qt::Horizontal);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(12);
    m_panes[0]->setObjectName(QStringLiteral("ImagePaneA"));
    m_panes[1]->setObjectName(QStringLiteral("ImagePaneB"));
    for (ImagePane *pane : m_panes) {
        splitter->addWidget(pane);
        splitter->setStretchFactor(splitter->count() - 1, 1);
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->setSpacing(12);
    column->addWidget(splitter, 1);
    column->addWidget(buttons);
    resize(960, 620);
    retranslate();
}

void ImageCompareDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void ImageCompareDialog::retranslate()
{
    setWindowTitle(Text::tr("图片对比"));
    m_panes[0]->setTitle(Text::tr("文件 A"));
    m_panes[1]->setTitle(Text::tr("文件 B"));
}

} // namespace Mirrix
