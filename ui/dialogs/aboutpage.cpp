#include "ui/dialogs/aboutpage.h"

#include "actions/records/aescbc.h"
#include "app/text.h"
#include "ui/state/backgroundthreads.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QTreeWidget>
#include <QtConcurrent>

namespace Mirrix {

namespace {

QLabel *makeLine(const char *name)
{
    auto *line = new QLabel;
    line->setObjectName(QLatin1String(name));
    line->setWordWrap(true);
    line->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return line;
}

QList<MirrixCore::LibraryInfo> allLibraries()
{
    QList<MirrixCore::LibraryInfo> libraries = MirrixCore::librariesInUse();
    const QString cipher = cipherLibraryVersion();
    if (!cipher.isEmpty())
        libraries.append({QStringLiteral("OpenSSL"), cipher, QStringLiteral("Apache-2.0")});
    return libraries;
}

} // namespace

AboutPage::AboutPage(bool portable, const QString &dataFolder, QWidget *parent)
    : QWidget(parent)
    , m_portable(portable)
    , m_dataFolder(dataFolder)
    , m_purpose(makeLine("AboutPurpose"))
    , m_version(makeLine("AboutVersion"))
    , m_data(makeLine("SecondaryHintLabel"))
    , m_thanks(makeLine("OptionsSectionTitle"))
    , m_libraries(new QTreeWidget)
{
    auto *icon = new QLabel;
    icon->setPixmap(QApplication::windowIcon().pixmap(48));
    QLabel *name = makeLine("OptionsPageTitle");
    name->setText(QStringLiteral("Mirrix"));
    auto *heading = new QHBoxLayout;
    heading->setSpacing(12);
    heading->addWidget(icon);
    heading->addWidget(name, 1);

    m_libraries->setObjectName(QStringLiteral("LibraryTable"));
    m_libraries->setRootIsDecorated(false);
    m_libraries->setAlternatingRowColors(true);
    m_libraries->setColumnCount(3);
    m_libraries->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(&m_asking, &QFutureWatcherBase::finished, this, &AboutPage::showLibraries);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addLayout(heading);
    column->addWidget(m_purpose);
    column->addWidget(m_version);
    column->addWidget(m_data);
    column->addSpacing(4);
    column->addWidget(m_thanks);
    column->addWidget(m_libraries, 1);
    retranslate();
}

void AboutPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_libraries->topLevelItemCount() == 0 && !m_asking.isRunning())
        m_asking.setFuture(QtConcurrent::run(backgroundThreads(), allLibraries));
}

void AboutPage::showLibraries()
{
    const QList<MirrixCore::LibraryInfo> libraries = m_asking.result();
    for (const MirrixCore::LibraryInfo &library : libraries)
        new QTreeWidgetItem(m_libraries, {library.name, library.version, library.licence});
}

void AboutPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void AboutPage::retranslate()
{
    m_purpose->setText(
        Text::tr("快速、安全的重复文件查找与清理工具，支持常规内容、图片相似、音频指纹与视频缩略图模式。"));
    const QString mode =
        m_portable ? Text::tr("便携模式（数据位于程序旁的 \\Data）") : Text::tr("标准模式（数据位于用户 AppData）");
    m_version->setText(
        Text::tr("版本 %1 · %2 · %3").arg(QApplication::applicationVersion(), mode, QStringLiteral("OpenCV-pHash")));
    m_data->setText(Text::tr("数据文件夹：%1").arg(QDir::toNativeSeparators(m_dataFolder)));
    m_thanks->setText(Text::tr("开源致谢"));
    m_libraries->setHeaderLabels({Text::tr("库"), Text::tr("版本"), Text::tr("许可")});
    m_libraries->setAccessibleName(m_thanks->text());
}

} // namespace Mirrix
