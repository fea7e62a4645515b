#pragma once

#include <QObject>

#include <memory>

class QAction;
class QMenu;
class QSystemTrayIcon;

namespace Mirrix {

/// The program's icon in the system tray, by which it lives on when its window is closed.
class TrayIcon : public QObject
{
    Q_OBJECT

public:
    explicit TrayIcon(QObject *parent = nullptr);
    ~TrayIcon() override;

    /// Whether this desktop has a place for such an icon.
    [[nodiscard]] static bool isAvailable();

    [[nodiscard]] bool isVisible() const;
    void hide();

    /// Notifies the user that the program keeps running without its window.
    void notifyStillRunning();

    void setToolTip(const QString &text);
    void retranslate();

signals:
    void showRequested();
    void quitRequested();

private:
    std::unique_ptr<QMenu> m_menu;
    QSystemTrayIcon *m_icon;
    QAction *m_show;
    QAction *m_quit;
};

} // namespace Mirrix
