#pragma once

#include "core/model/scanprogress.h"
#include "ui/state/scanstatus.h"

#include <QObject>

#include <functional>
#include <optional>

class QMainWindow;

namespace Mirrix {

class ResultsPage;
class TrayIcon;

/// What the main window says about its scans: window title, status bar, and the summary, progress and status line of
/// the results page. Texts are given as functions that make them, and are made again in another language.
class ScanDisplay : public QObject
{
    Q_OBJECT

public:
    using TextSource = std::function<QString()>;

    /// Keeps references to both; `window` owns it. `tray` may be missing.
    ScanDisplay(QMainWindow &window, ResultsPage &page, TrayIcon *tray);

    /// In the status bar; for `forMs` milliseconds, or until the next.
    void showInBar(const TextSource &text, int forMs = 0);
    void showStatus(const TextSource &text);
    void showSummary(const TextSource &text);

    void setScanning(bool on);
    void showProgress(const MirrixCore::ScanProgress &progress);

    /// The bar alone, 0..100.
    void setPercent(int percent);

    void retranslate();

private:
    void showTitle();

    QMainWindow &m_window;
    ResultsPage &m_page;
    TrayIcon *m_tray;
    ProgressThrottle m_throttle;
    TextSource m_bar;
    TextSource m_status;
    TextSource m_summary;
    std::optional<int> m_percent; ///< in the title, while a scan runs
};

} // namespace Mirrix
