#include "ui/window/trayicon.h"

#include "app/text.h"
#include "ui/window/windowtitle.h"

#include <QApplication>
#include <QMenu>
#include <QSystemTrayIcon>

namespace Mirrix {

TrayIcon::TrayIcon(QObject *parent)
    : QObject(parent)
    , m_menu(std::make_unique<QMenu>())
    , m_icon(new QSystemTrayIcon(QApplication::windowIcon(), this))
    , m_show(m_menu->addAction(QString()))
    , m_quit(m_menu->addAction(QString()))
{
    m_icon->setContextMenu(m_menu.get());
    connect(m_show, &QAction::triggered, this, &TrayIcon::showRequested);
    connect(m_quit, &QAction::triggered, this, &TrayIcon::quitRequested);
    connect(m_icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
            emit showRequested();
    });
    setToolTip(productTitle());
    retranslate();
    m_icon->show();
}

TrayIcon::~TrayIcon() = default;

bool TrayIcon::isAvailable()
{
    return QSystemTrayIcon::isSystemTrayAvailable();
}

bool TrayIcon::isVisible() const
{
    return m_icon->isVisible();
}

void TrayIcon::hide()
{
    m_icon->hide();
}

void TrayIcon::notifyStillRunning()
{
    constexpr int shownMs = 2500;
    m_icon->showMessage(QStringLiteral("Mirrix"), Text::tr("程序仍在托盘运行。可通过托盘菜单一键完整退出。"),
                        QSystemTrayIcon::Information, shownMs);
}

void TrayIcon::setToolTip(const QString &text)
{
    m_icon->setToolTip(text);
}

void TrayIcon::retranslate()
{
    m_show->setText(Text::tr("显示主窗口"));
    m_quit->setText(Text::tr("一键完整退出"));
}

} // namespace Mirrix
