#include "ui/scandisplay.h"

#include "ui/results/resultspage.h"
#include "ui/window/trayicon.h"
#include "ui/window/windowtitle.h"

#include <QDateTime>
#include <QMainWindow>
#include <QStatusBar>

namespace Mirrix {

ScanDisplay::ScanDisplay(QMainWindow &window, ResultsPage &page, TrayIcon *tray)
    : QObject(&window)
    , m_window(window)
    , m_page(page)
    , m_tray(tray)
{
    showTitle();
}

void ScanDisplay::showInBar(const TextSource &text, int forMs)
{
    m_bar = text;
    m_window.statusBar()->showMessage(text(), forMs);
}

void ScanDisplay::showStatus(const TextSource &text)
{
    m_status = text;
    m_page.setStatusText(text());
}

void ScanDisplay::showSummary(const TextSource &text)
{
    m_summary = text;
    m_page.setSummary(text());
}

void ScanDisplay::setScanning(bool on)
{
    m_throttle.reset();
    m_percent = on ? std::optional(0) : std::nullopt;
    showTitle();
}

void ScanDisplay::showProgress(const MirrixCore::ScanProgress &progress)
{
    const auto percent = progressPercent(progress);
    if (percent)
        m_page.setProgress(*percent);
    if (!m_throttle.admits(progress.phase, QDateTime::currentMSecsSinceEpoch()))
        return;
    showStatus([progress] { return progressText(progress); });
    if (percent && m_percent && percent != m_percent) {
        m_percent = percent;
        showTitle();
    }
}

void ScanDisplay::setPercent(int percent)
{
    m_page.setProgress(percent);
}

void ScanDisplay::retranslate()
{
    showTitle();
    if (m_status)
        showStatus(m_status);
    if (m_summary)
        showSummary(m_summary);
    if (m_bar && !m_window.statusBar()->currentMessage().isEmpty())
        showInBar(m_bar);
}

void ScanDisplay::showTitle()
{
    const QString title = productTitle();
    const QString shown = m_percent ? QStringLiteral("%1 % - ").arg(*m_percent) + title : title;
    m_window.setWindowTitle(shown);
    if (m_tray)
        m_tray->setToolTip(shown);
}

} // namespace Mirrix
