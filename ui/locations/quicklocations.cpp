#include "ui/locations/quicklocations.h"

#include "app/text.h"
#include "ui/locations/flowlayout.h"

#include <QDir>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace Mirrix {

namespace {

struct UserFolder
{
    const char *objectName;
    const char *text;
    QStandardPaths::StandardLocation location;
};

constexpr UserFolder userFolders[] = {
    {"QuickDesktop", QT_TRANSLATE_NOOP("Mirrix", "桌面"), QStandardPaths::DesktopLocation},
    {"QuickDocuments", QT_TRANSLATE_NOOP("Mirrix", "文档"), QStandardPaths::DocumentsLocation},
    {"QuickDownloads", QT_TRANSLATE_NOOP("Mirrix", "下载"), QStandardPaths::DownloadLocation},
    {"QuickPictures", QT_TRANSLATE_NOOP("Mirrix", "图片"), QStandardPaths::PicturesLocation},
    {"QuickMusic", QT_TRANSLATE_NOOP("Mirrix", "音乐"), QStandardPaths::MusicLocation},
    {"QuickVideo", QT_TRANSLATE_NOOP("Mirrix", "视频"), QStandardPaths::MoviesLocation},
};

} // namespace

QuickLocations::QuickLocations(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel)
    , m_buttons(new FlowLayout)
{
    m_title->setObjectName(QStringLiteral("QuickLocationsTitle"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_title);
    layout->addLayout(m_buttons);
    m_buttons->setSpacing(8);
    for (const UserFolder &folder : userFolders) {
        m_folderButtons.append(
            addButton(QLatin1String(folder.objectName), QStandardPaths::writableLocation(folder.location)));
    }
    retranslate();
}

void QuickLocations::setDrives(const QList<Drive> &drives)
{
    // A click may be waiting for its release on one of the old buttons: they go when it is over.
    for (auto it = m_driveButtons.begin(); it != m_driveButtons.end(); ++it) {
        m_buttons->removeWidget(it.key());
        it.key()->hide();
        it.key()->deleteLater();
    }
    m_driveButtons.clear();
    for (const Drive &drive : drives) {
        if (drive.type == DriveType::Fixed)
            m_driveButtons.insert(addButton(QStringLiteral("QuickDrive"), drive.root), drive.root);
    }
    retranslate();
}

QPushButton *QuickLocations::addButton(const QString &objectName, const QString &folder)
{
    auto *button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setToolTip(QDir::toNativeSeparators(folder));
    connect(button, &QPushButton::clicked, this, [this, folder] { emit folderChosen(folder); });
    m_buttons->addWidget(button);
    button->setVisible(!folder.isEmpty());
    return button;
}

void QuickLocations::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void QuickLocations::retranslate()
{
    m_title->setText(Text::tr("快捷位置"));
    for (int i = 0; i < m_folderButtons.size(); ++i)
        m_folderButtons[i]->setText(QCoreApplication::translate("Mirrix", userFolders[i].text));
    for (auto it = m_driveButtons.begin(); it != m_driveButtons.end(); ++it)
        it.key()->setText(Text::tr("本地磁盘 (%1)").arg(it.value()));
}

} // namespace Mirrix
